#include "backends/database/modeldoc/SafeLeafName.h"

#include <algorithm>
#include <cstddef>

#include "ZDXEngine/Utf8.h"
#include "base/CaseFold.h"

namespace zdx::database {
namespace {

constexpr std::wstring_view kDefaultName = L"model.dwg";
// One character may come before them.
constexpr std::size_t kMostNameBytes = 99;
constexpr std::size_t kLongestExtension = 12;

// Stand for devices, whatever extension follows.
constexpr std::wstring_view kDevices[] = {L"con", L"prn", L"aux", L"nul", L"conin$", L"conout$"};
// The same with a digit behind them.
constexpr std::wstring_view kNumberedDevices[] = {L"com", L"lpt"};

// Control characters, what no name may have on one of the systems, and halves of pairs, which
// stand for bytes of their own where names are bytes.
bool IsRefused(wchar_t c) {
  const auto unit = static_cast<char32_t>(c);
  const bool isControl = unit < 0x20 || (unit >= 0x7F && unit < 0xA0);
  const bool isHalf =
      sizeof(wchar_t) > 2 && ((unit >= 0xD800 && unit <= 0xDFFF) || unit > 0x10FFFF);
  return isControl || isHalf ||
         std::wstring_view(L"<>:\"|?*/\\").find(c) != std::wstring_view::npos;
}

bool IsDevice(std::wstring_view name) {
  std::wstring_view stem = name.substr(0, name.find(L'.'));
  stem = stem.substr(0, stem.find_last_not_of(L' ') + 1);
  const std::wstring folded = FoldCase(stem);
  if (std::find(std::begin(kDevices), std::end(kDevices), folded) != std::end(kDevices))
    return true;
  if (folded.size() != 4) return false;
  const bool hasDigit = std::wstring_view(L"0123456789\u00B9\u00B2\u00B3").find(folded.back()) !=
                        std::wstring_view::npos;
  return hasDigit && std::find(std::begin(kNumberedDevices), std::end(kNumberedDevices),
                               folded.substr(0, 3)) != std::end(kNumberedDevices);
}

// `name` with its begin cut until it fits; a short extension stays.
std::wstring Shortened(std::wstring name) {
  const std::size_t dot = name.rfind(L'.');
  std::wstring extension;
  if (dot != std::wstring::npos && name.size() - dot <= kLongestExtension) {
    extension = name.substr(dot);
    name.resize(dot);
  }
  name.resize(std::min(name.size(), kMostNameBytes));
  while (!name.empty() && ZDXEngine::BytesFromWide(name + extension).size() > kMostNameBytes) {
    name.pop_back();
  }
  const bool isCutPair = !name.empty() && name.back() >= 0xD800 && name.back() <= 0xDBFF;
  if (isCutPair) name.pop_back();
  return name + extension;
}

}  // namespace

std::wstring SafeLeafName(std::wstring_view stored) {
  const std::size_t separator = stored.find_last_of(L"/\\");
  std::wstring name(separator == std::wstring_view::npos ? stored : stored.substr(separator + 1));
  name.erase(std::remove_if(name.begin(), name.end(), IsRefused), name.end());
  name = Shortened(std::move(name));
  // Ends that some systems leave out, and begins that hide a file.
  name.erase(name.find_last_not_of(L" .") + 1);
  name.erase(0, std::min(name.find_first_not_of(L" ."), name.size()));
  if (name.empty()) return std::wstring(kDefaultName);
  return IsDevice(name) ? L"_" + name : name;
}

}  // namespace zdx::database
