#include "platform/os/Graphics.h"

#include "platform/ProviderSlot.h"

namespace os {
namespace {

constinit platform::ProviderSlot<GraphicsProvider> slot;

}  // namespace

GraphicsProvider* InstallGraphicsProvider(GraphicsProvider* provider) {
  return slot.Install(provider);
}

HBITMAP CreateDIBSection(HDC context, const BITMAPINFO* info, std::uint32_t usage, void** bits,
                         void* section, std::uint32_t offset) {
  return slot.Get().CreateDIBSection(context, info, usage, bits, section, offset);
}

HPALETTE CreatePalette(const LOGPALETTE* palette) { return slot.Get().CreatePalette(palette); }

HDC CreateMetaFileW(const wchar_t* path) { return slot.Get().CreateMetaFileW(path); }

HDC GetDC(void* window) { return slot.Get().GetDC(window); }

int ReleaseDC(void* window, HDC context) { return slot.Get().ReleaseDC(window, context); }

HDC CreateCompatibleDC(HDC context) { return slot.Get().CreateCompatibleDC(context); }

HGDIOBJ SelectObject(HDC context, HGDIOBJ object) {
  return slot.Get().SelectObject(context, object);
}

int GetMapMode(HDC context) { return slot.Get().GetMapMode(context); }

int SetMapMode(HDC context, int mode) { return slot.Get().SetMapMode(context, mode); }

int GetObjectW(HGDIOBJ object, int size, void* buffer) {
  return slot.Get().GetObjectW(object, size, buffer);
}

int DPtoLP(HDC context, POINT* points, int count) {
  return slot.Get().DPtoLP(context, points, count);
}

HPALETTE SelectPalette(HDC context, HPALETTE palette, int forceBackground) {
  return slot.Get().SelectPalette(context, palette, forceBackground);
}

std::uint32_t RealizePalette(HDC context) { return slot.Get().RealizePalette(context); }

int BitBlt(HDC target, int x, int y, int width, int height, HDC source, int sourceX, int sourceY,
           std::uint32_t operation) {
  return slot.Get().BitBlt(target, x, y, width, height, source, sourceX, sourceY, operation);
}

int DeleteDC(HDC context) { return slot.Get().DeleteDC(context); }

HMETAFILE CloseMetaFile(HDC context) { return slot.Get().CloseMetaFile(context); }

std::uint32_t GetMetaFileBitsEx(HMETAFILE metafile, std::uint32_t size, void* buffer) {
  return slot.Get().GetMetaFileBitsEx(metafile, size, buffer);
}

int DeleteMetaFile(HMETAFILE metafile) { return slot.Get().DeleteMetaFile(metafile); }

int DeleteObject(HGDIOBJ object) { return slot.Get().DeleteObject(object); }

}  // namespace os
