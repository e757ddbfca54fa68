// Bitmaps, palettes and metafiles on Windows: each operation is the system's call of the same name.
#pragma once

#include "platform/os/Graphics.h"

namespace zdx {

class WindowsGraphics : public os::GraphicsProvider {
 public:
  os::HBITMAP CreateDIBSection(os::HDC context, const os::BITMAPINFO* info, std::uint32_t usage,
                               void** bits, void* section, std::uint32_t offset) override;
  os::HPALETTE CreatePalette(const os::LOGPALETTE* palette) override;
  os::HDC CreateMetaFileW(const wchar_t* path) override;
  os::HDC GetDC(void* window) override;
  int ReleaseDC(void* window, os::HDC context) override;
  os::HDC CreateCompatibleDC(os::HDC context) override;
  os::HGDIOBJ SelectObject(os::HDC context, os::HGDIOBJ object) override;
  int GetMapMode(os::HDC context) override;
  int SetMapMode(os::HDC context, int mode) override;
  int GetObjectW(os::HGDIOBJ object, int size, void* buffer) override;
  int DPtoLP(os::HDC context, os::POINT* points, int count) override;
  os::HPALETTE SelectPalette(os::HDC context, os::HPALETTE palette, int forceBackground) override;
  std::uint32_t RealizePalette(os::HDC context) override;
  int BitBlt(os::HDC target, int x, int y, int width, int height, os::HDC source, int sourceX,
             int sourceY, std::uint32_t operation) override;
  int DeleteDC(os::HDC context) override;
  os::HMETAFILE CloseMetaFile(os::HDC context) override;
  std::uint32_t GetMetaFileBitsEx(os::HMETAFILE metafile, std::uint32_t size,
                                  void* buffer) override;
  int DeleteMetaFile(os::HMETAFILE metafile) override;
  int DeleteObject(os::HGDIOBJ object) override;
};

}  // namespace zdx
