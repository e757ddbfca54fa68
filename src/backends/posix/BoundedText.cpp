#include "backends/posix/BoundedText.h"

namespace zdx {

os::Errno CopyBounded(std::wstring_view text, wchar_t* target, std::size_t size) {
  if (target == nullptr || size == 0) return kInvalidArgument;
  if (text.size() >= size) {
    target[0] = L'\0';
    return os::kBufferTooSmall;
  }
  // The text may stand in the target.
  std::char_traits<wchar_t>::move(target, text.data(), text.size());
  target[text.size()] = L'\0';
  return 0;
}

}  // namespace zdx
