#include "BlockFilter.h"

#include <cstdint>

#include "AsciiCase.h"
#include "FormatId.h"
#include "ZDXEngine/Utf8.h"

namespace zdx {

namespace {

constexpr GUID kFirstOwnFormatId = {
    0x5F1C7E2A, 0x93D4, 0x4B68, {0xA0, 0xE7, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00}};

// Takes `suffix` off the end of `word` if it stands there.
bool TakeSuffix(std::string_view& word, std::string_view suffix) {
  if (!EndsInIgnoringAsciiCase(word, suffix)) return false;
  word.remove_suffix(suffix.size());
  return true;
}

}  // namespace

GUID OwnFormatId(std::size_t number) {
  GUID id = kFirstOwnFormatId;
  auto rest = static_cast<std::uint64_t>(number);
  for (int i = 7; i >= 2; --i, rest >>= 8) id.Data4[i] = static_cast<std::uint8_t>(rest);
  return id;
}

std::optional<BlockFilter> ParseBlockFilter(std::string_view word, std::size_t number,
                                            std::string& problem) {
  BlockFilter filter;
  filter.formatId = OwnFormatId(number);
  const std::size_t equals = word.rfind('=');
  std::string_view name = word.substr(0, equals);
  if (equals != std::string_view::npos) {
    const std::string_view spelt = word.substr(equals + 1);
    const std::optional<GUID> id = ParseFormatId(spelt);
    if (!id) {
      problem = "'" + std::string(spelt) +
                "' behind the '=' isn't a GUID, such as {01234567-89AB-CDEF-0123-456789ABCDEF}";
      return std::nullopt;
    }
    filter.formatId = *id;
  }
  if (TakeSuffix(name, ":tag")) {
    filter.usePrompt = false;
  } else {
    TakeSuffix(name, ":prompt");
  }
  if (name.empty()) {
    problem = "'" + std::string(word) + "' names no block";
    return std::nullopt;
  }
  filter.blockName = ZDXEngine::WideFromUtf8(name);
  return filter;
}

}  // namespace zdx
