#include "CommandWords.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iterator>

#include "ReadableText.h"
#include "SystemNames.h"
#include "ZDXEngine/Utf8.h"

namespace zdx {

namespace {

// No argument of a process can hold this character.
constexpr char kMark = '\0';

}  // namespace

const char* const kExitCodesOfFiles =
    "Exit codes: 0 all files were read, 2 a file failed (the others were told), 64 wrong usage,\n"
    "74 the output couldn't be written.";

// These are "[a,b]", "{}", "++", "%%" and the empty word.
std::string Marked(std::string_view word) {
  const bool special =
      word.empty() || std::string_view("[{+%").find(word[0]) != std::string_view::npos;
  return special ? kMark + std::string(word) : std::string(word);
}

std::string Unmarked(std::string word) {
  if (!word.empty() && word[0] == kMark) word.erase(0, 1);
  return word;
}

void AddOutputFormat(CLI::App& command, std::string& word) {
  command.add_option("-o,--output", word, "text for people, json for programs; default text")
      ->check(CLI::IsMember({"text", "json"}))
      ->type_name("FORMAT");
}

OutputFormat OutputFormatOf(const std::string& word) {
  return word == "json" ? OutputFormat::kJson : OutputFormat::kText;
}

void AddFiles(CLI::App& command, std::vector<std::string>& words) {
  command.add_option("FILE", words, "drawings; names that begin with '-' go after --")
      ->required()
      ->type_name("");
}

std::vector<std::string> FilesOf(const std::vector<std::string>& words) {
  std::vector<std::string> files;
  for (const std::string& word : words) {
    std::ranges::move(FilesMeantBy(Unmarked(word)), std::back_inserter(files));
  }
  return files;
}

WrongUsage Refusal(std::string sentence) {
  std::erase(sentence, kMark);
  return {"zdx: " + ReadableText(ZDXEngine::WideFromUtf8(sentence)) +
          "\nRun 'zdx --help' or 'zdx COMMAND --help' to see what can be asked for.\n"};
}

}  // namespace zdx
