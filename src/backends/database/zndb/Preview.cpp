#include "backends/database/zndb/Preview.h"

#include <cstddef>
#include <cstring>
#include <memory>
#include <new>
#include <span>
#include <utility>
#include <variant>

#include "backends/database/preview/ShowPicture.h"
#include "backends/database/zndb/EmbeddedDatabase.h"
#include "backends/database/zndb/OpenDrawingFile.h"

namespace zdx::database {
namespace {

// A damaged drawing may have hundreds of pictures, each of which takes long to fail.
constexpr std::size_t kMostTried = 4;

std::optional<preview::Dib> FirstThatShows(model::Drawing& drawing, model::Report& report) {
  std::size_t tried = 0;
  for (const model::StoredPicture& picture : drawing.PreviewPictures()) {
    if (tried++ == kMostTried) break;
    preview::Showing shown = preview::ShowPicture(picture);
    if (auto* const dib = std::get_if<preview::Dib>(&shown)) return std::move(*dib);
    std::wstring text = L"The preview picture can't be shown: ";
    text += std::get<const wchar_t*>(shown);
    report.Warn({std::move(text), picture.at, {}, {}});
  }
  return std::nullopt;
}

const EmbeddedDatabase* FindOpen(const std::wstring& path, const OpenDatabases& open) {
  for (const EmbeddedDatabase* const database : open.all()) {
    if (database->drawing() != nullptr && database->path() == path) return database;
  }
  return nullptr;
}

// A palette of up to 256 colours, laid out as CreatePalette wants it.
struct Palette {
  std::uint16_t version = os::kPaletteVersion;
  std::uint16_t count = 0;
  os::PALETTEENTRY entries[256] = {};
};
static_assert(offsetof(Palette, entries) == offsetof(os::LOGPALETTE, palPalEntry));

os::HPALETTE MakePalette(std::span<const os::RGBQUAD> colours) {
  Palette palette;
  for (const os::RGBQUAD& colour : colours) {
    palette.entries[palette.count++] = {colour.rgbRed, colour.rgbGreen, colour.rgbBlue, 0};
  }
  return os::CreatePalette(reinterpret_cast<const os::LOGPALETTE*>(&palette));
}

}  // namespace

std::optional<preview::Dib> PreviewOf(const std::wstring& path, const OpenDatabases& open) {
  try {
    if (const EmbeddedDatabase* const database = FindOpen(path, open)) {
      return FirstThatShows(*database->drawing(), database->report());
    }
    const auto report = std::make_shared<model::Report>();
    const OpenedDrawing opened = OpenDrawingFile(path, Wanted::kAny, report);
    if (opened.drawing == nullptr) return std::nullopt;
    return FirstThatShows(*opened.drawing, *report);
  } catch (const std::bad_alloc&) {
    return std::nullopt;
  }
}

bool MakeBitmap(const preview::Dib& dib, os::HBITMAP& bitmap, os::HPALETTE& palette) {
  void* rows = nullptr;
  const os::HBITMAP made =
      os::CreateDIBSection(nullptr, dib.info(), os::kRgbColors, &rows, nullptr, 0);
  if (made == nullptr) return false;
  os::HPALETTE madePalette = nullptr;
  if (!dib.colours().empty()) {
    madePalette = MakePalette(dib.colours());
    if (madePalette == nullptr) {
      os::DeleteObject(made);
      return false;
    }
  }
  std::memcpy(rows, dib.rows().data(), dib.rows().size());
  bitmap = made;
  palette = madePalette;
  return true;
}

}  // namespace zdx::database
