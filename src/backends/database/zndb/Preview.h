// The preview picture of a drawing, by the path of its file.
#pragma once

#include <optional>
#include <string>

#include "backends/database/preview/Dib.h"
#include "backends/database/zndb/OpenDatabases.h"
#include "platform/os/Graphics.h"

namespace zdx::database {

// The first picture stored in the file at `path` that can be shown; nullopt if there is none or
// memory ran out.  A drawing among `open` that was read from that very path is asked, and its
// report is told of each picture before that one that can't be shown.  Else the file is opened for
// this alone, and the report of the last opening stays.
std::optional<preview::Dib> PreviewOf(const std::wstring& path, const OpenDatabases& open);

// Gives `dib` to the system, with its colour table as a palette, null without one.  False, and both
// are left as they were, if the system refuses.
bool MakeBitmap(const preview::Dib& dib, os::HBITMAP& bitmap, os::HPALETTE& palette);

}  // namespace zdx::database
