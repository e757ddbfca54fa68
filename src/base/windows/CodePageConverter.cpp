#include "base/CodePageConverter.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <iterator>

namespace zdx {
namespace {

// Pages of a standard that gives 0x80 to 0x9F to control characters.
constexpr UINT kFirstWithControls = 28591;
constexpr UINT kLastWithControls = 28599;

// The private characters for which a page has places that users fill.
struct PrivateCharacters {
  UINT page;
  wchar_t first;
  wchar_t last;
};

constexpr PrivateCharacters kPrivateCharacters[] = {
    {932, 0xE000, 0xE757},
    {950, 0xF6B1, 0xF848},
};

// The system makes control and private characters of bytes that a page gives no meaning.
bool MeansNothing(wchar_t character, UINT page) {
  if (character >= 0xE000 && character <= 0xF8FF) {
    return std::none_of(std::begin(kPrivateCharacters), std::end(kPrivateCharacters),
                        [&](const PrivateCharacters& row) {
                          return row.page == page && row.first <= character &&
                                 character <= row.last;
                        });
  }
  const bool hasControls = page >= kFirstWithControls && page <= kLastWithControls;
  return character >= 0x80 && character <= 0x9F && !hasControls;
}

// The system's own conversion; a character has one byte or two.
class SystemConverter : public CodePageConverter {
 public:
  explicit SystemConverter(CodePageId page) : page_(static_cast<UINT>(page)) {
    for (int byte = 0; byte < 256; ++byte) {
      isLead_[static_cast<std::size_t>(byte)] =
          IsDBCSLeadByteEx(page_, static_cast<BYTE>(byte)) != FALSE;
    }
  }

  std::size_t Convert(std::string_view bytes, std::wstring& text) override {
    std::size_t done = 0;
    // From small to large: where stray bytes abound the caller comes back for each of them.
    std::size_t most = kFirstSize;
    while (done < bytes.size()) {
      const std::string_view rest = bytes.substr(done);
      const std::size_t piece = PieceOf(rest, most);
      if (!Append(rest.substr(0, piece), text)) return done + ByCharacter(rest, text);
      done += piece;
      most = std::min(2 * most, kPieceSize);
    }
    return done;
  }

 private:
  static constexpr std::size_t kFirstSize = 8;
  static constexpr std::size_t kPieceSize = 512;

  std::size_t CharacterAt(std::string_view bytes) const {
    const bool isLead = isLead_[static_cast<unsigned char>(bytes[0])];
    return isLead ? std::min<std::size_t>(2, bytes.size()) : 1;
  }

  // The size of a part of `bytes`, at most `most` bytes, that ends between two characters.
  std::size_t PieceOf(std::string_view bytes, std::size_t most) const {
    std::size_t size = 0;
    while (size < bytes.size() && size + 1 < most) size += CharacterAt(bytes.substr(size));
    return size;
  }

  // False if some of `bytes` mean nothing; `text` is as it was then.
  bool Append(std::string_view bytes, std::wstring& text) const {
    wchar_t piece[kPieceSize];
    const int length = MultiByteToWideChar(page_, MB_ERR_INVALID_CHARS, bytes.data(),
                                           static_cast<int>(bytes.size()), piece, kPieceSize);
    if (length <= 0) return false;
    const auto nothing = [this](wchar_t character) { return MeansNothing(character, page_); };
    if (std::any_of(piece, piece + length, nothing)) return false;
    text.append(piece, static_cast<std::size_t>(length));
    return true;
  }

  std::size_t ByCharacter(std::string_view bytes, std::wstring& text) const {
    std::size_t done = 0;
    while (done < bytes.size()) {
      const std::string_view rest = bytes.substr(done);
      const std::size_t size = CharacterAt(rest);
      if (!Append(rest.substr(0, size), text)) break;
      done += size;
    }
    return done;
  }

  UINT page_;
  std::array<bool, 256> isLead_ = {};
};

}  // namespace

std::unique_ptr<CodePageConverter> CodePageConverter::Make(CodePageId page) {
  if (IsValidCodePage(static_cast<UINT>(page)) == FALSE) return nullptr;
  return std::make_unique<SystemConverter>(page);
}

}  // namespace zdx
