#include "errors/Throw.h"

#include <algorithm>
#include <iterator>

#include "platform/common/CommonUtils.h"
#include "resources/ResourceModule.h"

namespace ZDXEngine {
namespace {

// Throws one class of the tree; `resourceId` counts only where the class leaves it to its thrower.
using Thrower = void (*)(int resourceId, const std::wstring& path);

template <class Exception>
[[noreturn]] void Throw(int /*resourceId*/, const std::wstring& path) {
  throw Exception(path);
}

[[noreturn]] void ThrowConversion(int resourceId, const std::wstring& path) {
  throw ConversionToZENTFormatFailed(resourceId, path);
}

struct Mapping {
  int number;
  Thrower raise;
  int resourceId = 0;
};

constexpr Mapping kStatuses[] = {
    {76, Throw<NotFound>},        {314, Throw<InvalidFormat>},  {1001, Throw<SecurityError>},
    {1002, Throw<SecurityError>}, {1003, Throw<SecurityError>}, {1101, Throw<SecurityError>},
    {1102, Throw<SecurityError>}, {1103, Throw<SecurityError>}, {1104, Throw<SecurityError>},
    {1201, Throw<SecurityError>}, {1202, Throw<SecurityError>}, {1203, Throw<SecurityError>},
};

using Condition = ZnDwgDepends::DwgDepends;

constexpr Mapping kConditions[] = {
    {Condition::kNotFound, Throw<NotFound>},
    {Condition::kNoAccess, Throw<NoAccess>},
    {Condition::kReadFailed, Throw<ReadError>},
    {Condition::kDigitallySigned, Throw<NotConvertDigitalSigned>},
    {Condition::kSharingViolation, Throw<SharingViolation>},
    {Condition::kTooLarge, Throw<DataTooLarge>},
    {Condition::kConversionTo14Failed, ThrowConversion, 112},
    {Condition::kConversionTo2000Failed, ThrowConversion, 113},
    {Condition::kConversionTo2004Failed, ThrowConversion, 115},
    {Condition::kConversionTo2007Failed, ThrowConversion, 116},
    {Condition::kConversionTo2010Failed, ThrowConversion, 117},
    {Condition::kConversionTo2013Failed, ThrowConversion, 118},
    {Condition::kConversionTo2017Failed, ThrowConversion, 148},
    {Condition::kSaveFailed, Throw<SaveFileError>},
    {Condition::kBadHeader, Throw<BadDwgHeader>},
};

constexpr Mapping kVerticalOperations[] = {
    {0, Throw<GetVerticalDependenciesError>},
    {1, Throw<UpdateVerticalDependenciesError>},
};

// What no row names is a read error.
template <std::size_t N>
[[noreturn]] void ThrowMapped(const Mapping (&mappings)[N], int number, const std::wstring& path) {
  const Mapping* const row =
      std::find_if(std::begin(mappings), std::end(mappings),
                   [number](const Mapping& mapping) { return mapping.number == number; });
  if (row != std::end(mappings)) row->raise(row->resourceId, path);
  throw ReadError(path);
}

}  // namespace

void ThrowForStatus(Zent::ErrorStatus status, const std::wstring& path) {
  if (status == Zent::kOk) return;
  ThrowMapped(kStatuses, status, path);
}

void ThrowForCondition(const std::wstring& path,
                       ZnDwgDepends::DwgDepends::ErrorCondition condition) {
  ThrowMapped(kConditions, condition, path);
}

void ThrowForVerticalFailure(const std::wstring& path, int operation) {
  ThrowMapped(kVerticalOperations, operation, path);
}

std::wstring LoadResourceText(unsigned int id) {
  return Common::StringUtils::LoadStrW(ResourceModule(), id);
}

}  // namespace ZDXEngine
