#include "support/scripted/Graphics.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace scripted {

os::HBITMAP Graphics::NewBitmap() { return static_cast<os::HBITMAP>(New("bitmap")); }
os::HPALETTE Graphics::NewPalette() { return static_cast<os::HPALETTE>(New("palette")); }

os::HBITMAP Graphics::CreateDIBSection(os::HDC /*context*/, const os::BITMAPINFO* /*info*/,
                                       std::uint32_t usage, void** bits, void* /*section*/,
                                       std::uint32_t offset) {
  if (calls_.Record("", "CreateDIBSection", Arguments(usage, offset)).null) return nullptr;
  rows_.assign(1 << 20, '\0');
  *bits = rows_.data();
  return NewBitmap();
}

os::HPALETTE Graphics::CreatePalette(const os::LOGPALETTE* palette) {
  const Outcome outcome = calls_.Record("", "CreatePalette", Arguments(palette->palNumEntries));
  return outcome.null ? nullptr : NewPalette();
}

os::HDC Graphics::CreateMetaFileW(const wchar_t* path) {
  if (calls_.Record("", "CreateMetaFileW", Arguments(path)).null) return nullptr;
  return static_cast<os::HDC>(New("metafile context"));
}

os::HDC Graphics::GetDC(void* window) {
  if (calls_.Record("", "GetDC", Given(window)).null) return nullptr;
  return static_cast<os::HDC>(New("screen"));
}

int Graphics::ReleaseDC(void* window, os::HDC context) {
  calls_.Record("", "ReleaseDC", Arguments(Given(window), Words(context, "ReleaseDC")));
  return GiveBack(context);
}

os::HDC Graphics::CreateCompatibleDC(os::HDC context) {
  const std::string words = Words(context, "CreateCompatibleDC");
  if (calls_.Record("", "CreateCompatibleDC", words).null) return nullptr;
  return static_cast<os::HDC>(New("memory context"));
}

os::HGDIOBJ Graphics::SelectObject(os::HDC context, os::HGDIOBJ object) {
  const std::string words =
      Arguments(Words(context, "SelectObject"), Words(object, "SelectObject"));
  if (calls_.Record("", "SelectObject", words).null || context == nullptr) return nullptr;
  Thing& holder = *reinterpret_cast<Thing*>(context);
  return std::exchange(holder.selected, object);
}

int Graphics::GetMapMode(os::HDC context) {
  return calls_.Record("", "GetMapMode", Words(context, "GetMapMode")).null ? 0 : mapMode;
}

int Graphics::SetMapMode(os::HDC context, int mode) {
  const std::string words = Arguments(Words(context, "SetMapMode"), mode);
  return calls_.Record("", "SetMapMode", words).null ? 0 : os::kMapModeText;
}

int Graphics::GetObjectW(os::HGDIOBJ object, int size, void* buffer) {
  const std::string words = Arguments(Words(object, "GetObjectW"), size);
  if (calls_.Record("", "GetObjectW", words).null) return 0;
  const os::BITMAP bitmap = {0, width, height, width * 3, 1, 24, nullptr};
  std::memcpy(buffer, &bitmap,
              std::min<std::size_t>(static_cast<std::size_t>(size), sizeof bitmap));
  return size;
}

int Graphics::DPtoLP(os::HDC context, os::POINT* points, int count) {
  const std::string name = Words(context, "DPtoLP");
  if (calls_.Record("", "DPtoLP", Arguments(name, points->x, points->y, count)).null) return 0;
  if (name == "metafile context") {
    *points = {points->x * unitsPerPixel, points->y * unitsPerPixel};
  } else {
    *points = {points->x + origin.x, points->y + origin.y};
  }
  return 1;
}

os::HPALETTE Graphics::SelectPalette(os::HDC context, os::HPALETTE palette, int forceBackground) {
  calls_.Record(
      "", "SelectPalette",
      Arguments(Words(context, "SelectPalette"), Words(palette, "SelectPalette"), forceBackground));
  return nullptr;
}

std::uint32_t Graphics::RealizePalette(os::HDC context) {
  calls_.Record("", "RealizePalette", Words(context, "RealizePalette"));
  return 0;
}

int Graphics::BitBlt(os::HDC target, int x, int y, int blockWidth, int blockHeight, os::HDC source,
                     int sourceX, int sourceY, std::uint32_t operation) {
  const std::string words = Arguments(Words(target, "BitBlt"), x, y, blockWidth, blockHeight,
                                      Words(source, "BitBlt"), sourceX, sourceY, operation);
  return calls_.Record("", "BitBlt", words).null ? 0 : 1;
}

int Graphics::DeleteDC(os::HDC context) {
  calls_.Record("", "DeleteDC", Words(context, "DeleteDC"));
  return GiveBack(context);
}

os::HMETAFILE Graphics::CloseMetaFile(os::HDC context) {
  const bool fails = calls_.Record("", "CloseMetaFile", Words(context, "CloseMetaFile")).null;
  GiveBack(context);
  return fails || context == nullptr ? nullptr : static_cast<os::HMETAFILE>(New("metafile"));
}

std::uint32_t Graphics::GetMetaFileBitsEx(os::HMETAFILE metafile, std::uint32_t size,
                                          void* buffer) {
  const std::string words = Arguments(Words(metafile, "GetMetaFileBitsEx"), size, Given(buffer));
  if (calls_.Record("", "GetMetaFileBitsEx", words).null) return 0;
  const auto whole = static_cast<std::uint32_t>(metafileBytes.size());
  if (buffer == nullptr) return toldSize != 0 ? toldSize : whole;
  const std::uint32_t copied = std::min(size, whole);
  std::memcpy(buffer, metafileBytes.data(), copied);
  return copied;
}

int Graphics::DeleteMetaFile(os::HMETAFILE metafile) {
  calls_.Record("", "DeleteMetaFile", Words(metafile, "DeleteMetaFile"));
  return GiveBack(metafile);
}

int Graphics::DeleteObject(os::HGDIOBJ object) {
  calls_.Record("", "DeleteObject", Words(object, "DeleteObject"));
  const bool selected = std::ranges::any_of(things_, [&](const Thing& thing) {
    return object != nullptr && thing.selected == object && ledger_.IsOut(&thing);
  });
  if (selected) ledger_.Misuse("DeleteObject of a bitmap that is selected");
  return GiveBack(object);
}

void* Graphics::New(std::string label) {
  Thing& thing = things_.emplace_back(Thing{std::move(label)});
  ledger_.Acquire(&thing, thing.label);
  return &thing;
}

std::string Graphics::Words(const void* thing, const char* operation) {
  if (thing == nullptr) return "null";
  const std::string& label = static_cast<const Thing*>(thing)->label;
  if (!ledger_.IsOut(thing)) ledger_.Misuse(std::string(operation) + " of a " + label + " gone");
  return label;
}

int Graphics::GiveBack(void* thing) {
  if (thing == nullptr) return 0;
  return ledger_.Release(thing, static_cast<Thing*>(thing)->label) ? 1 : 0;
}

}  // namespace scripted
