#include "support/Scratch.h"

#include <sys/stat.h>

namespace zdx_test {

bool MakePipe(const std::filesystem::path& path) { return mkfifo(path.c_str(), 0600) == 0; }

}  // namespace zdx_test
