#include "references/LibraryFileTypes.h"

#include <algorithm>
#include <iterator>

namespace ZDXEngine {
namespace {

struct FileClass {
  ZnDwgDepends::FileType libraryType;
  FileType type;
  bool repathable;
};

// Clients rely on each row as it stands.
constexpr FileClass kFileClasses[] = {
    {-1, FileType{0}, false}, {0, FileType{1}, true}, {1, FileType{1}, true},
    {2, FileType{2}, true},   {7, FileType{4}, true}, {8, FileType{3}, true},
    {9, kOtherFile, true},    {12, kOtherFile, true}, {14, kOtherFile, true},
};

constexpr FileClass kEveryOther = {0, kOtherFile, false};

const FileClass& RowOf(ZnDwgDepends::FileType type) {
  const FileClass* const row =
      std::find_if(std::begin(kFileClasses), std::end(kFileClasses),
                   [type](const FileClass& candidate) { return candidate.libraryType == type; });
  return row == std::end(kFileClasses) ? kEveryOther : *row;
}

}  // namespace

FileType ClassOfFile(ZnDwgDepends::FileType type) { return RowOf(type).type; }

bool CanBeRepathed(ZnDwgDepends::FileType type) { return RowOf(type).repathable; }

}  // namespace ZDXEngine
