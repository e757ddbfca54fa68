#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "support/dwg/Drawing.h"

namespace dwg {

// Sections that hold whole bytes.

// The summary of AC1018 and later.
std::string SummarySection(const Drawing& drawing);
// Empty for a drawing that tells nothing about its program.
std::string AppInfoSection(const Drawing& drawing);
std::string AppInfoHistorySection(const Drawing& drawing);
// What the file itself tells that it needs.
std::string FileListSection(const Drawing& drawing);
std::string TemplateSection(Version version);
std::string AuxHeaderSection(const Drawing& drawing);
std::string RevisionsSection();

// The pictures, told by their addresses in the file: `address` is that of the section's first byte.
std::string PreviewSection(const std::vector<drawing::PreviewSpec>& previews, std::size_t address);

}  // namespace dwg
