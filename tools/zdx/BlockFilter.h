// The words of --block.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "ZDXEngine/FilePropertyMgr.h"

namespace zdx {

using BlockFilter = ZDXEngine::BlockFilterParam;

// The format id of the tool's own for the block that is named `number`th, counted from 1:
// {5F1C7E2A-93D4-4B68-A0E7-000000000001} for the first, and so on.
GUID OwnFormatId(std::size_t number);

// The filter that "NAME[:tag|:prompt][=FORMATID]" stands for, as the word `number` of its kind.
// What follows the last '=' must be a format id, so that a name with a '=' goes with one; without
// one the values go under the tool's own.  ":tag" or ":prompt", in any case, belongs to the name
// anywhere but at its end.  Nothing if the word isn't of that form: `problem` is a sentence about
// it then.
std::optional<BlockFilter> ParseBlockFilter(std::string_view word, std::size_t number,
                                            std::string& problem);

}  // namespace zdx
