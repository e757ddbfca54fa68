#include "backends/database/dxf/ChunkedText.h"

namespace zdx::dxf {

void ChunkedText::Take(const Tag& tag) {
  if (isComplete_ || (tag.code != moreCode_ && tag.code != lastCode_)) return;
  if (!Found()) at_ = tag.at;
  bytes_ += tag.value;
  isComplete_ = tag.code == lastCode_;
}

}  // namespace zdx::dxf
