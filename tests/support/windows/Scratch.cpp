#include "support/Scratch.h"

namespace zdx_test {

bool MakePipe(const std::filesystem::path& /*path*/) { return false; }

}  // namespace zdx_test
