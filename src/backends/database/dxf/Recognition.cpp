#include "backends/database/dxf/Recognition.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "backends/database/dxf/Lines.h"
#include "backends/database/dxf/Tokens.h"
#include "backends/database/model/Version.h"

namespace zdx::dxf {
namespace {

// How far into a text file its first section may begin: comments may stand before it.
constexpr std::size_t kMostPreamble = std::size_t{64} * 1024;

constexpr std::size_t kMagicSize = 6;

Recognition Refuse(std::wstring reason, std::size_t offset) {
  return {std::nullopt, {std::move(reason), offset, {}, {}}};
}

Recognition RefuseText(std::wstring reason, const TagStream& stream, std::size_t at) {
  const std::string_view bytes = stream.bytes();
  if (bytes.find('\0') != std::string_view::npos) return Refuse(std::move(reason), at);
  std::uint64_t line = 1;
  for (std::size_t begin = stream.Begin(); begin < at; ++line) TakeLine(bytes, begin);
  return {std::nullopt, {std::move(reason), {}, line, {}}};
}

// The first code is 0: in the one-byte form the type's first letter follows at once.
Recognition RecogniseBinary(std::string_view bytes) {
  constexpr std::size_t kTailAt = kBinaryProduct.size() + kBinaryMark.size();
  if (bytes.substr(kTailAt, kBinaryTail.size()) != kBinaryTail) {
    return Refuse(
        L"The mark of a binary DXF file is damaged; its line ends may have been converted.",
        kTailAt);
  }
  const std::string_view body = bytes.substr(kBinarySentinelSize);
  if (body.empty() || body.front() != '\0') {
    return Refuse(L"The binary DXF file doesn't begin with a section.", kBinarySentinelSize);
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
  return RefuseText(L"The file doesn't begin with a DXF section.", stream,
                    std::min(tag.at, stream.bytes().size()));
}

}  // namespace

Recognition Recognise(std::string_view bytes) {
  if (bytes.empty()) return Refuse(L"The file is empty.", 0);
  const std::string_view behindProduct =
      bytes.substr(std::min(bytes.size(), kBinaryProduct.size()));
  if (bytes.starts_with(kBinaryProduct) && behindProduct.starts_with(kBinaryMark)) {
    return RecogniseBinary(bytes);
  }
  if (const std::string_view magic = bytes.substr(0, kMagicSize); model::VersionByMagic(magic)) {
    return Refuse(L"The file is a DWG drawing (" + std::wstring(magic.begin(), magic.end()) +
                      L"), whatever its name says.",
                  0);
  }
  return RecogniseText(bytes);
}

}  // namespace zdx::dxf
