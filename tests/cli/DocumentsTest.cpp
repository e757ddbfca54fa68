// What the documents show is so.
#include <gmock/gmock.h>

#include <fstream>
#include <iterator>
#include <optional>
#include <sstream>

#include "cli/CliTest.h"

namespace zdx_test {

namespace {

const std::filesystem::path kSourceFolder = ZDX_SOURCE_DIR;

std::string Contents(const std::filesystem::path& file) {
  std::ifstream stream(kSourceFolder / file, std::ios::binary);
  EXPECT_TRUE(stream.is_open()) << file;
  return {std::istreambuf_iterator<char>(stream), {}};
}

struct Example {
  Command command;
  std::string shown;
};

// The command in `line` if it runs a program of ours, which all stand in one folder.
std::optional<Command> OwnCommand(const std::string& line) {
  std::istringstream words(line);
  std::filesystem::path program;
  words >> program;
  auto built = std::filesystem::path(ZDX_PROGRAM).parent_path() / program.filename();
  built += std::filesystem::path(ZDX_PROGRAM).extension();
  if (!std::filesystem::exists(built)) return std::nullopt;
  Command command;
  command.program = built;
  command.arguments.assign(std::istream_iterator<std::string>(words), {});
  command.workingFolder = kSourceFolder;
  return command;
}

// Our commands in the document's console blocks, and what stands below each.
std::vector<Example> ExamplesIn(const std::string& document) {
  std::istringstream lines(Contents(document));
  std::vector<Example> examples;
  bool inConsole = false;
  bool inExample = false;
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with("```")) {
      inConsole = line == "```console";
      inExample = false;
    } else if (inConsole && line.starts_with("$ ")) {
      const std::optional<Command> command = OwnCommand(line.substr(2));
      inExample = command.has_value();
      if (command) examples.push_back({*command, {}});
    } else if (inExample) {
      examples.back().shown += line + "\n";
    }
  }
  return examples;
}

// `output` as a program shows it that writes lines of its system's form, as the example does.
std::string AsText(std::string output) {
  if (kOnWindows) std::erase(output, '\r');
  return output;
}

struct Document {
  const char* name;
  std::size_t examples;

  friend void PrintTo(const Document& document, std::ostream* out) { *out << document.name; }
};

class DocumentExamples : public ::testing::TestWithParam<Document> {};

TEST_P(DocumentExamples, GiveWhatIsShown) {
  const std::vector<Example> examples = ExamplesIn(GetParam().name);
  EXPECT_EQ(examples.size(), GetParam().examples);
  for (const Example& example : examples) {
    const Outcome outcome = RunCommand(example.command);
    EXPECT_EQ(AsText(outcome.out + outcome.err), example.shown);
  }
}

INSTANTIATE_TEST_SUITE_P(Each, DocumentExamples,
                         ::testing::Values(Document{"README.md", 6}, Document{"docs/cli.md", 12},
                                           Document{"docs/json.md", 7}),
                         [](const auto& document) {
                           std::string name = document.param.name;
                           std::erase_if(name, [](char c) { return c == '/' || c == '.'; });
                           return name;
                         });

TEST(Readme, ShowsTheProgramThatIsBuilt) {
  EXPECT_THAT(
      Contents("README.md"),
      ::testing::HasSubstr("```cpp\n" + Contents("examples/read_properties.cpp") + "```\n"));
}

}  // namespace

}  // namespace zdx_test
