// Bitmaps, palettes and metafiles on POSIX systems, which have none of their own.
#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "backends/posix/graphics/Bitmap.h"
#include "backends/posix/graphics/MetafileRecorder.h"
#include "platform/os/Graphics.h"

namespace zdx {

// Every handle is looked up before it is used: null, a foreign one and one that has ended are
// refused.  A logical unit is always a pixel, so other map modes are refused; so is a transfer to
// anything but a metafile.
//
// A new memory context holds the stock bitmap of one pixel, and a new metafile the stock palette,
// as which the first selection tells them; they can be selected again, and aren't deleted.
class PosixGraphics : public os::GraphicsProvider {
 public:
  // A metafile of more bytes than `mostBytes` isn't made.
  explicit PosixGraphics(std::size_t mostBytes = graphics::MetafileRecorder::kMostBytes);

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

 private:
  using Palette = std::vector<os::PALETTEENTRY>;

  struct Context {
    enum class Kind { kScreen, kMemory, kMetafile };
    Kind kind;
    // Of a memory context.
    graphics::Bitmap* bitmap;
    // Of a metafile.
    const Palette* palette;
    graphics::MetafileRecorder recorder;
  };

  // What lives, by the handle, which is its address.
  template <class Thing>
  using Table = std::map<const void*, std::unique_ptr<Thing>>;

  template <class Thing>
  static Thing* Find(const Table<Thing>& table, const void* handle);
  Context* FindContext(os::HDC handle, Context::Kind kind) const;
  os::HDC AddContext(Context::Kind kind);
  bool IsSelected(const graphics::Bitmap* bitmap) const;

  std::size_t mostBytes_;
  Table<Context> contexts_;
  Table<graphics::Bitmap> bitmaps_;
  Table<Palette> palettes_;
  Table<std::string> metafiles_;
  graphics::Bitmap* stockBitmap_ = nullptr;
  Palette* stockPalette_ = nullptr;
};

}  // namespace zdx
