// Bitmaps, palettes, device contexts and metafiles, with Windows' names and meanings.
//
// Only what it takes to turn a bitmap into a metafile that draws it.
#pragma once

#include <cstdint>

namespace os {

using HDC = struct DeviceContextHandle*;
using HBITMAP = struct BitmapHandle*;
using HPALETTE = struct PaletteHandle*;
using HMETAFILE = struct MetafileHandle*;
// Any bitmap or palette.
using HGDIOBJ = void*;

struct POINT {
  std::int32_t x;
  std::int32_t y;
};

// What GetObjectW tells of a bitmap: 32 bytes on 64-bit systems.
struct BITMAP {
  std::int32_t bmType;
  std::int32_t bmWidth;
  std::int32_t bmHeight;
  std::int32_t bmWidthBytes;
  std::uint16_t bmPlanes;
  std::uint16_t bmBitsPixel;
  void* bmBits;
};
static_assert(sizeof(void*) != 8 || sizeof(BITMAP) == 32);

// The head of a device-independent bitmap.  A positive height means rows from the bottom up.
struct BITMAPINFOHEADER {
  std::uint32_t biSize;
  std::int32_t biWidth;
  std::int32_t biHeight;
  std::uint16_t biPlanes;
  std::uint16_t biBitCount;
  std::uint32_t biCompression;
  std::uint32_t biSizeImage;
  std::int32_t biXPelsPerMeter;
  std::int32_t biYPelsPerMeter;
  std::uint32_t biClrUsed;
  std::uint32_t biClrImportant;
};
static_assert(sizeof(BITMAPINFOHEADER) == 40);

struct RGBQUAD {
  std::uint8_t rgbBlue;
  std::uint8_t rgbGreen;
  std::uint8_t rgbRed;
  std::uint8_t rgbReserved;
};

// The head with what follows it in memory: colour masks if the compression is kBitFields, else the
// colour table of 1-, 4- and 8-bit bitmaps.
struct BITMAPINFO {
  BITMAPINFOHEADER bmiHeader;
  RGBQUAD bmiColors[1];
};

struct PALETTEENTRY {
  std::uint8_t peRed;
  std::uint8_t peGreen;
  std::uint8_t peBlue;
  std::uint8_t peFlags;
};

// `palNumEntries` entries stand in memory from `palPalEntry` on; the version is kPaletteVersion.
struct LOGPALETTE {
  std::uint16_t palVersion;
  std::uint16_t palNumEntries;
  PALETTEENTRY palPalEntry[1];
};

inline constexpr std::uint32_t kRgb = 0;        // compression: none
inline constexpr std::uint32_t kBitFields = 3;  // compression: none, with colour masks
inline constexpr std::uint32_t kRgbColors = 0;  // the colour table holds colours
inline constexpr std::uint16_t kPaletteVersion = 0x0300;
inline constexpr std::uint32_t kSourceCopy = 0x00CC0020;
inline constexpr int kMapModeText = 1;  // a logical unit is a pixel: the mode of a new context

// A new bitmap of `info`'s size, with 1, 4, 8, 16, 24 or 32 bits a pixel, and in `bits` the memory
// for its rows, which is the bitmap's own: each row is padded to four bytes, and rows stand as the
// height's sign says.  `context` and `section` are null.  Null on failure.
HBITMAP CreateDIBSection(HDC context, const BITMAPINFO* info, std::uint32_t usage, void** bits,
                         void* section, std::uint32_t offset);
// A new palette; null on failure.
HPALETTE CreatePalette(const LOGPALETTE* palette);

// A context that records a metafile in memory; `path` is null.  Null on failure.
HDC CreateMetaFileW(const wchar_t* path);
// The context of the whole screen; `window` is null.
HDC GetDC(void* window);
int ReleaseDC(void* window, HDC context);
// A context in memory, to select a bitmap into; null on failure.
HDC CreateCompatibleDC(HDC context);
// Makes `object` the one that `context` draws with or on.  The one before, or null on failure.
HGDIOBJ SelectObject(HDC context, HGDIOBJ object);
// The mode by which logical units become pixels; 0 on failure, which a metafile's context may be.
int GetMapMode(HDC context);
// The mode before; 0 on failure.
int SetMapMode(HDC context, int mode);
// Writes the BITMAP of a bitmap to `buffer` and returns its size; 0 on failure.
int GetObjectW(HGDIOBJ object, int size, void* buffer);
// Turns pixels into logical units, in place.  Nonzero on success; on failure, which a metafile's
// context may be, the points stay.
int DPtoLP(HDC context, POINT* points, int count);
// Makes `palette` the context's.  The one before, or null on failure; null is refused.
HPALETTE SelectPalette(HDC context, HPALETTE palette, int forceBackground);
// How many entries of the palette the system took over.  A metafile keeps the call, whether or not
// a palette was selected.
std::uint32_t RealizePalette(HDC context);
// Copies a rectangle of `source`'s bitmap to `target`; a metafile keeps the whole bitmap, and the
// rectangle.  Nonzero on success.
int BitBlt(HDC target, int x, int y, int width, int height, HDC source, int sourceX, int sourceY,
           std::uint32_t operation);
// Ends a context that CreateCompatibleDC made; what was selected lives on.
int DeleteDC(HDC context);
// Ends the recording, and its context.  The metafile, or null on failure.
HMETAFILE CloseMetaFile(HDC context);
// Copies the metafile's bytes, up to `size`, to `buffer`, and returns how many; with a null
// `buffer` the size of them all.  0 on failure.
std::uint32_t GetMetaFileBitsEx(HMETAFILE metafile, std::uint32_t size, void* buffer);
// Each nonzero on success.  Null is refused; a bitmap that is selected may be, or it lives until it
// is selected no longer.
int DeleteMetaFile(HMETAFILE metafile);
int DeleteObject(HGDIOBJ object);

// What stands behind the operations above; each virtual operation is the one of the same name.
class GraphicsProvider {
 public:
  virtual ~GraphicsProvider() = default;
  virtual HBITMAP CreateDIBSection(HDC context, const BITMAPINFO* info, std::uint32_t usage,
                                   void** bits, void* section, std::uint32_t offset) = 0;
  virtual HPALETTE CreatePalette(const LOGPALETTE* palette) = 0;
  virtual HDC CreateMetaFileW(const wchar_t* path) = 0;
  virtual HDC GetDC(void* window) = 0;
  virtual int ReleaseDC(void* window, HDC context) = 0;
  virtual HDC CreateCompatibleDC(HDC context) = 0;
  virtual HGDIOBJ SelectObject(HDC context, HGDIOBJ object) = 0;
  virtual int GetMapMode(HDC context) = 0;
  virtual int SetMapMode(HDC context, int mode) = 0;
  virtual int GetObjectW(HGDIOBJ object, int size, void* buffer) = 0;
  virtual int DPtoLP(HDC context, POINT* points, int count) = 0;
  virtual HPALETTE SelectPalette(HDC context, HPALETTE palette, int forceBackground) = 0;
  virtual std::uint32_t RealizePalette(HDC context) = 0;
  virtual int BitBlt(HDC target, int x, int y, int width, int height, HDC source, int sourceX,
                     int sourceY, std::uint32_t operation) = 0;
  virtual int DeleteDC(HDC context) = 0;
  virtual HMETAFILE CloseMetaFile(HDC context) = 0;
  virtual std::uint32_t GetMetaFileBitsEx(HMETAFILE metafile, std::uint32_t size, void* buffer) = 0;
  virtual int DeleteMetaFile(HMETAFILE metafile) = 0;
  virtual int DeleteObject(HGDIOBJ object) = 0;
};

// As os::InstallProvider.
GraphicsProvider* InstallGraphicsProvider(GraphicsProvider* provider);

}  // namespace os
