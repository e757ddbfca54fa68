// The form of a Windows metafile, shared by those who write and read one.
//
//   OFFSET  SIZE  MEANING
//      0      2   type: 1, in memory
//      2      2   words of this header: 9
//      4      2   version
//      6      4   words of the whole
//     10      2   objects that records make
//     12      4   words of the largest record
//     16      2   0
//
// Little-endian; a word has two bytes.  Records follow: their words in 4 bytes, their function in
// 2, and what it needs.  The last one is kEndOfMetafile.
#pragma once

#include <cstddef>
#include <cstdint>

namespace zdx {

inline constexpr std::uint16_t kMemoryMetafile = 1;
inline constexpr std::uint16_t kMetafileVersion = 0x0300;
inline constexpr std::size_t kMetafileHeaderSize = 2 + 2 + 2 + 4 + 2 + 4 + 2;
static_assert(kMetafileHeaderSize == 18);
inline constexpr std::size_t kRecordHeadSize = 4 + 2;

// Functions of records.
inline constexpr std::uint16_t kEndOfMetafile = 0x0000;
inline constexpr std::uint16_t kRealizePalette = 0x0035;
inline constexpr std::uint16_t kCreatePalette = 0x00F7;
inline constexpr std::uint16_t kSelectPalette = 0x0234;
inline constexpr std::uint16_t kBitBlock = 0x0940;
inline constexpr std::uint16_t kStretchedBitBlock = 0x0B41;
inline constexpr std::uint16_t kStretchedBitmap = 0x0F43;

// What stands between a record's head and its bitmap: the operation, and places and sizes of two
// bytes each; the last one has the use of its colours as well.
inline constexpr std::size_t kBitBlockFields = 4 + 6 * 2;
inline constexpr std::size_t kStretchedBitBlockFields = 4 + 8 * 2;
inline constexpr std::size_t kStretchedBitmapFields = 4 + 2 + 8 * 2;

}  // namespace zdx
