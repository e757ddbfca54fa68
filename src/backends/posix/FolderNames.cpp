#include "backends/posix/FolderNames.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <ctime>
#include <functional>
#include <list>

#include "ZDXEngine/Utf8.h"
#include "base/CaseFold.h"

namespace zdx {
namespace {

// A drawing may name thousands of files that aren't there, each of which is looked for in the same
// few folders: they are read once, until they change.
constexpr std::size_t kMostFolders = 64;
constexpr std::size_t kMostNames = 1 << 20;
// A change as long ago as that, in seconds, shows in the folder's time: by clocks that tell parts
// of a second, and by those that don't.
constexpr double kSettledAfter = 0.1;
constexpr double kSettledAfterByCoarseClock = 3.0;

struct Row {
  std::size_t hash;
  std::string name;
};

// One folder's names.
struct Names {
  std::string folder;
  struct stat status = {};
  bool isSettled = false;
  std::vector<Row> rows;
};

std::size_t FoldedHash(std::wstring_view name) { return std::hash<std::wstring>()(FoldCase(name)); }

bool IsSame(const timespec& a, const timespec& b) {
  return a.tv_sec == b.tv_sec && a.tv_nsec == b.tv_nsec;
}

double SecondsFrom(const timespec& begin, const timespec& end) {
  return static_cast<double>(end.tv_sec - begin.tv_sec) +
         static_cast<double>(end.tv_nsec - begin.tv_nsec) * 1e-9;
}

// Whether names that are read now can't change any more without the folder's time telling it.
bool IsSettled(const timespec& changed) {
  timespec now = {};
  clock_gettime(CLOCK_REALTIME, &now);
  return SecondsFrom(changed, now) >
         (changed.tv_nsec == 0 ? kSettledAfterByCoarseClock : kSettledAfter);
}

bool IsUnchanged(const Names& names, const struct stat& now) {
  return names.isSettled && names.status.st_dev == now.st_dev &&
         names.status.st_ino == now.st_ino && IsSame(names.status.st_mtim, now.st_mtim) &&
         IsSame(names.status.st_ctim, now.st_ctim);
}

// Owns a folder that is being read.
class Reading {
 public:
  explicit Reading(const std::string& folder)
      : folder_(OpenFolder(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NONBLOCK))) {
  }
  ~Reading() {
    if (folder_ != nullptr) closedir(folder_);
  }
  Reading(const Reading&) = delete;
  Reading& operator=(const Reading&) = delete;

  bool Status(struct stat& status) const {
    return folder_ != nullptr && fstat(dirfd(folder_), &status) == 0;
  }
  // Null behind the last name.
  const char* Next() {
    const dirent* const entry = readdir(folder_);
    return entry == nullptr ? nullptr : entry->d_name;
  }

 private:
  static DIR* OpenFolder(int descriptor) {
    DIR* const folder = descriptor < 0 ? nullptr : fdopendir(descriptor);
    if (folder == nullptr && descriptor >= 0) close(descriptor);
    return folder;
  }

  DIR* folder_;
};

Names Read(const std::string& folder) {
  Names names;
  names.folder = folder;
  Reading reading(folder);
  if (!reading.Status(names.status)) return names;
  names.isSettled = IsSettled(names.status.st_mtim);
  while (const char* const name = reading.Next()) {
    names.rows.push_back({FoldedHash(ZDXEngine::WideFromUtf8(name)), name});
  }
  std::sort(names.rows.begin(), names.rows.end(),
            [](const Row& a, const Row& b) { return a.hash < b.hash; });
  return names;
}

// The folders that were read last.
class Folders {
 public:
  const Names& Get(const std::string& folder) {
    struct stat now = {};
    const bool isThere = stat(folder.c_str(), &now) == 0;
    const auto known = std::find_if(known_.begin(), known_.end(),
                                    [&](const Names& names) { return names.folder == folder; });
    if (known != known_.end()) {
      if (isThere && IsUnchanged(*known, now)) return *known;
      count_ -= known->rows.size();
      known_.erase(known);
    }
    known_.push_front(Read(folder));
    count_ += known_.front().rows.size();
    while (known_.size() > 1 && (known_.size() > kMostFolders || count_ > kMostNames)) {
      count_ -= known_.back().rows.size();
      known_.pop_back();
    }
    return known_.front();
  }

 private:
  std::list<Names> known_;
  std::size_t count_ = 0;
};

}  // namespace

std::vector<std::string> NamesIgnoringCase(const std::string& folder, std::wstring_view name) {
  static Folders folders;
  const Names& names = folders.Get(folder);
  const std::size_t hash = FoldedHash(name);
  auto row = std::lower_bound(names.rows.begin(), names.rows.end(), hash,
                              [](const Row& a, std::size_t wanted) { return a.hash < wanted; });
  std::vector<std::string> found;
  for (; row != names.rows.end() && row->hash == hash; ++row) {
    if (CompareIgnoringCase(ZDXEngine::WideFromUtf8(row->name), name) == 0) {
      found.push_back(row->name);
    }
  }
  std::sort(found.begin(), found.end());
  return found;
}

}  // namespace zdx
