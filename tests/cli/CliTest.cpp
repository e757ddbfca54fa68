#include "cli/CliTest.h"

#include <sstream>
#include <utility>

namespace zdx_test {

void CliTest::Write(const std::string& name, const std::string& bytes) const {
  folder_.Write(name, bytes);
}

Outcome CliTest::Zdx(std::vector<std::string> arguments, OutputTo output) const {
  return RunCommand({ZDX_PROGRAM, std::move(arguments), {}, Folder(), output});
}

Outcome CliTest::ZdxWith(std::vector<std::string> environment,
                         std::vector<std::string> arguments) const {
  return RunCommand(
      {ZDX_PROGRAM, std::move(arguments), std::move(environment), Folder(), OutputTo::kCapture});
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
