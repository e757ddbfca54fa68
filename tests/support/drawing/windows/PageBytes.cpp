#include "support/drawing/PageBytes.h"

#include <windows.h>

#include "ZDXEngine/Utf8.h"

namespace drawing {
namespace {

class Converter : public PageBytes {
 public:
  explicit Converter(UINT page) : page_(page) {}

  std::string Find(std::string_view character) const override {
    const std::wstring wide = ZDXEngine::WideFromUtf8(character);
    char bytes[8];
    BOOL isReplaced = FALSE;
    const int length =
        WideCharToMultiByte(page_, WC_NO_BEST_FIT_CHARS, wide.data(), static_cast<int>(wide.size()),
                            bytes, sizeof bytes, nullptr, &isReplaced);
    if (isReplaced != FALSE) return {};
    return std::string(bytes, static_cast<std::size_t>(length));
  }

 private:
  UINT page_;
};

}  // namespace

std::unique_ptr<PageBytes> PageBytes::Make(int page) {
  if (IsValidCodePage(static_cast<UINT>(page)) == FALSE) return nullptr;
  return std::make_unique<Converter>(static_cast<UINT>(page));
}

}  // namespace drawing
