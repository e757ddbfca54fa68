#include "backends/walker/Conditions.h"

namespace zdx::walker {

ErrorCondition ConditionOf(Zent::ErrorStatus status) {
  switch (status) {
    case Zent::kFileNotFound:
      return ErrorCondition::kNotFound;
    case Zent::kFileAccess:
    case Zent::kEncrypted:
      return ErrorCondition::kNoAccess;
    case Zent::kSharingViolation:
      return ErrorCondition::kSharingViolation;
    case Zent::kOutOfMemory:
      return ErrorCondition::kTooLarge;
    case Zent::kNotADrawing:
    case Zent::kUnknownVersion:
      return ErrorCondition::kBadHeader;
    default:
      return ErrorCondition::kReadFailed;
  }
}

}  // namespace zdx::walker
