// The words with which every file begins.
//
//   OFFSET  SIZE  MEANING
//      0      6   version, six characters
//     11      1   maintenance release
//     13      4   address of the preview, 0 for none
//     19      2   code page
//     24      4   protection, from AC1018 on
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "base/CodePage.h"

namespace zdx::dwg {

inline constexpr std::size_t kMagicSize = 6;
inline constexpr std::size_t kMaintenanceAt = 11;
inline constexpr std::size_t kPreviewAddressAt = 13;
inline constexpr std::size_t kCodePageAt = 19;
inline constexpr std::size_t kProtectionAt = 24;
inline constexpr std::size_t kFileHeadSize = 28;

struct FileHead {
  std::uint8_t maintenance = 0;
  std::uint32_t previewAddress = 0;
  std::uint16_t codePage = 0;
  std::uint32_t protection = 0;
};

// nullopt if `bytes` is too short.
std::optional<FileHead> ReadFileHead(std::string_view bytes);

// A code page by the number that it has in these files.
struct NumberedCodePage {
  std::uint16_t number;
  CodePageId page;
  // As the other format spells it.
  std::wstring_view name;
};

// Null for a number that isn't known.
const NumberedCodePage* CodePageByNumber(std::uint16_t number);

}  // namespace zdx::dwg
