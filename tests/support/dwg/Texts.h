#pragma once

#include <string>
#include <string_view>

#include "support/drawing/PageEncoder.h"
#include "support/drawing/Version.h"

namespace dwg {

using drawing::Version;

// `utf8` in UTF-16, low bytes first.
std::string Utf16(std::string_view utf8);

// A text with a count of 16 bits before it, as extended data and records of free values hold it.
// `countSize` is the count's size in bytes where texts are of a code page.
std::string CountedText(std::string_view utf8, Version version, const drawing::PageEncoder& encoder,
                        std::string_view pageMark, std::size_t countSize);

// As AC1014 spells names of tables, dictionaries and applications: in capitals and without blanks.
// Later versions keep them.
std::string StoredName(std::string_view name, Version version);

// The number under which files name `codePage`: ANSI_ and a number.  Throws std::invalid_argument
// for a page that has none.
unsigned CodePageNumber(std::string_view codePage);

}  // namespace dwg
