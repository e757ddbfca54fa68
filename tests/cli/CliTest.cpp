#include "cli/CliTest.h"

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace zdx_test {

CliTest::CliTest() {
  std::string pattern = (std::filesystem::temp_directory_path() / "zdx-cli-XXXXXX").string();
  if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no folder for the test");
  folder_ = pattern;
}

CliTest::~CliTest() {
  std::error_code ignored;
  std::filesystem::remove_all(folder_, ignored);
}

void CliTest::Write(const std::string& name, const std::string& bytes) const {
  std::ofstream file(folder_ / name, std::ios::binary);
  file << bytes;
  if (!file.flush()) throw std::runtime_error("can't write " + name);
}

Outcome CliTest::Zdx(std::vector<std::string> arguments, OutputTo output) const {
  return RunCommand({ZDX_PROGRAM, std::move(arguments), {}, folder_, output});
}

Outcome CliTest::ZdxWith(std::vector<std::string> environment,
                         std::vector<std::string> arguments) const {
  return RunCommand(
      {ZDX_PROGRAM, std::move(arguments), std::move(environment), folder_, OutputTo::kCapture});
}

std::vector<nlohmann::json> Documents(const std::string& output) {
  std::vector<nlohmann::json> documents;
  std::istringstream lines(output);
  for (std::string line; std::getline(lines, line);) {
    documents.push_back(nlohmann::json::parse(line, nullptr, false));
    EXPECT_TRUE(documents.back().is_object()) << line;
  }
  return documents;
}

std::vector<std::string> Names(const nlohmann::json& document) {
  std::vector<std::string> names;
  for (const nlohmann::json& property : document.at("properties")) {
    names.push_back(property.at("name").get<std::string>());
  }
  return names;
}

}  // namespace zdx_test
