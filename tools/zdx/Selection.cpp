#include "Selection.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace zdx {

namespace {

using Manager = ZDXEngine::FilePropertyMgr;

struct NamedBit {
  std::string_view name;
  Selection bit;
};

constexpr std::array kSetNames = {
    NamedBit{"summary", Manager::SummaryInfo},    NamedBit{"custom", Manager::CustomSummary},
    NamedBit{"thumbnail", Manager::Thumbnail},    NamedBit{"creator", Manager::CreatorInfo},
    NamedBit{"flavour", Manager::DrawingFlavour}, NamedBit{"settings", Manager::DatabaseSettings},
    NamedBit{"geo", Manager::GeoLocation},        NamedBit{"dictionaries", Manager::NamedObjects},
    NamedBit{"tables", Manager::SymbolTables},    NamedBit{"blocks", Manager::BlockAttributes},
    NamedBit{"all", Manager::AllProperties},
};

Selection Join(Selection left, Selection right) {
  return static_cast<Selection>(static_cast<std::int32_t>(left) | static_cast<std::int32_t>(right));
}

}  // namespace

std::optional<Selection> ParseSelection(std::string_view list, std::string& unknown) {
  Selection selection = Manager::AllProperties;
  bool everything = false;
  for (std::size_t at = 0; at <= list.size();) {
    const std::size_t end = std::min(list.find(',', at), list.size());
    const std::string_view name = list.substr(at, end - at);
    const auto known = std::find_if(kSetNames.begin(), kSetNames.end(),
                                    [&](const NamedBit& entry) { return entry.name == name; });
    if (known == kSetNames.end()) {
      unknown = name;
      return std::nullopt;
    }
    everything = everything || known->bit == Manager::AllProperties;
    selection = Join(selection, known->bit);
    at = end + 1;
  }
  return everything ? Manager::AllProperties : selection;
}

std::string SelectionNames() {
  std::string names;
  for (const NamedBit& entry : kSetNames) {
    if (!names.empty()) names += ", ";
    names += entry.name;
  }
  return names;
}

bool Includes(Selection selection, Selection bit) {
  return selection == Manager::AllProperties || (selection & bit) != 0;
}

Selection With(Selection selection, Selection bit) {
  return selection == Manager::AllProperties ? selection : Join(selection, bit);
}

}  // namespace zdx
