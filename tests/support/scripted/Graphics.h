// The graphics of a scripted world: handles that are counted, and nothing behind them.
#pragma once

#include <deque>
#include <string>

#include "platform/os/Graphics.h"
#include "support/scripted/CallLog.h"
#include "support/scripted/Ledger.h"

namespace scripted {

// Handles are told by what they are: "metafile context", "memory context", "screen", "bitmap",
// "palette", "metafile".  Each is on the ledger until it is given back; one that is used afterwards
// is noted as misuse.  A script makes a call give null or 0.
class Graphics : public os::GraphicsProvider {
 public:
  Graphics(CallLog& calls, Ledger& ledger) : calls_(calls), ledger_(ledger) {}

  // What GetObjectW tells of any bitmap.
  std::int32_t width = 100;
  std::int32_t height = 50;
  // What GetMapMode tells of a metafile context.
  int mapMode = os::kMapModeText;
  // How pixels become logical units: multiplied on a metafile context, moved on any other.
  std::int32_t unitsPerPixel = 1;
  os::POINT origin = {0, 0};
  // What every metafile holds, and its size where that is told otherwise.
  std::string metafileBytes = "metafile";
  std::uint32_t toldSize = 0;

  // Handles as if the drawing library had made them.
  os::HBITMAP NewBitmap();
  os::HPALETTE NewPalette();

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
  // A bitmap that is still selected is noted as misuse.
  int DeleteObject(os::HGDIOBJ object) override;

 private:
  struct Thing {
    std::string label;
    void* selected = nullptr;
  };

  void* New(std::string label);
  // "null", or the thing's words; one that is gone is noted as misuse.
  std::string Words(const void* thing, const char* operation);
  // Takes it off the ledger; 0 for null, as the systems do.
  int GiveBack(void* thing);

  CallLog& calls_;
  Ledger& ledger_;
  std::deque<Thing> things_;
  std::string rows_;
};

}  // namespace scripted
