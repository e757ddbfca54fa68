#include "support/Samples.h"

#include <algorithm>
#include <system_error>

#include "support/Paths.h"

namespace zdx_test {

std::filesystem::path SampleFolder() {
  return std::filesystem::path(ZDX_SOURCE_DIR) / "../shared/samples";
}

std::vector<std::string> SampleNames(const std::string& extension) {
  std::vector<std::string> names;
  std::error_code none;
  for (const auto& entry : std::filesystem::directory_iterator(SampleFolder(), none)) {
    if (entry.path().extension() == extension) names.push_back(BytesOf(entry.path().filename()));
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::filesystem::path TruthOf(const std::string& name) {
  return SampleFolder() / "truth" / (name + ".json");
}

std::string SampleTestName(std::string name) {
  std::replace_if(
      name.begin(), name.end(), [](char c) { return c == '-' || c == '.'; }, '_');
  return name;
}

}  // namespace zdx_test
