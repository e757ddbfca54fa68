#include "support/drawing/PageBytes.h"

#include <iconv.h>

#include <cstdint>

namespace drawing {
namespace {

class Converter : public PageBytes {
 public:
  explicit Converter(iconv_t converter) : converter_(converter) {}
  ~Converter() override { iconv_close(converter_); }
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;

  std::string Find(std::string_view character) const override {
    std::string copy(character);
    char bytes[8];
    char* from = copy.data();
    char* to = bytes;
    std::size_t fromLeft = copy.size();
    std::size_t toLeft = sizeof bytes;
    iconv(converter_, nullptr, nullptr, nullptr, nullptr);
    if (iconv(converter_, &from, &fromLeft, &to, &toLeft) != 0) return {};
    return std::string(bytes, to);
  }

 private:
  iconv_t converter_;
};

}  // namespace

std::unique_ptr<PageBytes> PageBytes::Make(int page) {
  const iconv_t converter = iconv_open(("CP" + std::to_string(page)).c_str(), "UTF-8");
  if (reinterpret_cast<std::intptr_t>(converter) == -1) return nullptr;
  return std::make_unique<Converter>(converter);
}

}  // namespace drawing
