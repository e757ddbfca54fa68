// Small DWG files, and records put into them.
#pragma once

#include <functional>
#include <string>

#include "support/drawing/DrawingSpec.h"
#include "support/dwg/Drawing.h"
#include "support/handmade/PagedFile.h"

namespace damage {

// One version of each of the three forms that files have, and the first and last of the paged one.
inline constexpr const char* kDwgVersions[] = {"AC1014", "AC1015", "AC1018", "AC1021", "AC1032"};

// The drawing of damage::Sound as a DWG file.
std::string SoundDwg(const std::string& version);

// The same with its records changed before they are put into a file, whose checks are all right.
std::string DwgWith(const drawing::DrawingSpec& spec,
                    const std::function<void(dwg::Drawing& drawing)>& change);

// The drawing's sections as parts of a file, for versions that have pages.
handmade::PagedSpec PagesOf(dwg::Drawing& drawing);
// The drawing of damage::Sound, all of its records written; it lives for good.
dwg::Drawing& SoundRecords(const std::string& version);

// The record of `fields`, with a right check.
std::string RecordOf(unsigned type, const dwg::Fields& fields);

}  // namespace damage
