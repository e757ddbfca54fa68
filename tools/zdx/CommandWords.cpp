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

struct Form {
  std::string_view word;
  std::string_view meaning;
  OutputFormat format;
};

constexpr Form kForms[] = {{"text", "for people", OutputFormat::kText},
                           {"json", "for programs", OutputFormat::kJson},
                           {"dot", "for Graphviz", OutputFormat::kDot},
                           {"html", "a page with the graph", OutputFormat::kHtml}};

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

void AddOutputFormat(CLI::App& command, std::string& word, const std::vector<std::string>& forms) {
  std::string meaning;
  for (const Form& form : kForms) {
    if (std::find(forms.begin(), forms.end(), form.word) == forms.end()) continue;
    meaning.append(meaning.empty() ? "" : ", ").append(form.word).append(" ").append(form.meaning);
  }
  command.add_option("-o,--output", word, meaning + "; default text")
      ->check(CLI::IsMember(forms))
      ->type_name("FORMAT");
}

OutputFormat OutputFormatOf(const std::string& word) {
  const auto* const form = std::find_if(std::begin(kForms), std::end(kForms),
                                        [&](const Form& known) { return known.word == word; });
  return form == std::end(kForms) ? OutputFormat::kText : form->format;
}

CLI::Option* AddFiles(CLI::App& command, std::vector<std::string>& words) {
  return command.add_option("FILE", words, "drawings; names that begin with '-' go after --")
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
