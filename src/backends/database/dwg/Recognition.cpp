#include "backends/database/dwg/Recognition.h"

#include <algorithm>
#include <array>
#include <string>

#include "backends/database/dwg/Tokens.h"
#include "backends/database/dwg/container/FileHead.h"

namespace zdx::dwg {
namespace {

// Of the protection word: the data, or the summary, are encrypted.
constexpr std::uint32_t kEncrypted = 0x1 | 0x2;

Recognition Refuse(RefusalKind kind, std::wstring reason, std::size_t at = 0) {
  return {std::nullopt, {kind, {std::move(reason), at, {}, {}}}};
}

std::optional<model::Version> KnownVersion(std::string_view magic) {
  return std::find(kMagics.begin(), kMagics.end(), magic) == kMagics.end()
             ? std::nullopt
             : model::VersionByMagic(magic);
}

// Older or newer than those that are known.
Recognition RefuseVersion(std::string_view magic, model::Version version) {
  std::wstring reason = L"The drawing's version is " + std::wstring(magic.begin(), magic.end());
  reason += version <= model::kVersion1014  ? L", which is older than those that can be read"
            : version > model::kVersion1032 ? L", which is newer than those that can be read"
                                            : L", which isn't one of those that can be read";
  return Refuse(RefusalKind::kVersionNotKnown, reason + L" (AC1014 to AC1032).");
}

}  // namespace

bool HasMagic(std::string_view bytes) {
  return bytes.size() >= kMagicSize && model::VersionByMagic(bytes.substr(0, kMagicSize));
}

Recognition Recognise(std::string_view bytes) {
  if (bytes.empty()) return Refuse(RefusalKind::kNotADrawing, L"The file is empty.");
  const std::string_view magic = bytes.substr(0, kMagicSize);
  const std::optional<model::Version> known = KnownVersion(magic);
  if (!known) {
    if (HasMagic(bytes)) return RefuseVersion(magic, *model::VersionByMagic(magic));
    return Refuse(RefusalKind::kNotADrawing, L"The file doesn't begin with the mark of a drawing.");
  }
  const std::optional<FileHead> head = ReadFileHead(bytes);
  if (!head) {
    return Refuse(RefusalKind::kDamaged, L"The file ends within its head.", bytes.size());
  }
  if (*known >= model::kVersion1018 && (head->protection & kEncrypted) != 0) {
    return Refuse(RefusalKind::kProtected, L"The drawing is encrypted.", kProtectionAt);
  }
  return {known, {}};
}

}  // namespace zdx::dwg
