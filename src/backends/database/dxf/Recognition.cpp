#include "backends/database/dxf/Recognition.h"

#include "backends/database/dxf/Lines.h"
#include "backends/database/dxf/Tokens.h"
#include "backends/database/model/Version.h"

namespace zdx::dxf {
namespace {

// How far into a text file its first section may begin: comments may stand before it.
constexpr std::size_t kMostPreamble = std::size_t{64} * 1024;

constexpr std::size_t kMagicSize = 6;

Recognition Refuse(std::wstring reason) { return {std::nullopt, std::move(reason)}; }

// The first code is 0: in the one-byte form the type's first letter follows at once.
Recognition RecogniseBinary(std::string_view bytes) {
  if (bytes.substr(kBinaryProduct.size() + kBinaryMark.size(), kBinaryTail.size()) != kBinaryTail) {
    return Refuse(
        L"The mark of a binary DXF file is damaged; its line ends may have been converted.");
  }
  const std::string_view body = bytes.substr(kBinarySentinelSize);
  if (body.empty() || body.front() != '\0') {
    return Refuse(L"The binary DXF file doesn't begin with a section.");
  }
  const bool oneByte = body.size() > 1 && body[1] != '\0';
  return {oneByte ? Form::kBinaryOneByte : Form::kBinaryTwoByte, {}};
}

Recognition RecogniseText(std::string_view bytes) {
  const TagStream stream(bytes.substr(0, kMostPreamble), Form::kText);
  std::size_t at = stream.Begin();
  Tag tag;
  while (stream.Read(at, tag) == TagStream::Outcome::kTag) {
    if (tag.code == kCommentCode) continue;
    const std::string_view type = Trimmed(tag.value);
    const bool begins = type == kSection || type == kEndOfFile;
    if (tag.code == kTypeCode && begins) return {Form::kText, {}};
    break;
  }
  return Refuse(L"The file doesn't begin with a DXF section.");
}

}  // namespace

Recognition Recognise(std::string_view bytes) {
  if (bytes.empty()) return Refuse(L"The file is empty.");
  const std::string_view behindProduct =
      bytes.substr(std::min(bytes.size(), kBinaryProduct.size()));
  if (bytes.starts_with(kBinaryProduct) && behindProduct.starts_with(kBinaryMark)) {
    return RecogniseBinary(bytes);
  }
  if (const std::string_view magic = bytes.substr(0, kMagicSize); model::VersionByMagic(magic)) {
    return Refuse(L"The file is a DWG drawing (" + std::wstring(magic.begin(), magic.end()) +
                  L"), whatever its name says.");
  }
  return RecogniseText(bytes);
}

}  // namespace zdx::dxf
