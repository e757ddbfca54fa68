// Where the files are that drawings name.
#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "backends/walker/Surroundings.h"

namespace zdx::walker {

// Whether `path` is an address ("https://..."), which no file system has.
bool IsAddress(const std::wstring& path);
// The names under which the host is asked for a reference's file, in order.
std::vector<std::wstring> NamesToTry(model::FileUse use, const std::wstring& path);

// Asks the host once for each name that drawings of one folder ask for in one walk: the same fonts
// are named by most of them, and to find nothing takes long.
class Search {
 public:
  explicit Search(Surroundings& surroundings) : surroundings_(surroundings) {}

  // The path of the file of a reference that the drawing `asking`, read from the file `asker`,
  // makes; empty if it isn't found.
  std::wstring Look(const model::FileReference& reference, const std::wstring& asker,
                    ZnDbDatabase* asking);

 private:
  Surroundings& surroundings_;
  std::unordered_map<std::wstring, std::wstring> known_;
};

}  // namespace zdx::walker
