#include "base/CodePageConverter.h"

#include <windows.h>

#include <algorithm>

namespace zdx {
namespace {

// Pages of a standard that gives 0x80 to 0x9F to control characters.
constexpr UINT kFirstWithControls = 28591;
constexpr UINT kLastWithControls = 28599;

// The page in which private characters, up to this one, stand for what users may define.
constexpr UINT kJapanese = 932;
constexpr wchar_t kLastOfUsers = 0xE757;

// The system makes control and private characters of bytes that a page gives no meaning.
bool MeansNothing(wchar_t character, UINT page) {
  const bool isUsers = page == kJapanese && character <= kLastOfUsers;
  if (character >= 0xE000 && character <= 0xF8FF && !isUsers) return true;
  const bool hasControls = page >= kFirstWithControls && page <= kLastWithControls;
  return character >= 0x80 && character <= 0x9F && !hasControls;
}

// The system's own conversion; a character has one byte or two.
class SystemConverter : public CodePageConverter {
 public:
  explicit SystemConverter(CodePageId page) : page_(static_cast<UINT>(page)) {}

  std::size_t Convert(std::string_view bytes, std::wstring& text) override {
    std::size_t done = 0;
    // A piece that fails was in vain: each is at most as long as all that succeeded before.
    std::size_t most = 1;
    while (done < bytes.size()) {
      const std::string_view piece = PieceOf(bytes.substr(done), most);
      if (!Append(piece, text)) return done + ByCharacter(piece, text);
      done += piece.size();
      most = std::min(done, kPieceSize - 1);
    }
    return done;
  }

 private:
  static constexpr std::size_t kPieceSize = 512;

  std::size_t CharacterAt(std::string_view bytes) const {
    const bool isLead = IsDBCSLeadByteEx(page_, static_cast<BYTE>(bytes[0])) != FALSE;
    return isLead ? std::min<std::size_t>(2, bytes.size()) : 1;
  }

  // The begin of `bytes` that ends between two characters, where `most` bytes end or one later.
  std::string_view PieceOf(std::string_view bytes, std::size_t most) const {
    std::size_t size = 0;
    while (size < bytes.size() && size < most) size += CharacterAt(bytes.substr(size));
    return bytes.substr(0, size);
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
};

}  // namespace

std::unique_ptr<CodePageConverter> CodePageConverter::Make(CodePageId page) {
  if (IsValidCodePage(static_cast<UINT>(page)) == FALSE) return nullptr;
  return std::make_unique<SystemConverter>(page);
}

}  // namespace zdx
