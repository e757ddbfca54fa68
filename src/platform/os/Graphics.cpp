#include "platform/os/Graphics.h"

#include "platform/ProviderSlot.h"

namespace os {
namespace {

constinit platform::ProviderSlot<GraphicsProvider> graphicsSlot;

}  // namespace

GraphicsProvider* InstallGraphicsProvider(GraphicsProvider* provider) {
  return graphicsSlot.Install(provider);
}

HBITMAP CreateDIBSection(HDC context, const BITMAPINFO* info, std::uint32_t usage, void** bits,
                         void* section, std::uint32_t offset) {
  return graphicsSlot.Get().CreateDIBSection(context, info, usage, bits, section, offset);
}

HPALETTE CreatePalette(const LOGPALETTE* palette) {
  return graphicsSlot.Get().CreatePalette(palette);
}

HDC CreateMetaFileW(const wchar_t* path) { return graphicsSlot.Get().CreateMetaFileW(path); }

HDC GetDC(void* window) { return graphicsSlot.Get().GetDC(window); }

int ReleaseDC(void* window, HDC context) { return graphicsSlot.Get().ReleaseDC(window, context); }

HDC CreateCompatibleDC(HDC context) { return graphicsSlot.Get().CreateCompatibleDC(context); }

HGDIOBJ SelectObject(HDC context, HGDIOBJ object) {
  return graphicsSlot.Get().SelectObject(context, object);
}

int GetMapMode(HDC context) { return graphicsSlot.Get().GetMapMode(context); }

int SetMapMode(HDC context, int mode) { return graphicsSlot.Get().SetMapMode(context, mode); }

int GetObjectW(HGDIOBJ object, int size, void* buffer) {
  return graphicsSlot.Get().GetObjectW(object, size, buffer);
}

int DPtoLP(HDC context, POINT* points, int count) {
  return graphicsSlot.Get().DPtoLP(context, points, count);
}

HPALETTE SelectPalette(HDC context, HPALETTE palette, int forceBackground) {
  return graphicsSlot.Get().SelectPalette(context, palette, forceBackground);
}

std::uint32_t RealizePalette(HDC context) { return graphicsSlot.Get().RealizePalette(context); }

int BitBlt(HDC target, int x, int y, int width, int height, HDC source, int sourceX, int sourceY,
           std::uint32_t operation) {
  return graphicsSlot.Get().BitBlt(target, x, y, width, height, source, sourceX, sourceY,
                                   operation);
}

int DeleteDC(HDC context) { return graphicsSlot.Get().DeleteDC(context); }

HMETAFILE CloseMetaFile(HDC context) { return graphicsSlot.Get().CloseMetaFile(context); }

std::uint32_t GetMetaFileBitsEx(HMETAFILE metafile, std::uint32_t size, void* buffer) {
  return graphicsSlot.Get().GetMetaFileBitsEx(metafile, size, buffer);
}

int DeleteMetaFile(HMETAFILE metafile) { return graphicsSlot.Get().DeleteMetaFile(metafile); }

int DeleteObject(HGDIOBJ object) { return graphicsSlot.Get().DeleteObject(object); }

}  // namespace os
