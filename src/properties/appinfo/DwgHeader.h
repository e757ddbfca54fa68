// Where a DWG file's header says that its application-information block is.
#pragma once

#include <cstdint>
#include <string>

namespace ZDXEngine {

// What a file's version magic says.  Only the last two kinds have a block; later versions of the
// format are none of these.
enum DwgHeaderKind : std::int32_t {
  kDwgHeaderNone = 0,
  kDwgHeader1012 = 1,
  kDwgHeader1014 = 2,
  kDwgHeader1015 = 3,
  kDwgHeader1018 = 4,
  kDwgHeader1021 = 5,
};

// The kind of the file at `path`; kDwgHeaderNone too if it can't be read.  `offset` is where to
// look for the block from, in bytes from the file's begin, and 0 if the kind has none.
DwgHeaderKind LocateAppInfo(const std::wstring& path, std::uint32_t& offset);

}  // namespace ZDXEngine
