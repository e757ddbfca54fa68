#include "backends/posix/graphics/PosixGraphics.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <utility>

namespace zdx {
namespace {

using graphics::Bitmap;

// Colours of a palette that nobody made: those that every screen has.
constexpr os::PALETTEENTRY kStockColours[] = {{0, 0, 0, 0}, {255, 255, 255, 0}};

os::BITMAPINFO OnePixel() {
  os::BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof(os::BITMAPINFOHEADER);
  info.bmiHeader.biWidth = 1;
  info.bmiHeader.biHeight = 1;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 1;
  info.bmiHeader.biClrUsed = 1;
  return info;
}

// Puts `thing` into `table` and returns its address; null for null and if memory ran out.
template <class Table, class Thing>
Thing* Keep(Table& table, std::unique_ptr<Thing> thing) {
  Thing* const address = thing.get();
  if (address != nullptr) table.emplace(address, std::move(thing));
  return address;
}

// What `make` returns; null if memory ran out.
template <class Make>
auto OrNull(Make make) -> decltype(make()) {
  try {
    return make();
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}

}  // namespace

PosixGraphics::PosixGraphics(std::size_t mostBytes)
    : mostBytes_(mostBytes),
      stockBitmap_(Keep(bitmaps_, Bitmap::Make(OnePixel()))),
      stockPalette_(Keep(palettes_, std::make_unique<Palette>(std::begin(kStockColours),
                                                              std::end(kStockColours)))) {}

template <class Thing>
Thing* PosixGraphics::Find(const Table<Thing>& table, const void* handle) {
  const auto entry = table.find(handle);
  return entry == table.end() ? nullptr : entry->second.get();
}

PosixGraphics::Context* PosixGraphics::FindContext(os::HDC handle, Context::Kind kind) const {
  Context* const context = Find(contexts_, handle);
  return context != nullptr && context->kind == kind ? context : nullptr;
}

os::HDC PosixGraphics::AddContext(Context::Kind kind) {
  return OrNull([&] {
    std::unique_ptr<Context> context(
        new Context{kind, stockBitmap_, stockPalette_, graphics::MetafileRecorder(mostBytes_)});
    return reinterpret_cast<os::HDC>(Keep(contexts_, std::move(context)));
  });
}

bool PosixGraphics::IsSelected(const Bitmap* bitmap) const {
  return std::any_of(contexts_.begin(), contexts_.end(), [bitmap](const auto& entry) {
    return entry.second->kind == Context::Kind::kMemory && entry.second->bitmap == bitmap;
  });
}

os::HBITMAP PosixGraphics::CreateDIBSection(os::HDC /*context*/, const os::BITMAPINFO* info,
                                            std::uint32_t usage, void** bits, void* section,
                                            std::uint32_t /*offset*/) {
  if (info == nullptr || usage != os::kRgbColors || section != nullptr) return nullptr;
  Bitmap* const bitmap = OrNull([&] { return Keep(bitmaps_, Bitmap::Make(*info)); });
  if (bits != nullptr) *bits = bitmap == nullptr ? nullptr : bitmap->rows();
  return reinterpret_cast<os::HBITMAP>(bitmap);
}

os::HPALETTE PosixGraphics::CreatePalette(const os::LOGPALETTE* palette) {
  if (palette == nullptr || palette->palVersion != os::kPaletteVersion ||
      palette->palNumEntries == 0) {
    return nullptr;
  }
  return OrNull([&] {
    const os::PALETTEENTRY* const first = palette->palPalEntry;
    auto entries = std::make_unique<Palette>(first, first + palette->palNumEntries);
    return reinterpret_cast<os::HPALETTE>(Keep(palettes_, std::move(entries)));
  });
}

os::HDC PosixGraphics::CreateMetaFileW(const wchar_t* path) {
  return path == nullptr ? AddContext(Context::Kind::kMetafile) : nullptr;
}

os::HDC PosixGraphics::GetDC(void* window) {
  return window == nullptr ? AddContext(Context::Kind::kScreen) : nullptr;
}

int PosixGraphics::ReleaseDC(void* window, os::HDC context) {
  if (window != nullptr || FindContext(context, Context::Kind::kScreen) == nullptr) return 0;
  contexts_.erase(context);
  return 1;
}

os::HDC PosixGraphics::CreateCompatibleDC(os::HDC context) {
  // Null stands for the screen.
  const bool known = context == nullptr || Find(contexts_, context) != nullptr;
  return known ? AddContext(Context::Kind::kMemory) : nullptr;
}

os::HGDIOBJ PosixGraphics::SelectObject(os::HDC context, os::HGDIOBJ object) {
  Context* const memory = FindContext(context, Context::Kind::kMemory);
  Bitmap* const bitmap = Find(bitmaps_, object);
  if (memory == nullptr || bitmap == nullptr) return nullptr;
  const bool elsewhere = bitmap != stockBitmap_ && bitmap != memory->bitmap && IsSelected(bitmap);
  return elsewhere ? nullptr : std::exchange(memory->bitmap, bitmap);
}

int PosixGraphics::GetMapMode(os::HDC context) {
  return Find(contexts_, context) == nullptr ? 0 : os::kMapModeText;
}

int PosixGraphics::SetMapMode(os::HDC context, int mode) {
  return mode == os::kMapModeText ? GetMapMode(context) : 0;
}

int PosixGraphics::GetObjectW(os::HGDIOBJ object, int size, void* buffer) {
  const Bitmap* const bitmap = Find(bitmaps_, object);
  constexpr int kSize = sizeof(os::BITMAP);
  if (bitmap == nullptr) return 0;
  if (buffer == nullptr) return kSize;
  if (size < kSize) return 0;
  os::BITMAP told{};
  told.bmWidth = static_cast<std::int32_t>(bitmap->width());
  told.bmHeight = static_cast<std::int32_t>(bitmap->height());
  told.bmWidthBytes = static_cast<std::int32_t>(bitmap->rowSize());
  told.bmPlanes = 1;
  told.bmBitsPixel = bitmap->bits();
  told.bmBits = bitmap->rows();
  std::memcpy(buffer, &told, sizeof told);
  return kSize;
}

int PosixGraphics::DPtoLP(os::HDC context, os::POINT* points, int count) {
  if (Find(contexts_, context) == nullptr || points == nullptr || count < 0) return 0;
  return 1;
}

os::HPALETTE PosixGraphics::SelectPalette(os::HDC context, os::HPALETTE palette,
                                          int /*forceBackground*/) {
  Context* const metafile = FindContext(context, Context::Kind::kMetafile);
  const Palette* const entries = Find(palettes_, palette);
  if (metafile == nullptr || entries == nullptr) return nullptr;
  // The stock palette is every metafile's to begin with.
  if (entries != stockPalette_) metafile->recorder.SelectPalette(*entries);
  auto* const before = const_cast<Palette*>(std::exchange(metafile->palette, entries));
  return reinterpret_cast<os::HPALETTE>(before);
}

std::uint32_t PosixGraphics::RealizePalette(os::HDC context) {
  Context* const metafile = FindContext(context, Context::Kind::kMetafile);
  if (metafile == nullptr) return 0;
  metafile->recorder.RealizePalette();
  // There is no screen whose colours would change.
  return 0;
}

int PosixGraphics::BitBlt(os::HDC target, int x, int y, int width, int height, os::HDC source,
                          int sourceX, int sourceY, std::uint32_t operation) {
  Context* const metafile = FindContext(target, Context::Kind::kMetafile);
  const Context* const memory = FindContext(source, Context::Kind::kMemory);
  if (metafile == nullptr || memory == nullptr || memory->bitmap == nullptr) return 0;
  const graphics::Transfer transfer = {x, y, width, height, sourceX, sourceY, operation};
  return metafile->recorder.DrawBitmap(*memory->bitmap, transfer) ? 1 : 0;
}

int PosixGraphics::DeleteDC(os::HDC context) {
  if (FindContext(context, Context::Kind::kMemory) == nullptr) return 0;
  contexts_.erase(context);
  return 1;
}

os::HMETAFILE PosixGraphics::CloseMetaFile(os::HDC context) {
  Context* const metafile = FindContext(context, Context::Kind::kMetafile);
  if (metafile == nullptr) return nullptr;
  std::string* const kept = OrNull([&]() -> std::string* {
    std::optional<std::string> bytes = metafile->recorder.Finish();
    if (!bytes) return nullptr;
    return Keep(metafiles_, std::make_unique<std::string>(*std::move(bytes)));
  });
  contexts_.erase(context);
  return reinterpret_cast<os::HMETAFILE>(kept);
}

std::uint32_t PosixGraphics::GetMetaFileBitsEx(os::HMETAFILE metafile, std::uint32_t size,
                                               void* buffer) {
  const std::string* const bytes = Find(metafiles_, metafile);
  if (bytes == nullptr) return 0;
  const auto whole = static_cast<std::uint32_t>(bytes->size());
  if (buffer == nullptr) return whole;
  const std::uint32_t copied = std::min(size, whole);
  std::memcpy(buffer, bytes->data(), copied);
  return copied;
}

int PosixGraphics::DeleteMetaFile(os::HMETAFILE metafile) {
  return metafiles_.erase(metafile) == 0 ? 0 : 1;
}

int PosixGraphics::DeleteObject(os::HGDIOBJ object) {
  if (object == stockBitmap_ || object == stockPalette_) return object == nullptr ? 0 : 1;
  if (Find(bitmaps_, object) != nullptr) {
    if (IsSelected(Find(bitmaps_, object))) return 0;
    return static_cast<int>(bitmaps_.erase(object));
  }
  // A metafile has the entries of its palette already.
  for (auto& [handle, context] : contexts_) {
    if (context->palette == object) context->palette = stockPalette_;
  }
  return static_cast<int>(palettes_.erase(object));
}

}  // namespace zdx
