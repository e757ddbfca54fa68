#include "backends/windows/WindowsGraphics.h"

#include <windows.h>

#include <cstddef>

namespace zdx {
namespace {

// The seam's structures are the system's own.
static_assert(sizeof(os::POINT) == sizeof(::POINT) && sizeof(os::BITMAP) == sizeof(::BITMAP) &&
              offsetof(os::BITMAP, bmBits) == offsetof(::BITMAP, bmBits) &&
              sizeof(os::BITMAPINFO) == sizeof(::BITMAPINFO) &&
              sizeof(os::LOGPALETTE) == sizeof(::LOGPALETTE));
static_assert(os::kRgb == BI_RGB && os::kBitFields == BI_BITFIELDS &&
              os::kRgbColors == DIB_RGB_COLORS && os::kSourceCopy == SRCCOPY &&
              os::kMapModeText == MM_TEXT);

// A handle of the seam as the system's, and back.
::HDC System(os::HDC handle) { return reinterpret_cast<::HDC>(handle); }
::HPALETTE System(os::HPALETTE handle) { return reinterpret_cast<::HPALETTE>(handle); }
::HMETAFILE System(os::HMETAFILE handle) { return reinterpret_cast<::HMETAFILE>(handle); }
os::HDC Ours(::HDC handle) { return reinterpret_cast<os::HDC>(handle); }
os::HBITMAP Ours(::HBITMAP handle) { return reinterpret_cast<os::HBITMAP>(handle); }
os::HPALETTE Ours(::HPALETTE handle) { return reinterpret_cast<os::HPALETTE>(handle); }
os::HMETAFILE Ours(::HMETAFILE handle) { return reinterpret_cast<os::HMETAFILE>(handle); }

}  // namespace

os::HBITMAP WindowsGraphics::CreateDIBSection(os::HDC context, const os::BITMAPINFO* info,
                                              std::uint32_t usage, void** bits, void* section,
                                              std::uint32_t offset) {
  return Ours(::CreateDIBSection(System(context), reinterpret_cast<const ::BITMAPINFO*>(info),
                                 usage, bits, section, offset));
}

os::HPALETTE WindowsGraphics::CreatePalette(const os::LOGPALETTE* palette) {
  return Ours(::CreatePalette(reinterpret_cast<const ::LOGPALETTE*>(palette)));
}

os::HDC WindowsGraphics::CreateMetaFileW(const wchar_t* path) {
  return Ours(::CreateMetaFileW(path));
}

os::HDC WindowsGraphics::GetDC(void* window) { return Ours(::GetDC(static_cast<HWND>(window))); }

int WindowsGraphics::ReleaseDC(void* window, os::HDC context) {
  return ::ReleaseDC(static_cast<HWND>(window), System(context));
}

os::HDC WindowsGraphics::CreateCompatibleDC(os::HDC context) {
  return Ours(::CreateCompatibleDC(System(context)));
}

os::HGDIOBJ WindowsGraphics::SelectObject(os::HDC context, os::HGDIOBJ object) {
  return ::SelectObject(System(context), object);
}

int WindowsGraphics::GetMapMode(os::HDC context) { return ::GetMapMode(System(context)); }

int WindowsGraphics::SetMapMode(os::HDC context, int mode) {
  return ::SetMapMode(System(context), mode);
}

int WindowsGraphics::GetObjectW(os::HGDIOBJ object, int size, void* buffer) {
  return ::GetObjectW(object, size, buffer);
}

int WindowsGraphics::DPtoLP(os::HDC context, os::POINT* points, int count) {
  return ::DPtoLP(System(context), reinterpret_cast<::POINT*>(points), count);
}

os::HPALETTE WindowsGraphics::SelectPalette(os::HDC context, os::HPALETTE palette,
                                            int forceBackground) {
  return Ours(::SelectPalette(System(context), System(palette), forceBackground));
}

std::uint32_t WindowsGraphics::RealizePalette(os::HDC context) {
  return ::RealizePalette(System(context));
}

int WindowsGraphics::BitBlt(os::HDC target, int x, int y, int width, int height, os::HDC source,
                            int sourceX, int sourceY, std::uint32_t operation) {
  return ::BitBlt(System(target), x, y, width, height, System(source), sourceX, sourceY, operation);
}

int WindowsGraphics::DeleteDC(os::HDC context) { return ::DeleteDC(System(context)); }

os::HMETAFILE WindowsGraphics::CloseMetaFile(os::HDC context) {
  return Ours(::CloseMetaFile(System(context)));
}

std::uint32_t WindowsGraphics::GetMetaFileBitsEx(os::HMETAFILE metafile, std::uint32_t size,
                                                 void* buffer) {
  return ::GetMetaFileBitsEx(System(metafile), size, buffer);
}

int WindowsGraphics::DeleteMetaFile(os::HMETAFILE metafile) {
  return ::DeleteMetaFile(System(metafile));
}

int WindowsGraphics::DeleteObject(os::HGDIOBJ object) { return ::DeleteObject(object); }

}  // namespace zdx
