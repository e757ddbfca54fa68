// The keys by which people name one value of a drawing, or one list of names.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "DrawingReport.h"

namespace zdx {

struct PropertyKey {
  // What has to be read to find the value, and no more.
  Wanted wanted;
  // The property set, in the form of _PropData::formatId, and the name in it.
  std::wstring formatId;
  std::wstring name;
  // Whether a name that differs in the case of letters A to Z will do where there is no other.
  bool inAnyCase = false;
  // Whether all properties of that name are meant.
  bool isList = false;
};

// The key that `word`, UTF-8, spells.  Nothing if it isn't one: `problem` is a sentence about it
// then, with the words that would do.
std::optional<PropertyKey> ParseKey(std::string_view word, std::string& problem);

// The properties that `key` means, in their order; at most one if it isn't a list.
std::vector<const ZDXEngine::_PropData*> Find(const PropertyKey& key, const DrawingReport& report);

}  // namespace zdx
