// The words of a command line on their way through the parser, and the options that commands share.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "CommandLine.h"
#include "OutputFormat.h"

namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace zdx {

// The parser reads some words in ways of its own, which may be names.  A mark makes it leave them
// alone; what comes back from the parser loses it again.
std::string Marked(std::string_view word);
std::string Unmarked(std::string word);

// Adds an option for the form of what is told; `word` is one of `forms` then.
void AddOutputFormat(CLI::App& command, std::string& word,
                     const std::vector<std::string>& forms = {"text", "json"});
OutputFormat OutputFormatOf(const std::string& word);

// Adds the drawings, at least one.
CLI::Option* AddFiles(CLI::App& command, std::vector<std::string>& words);
// The drawings that such words stand for.
std::vector<std::string> FilesOf(const std::vector<std::string>& words);

// Of commands that tell each file, one after the other.
extern const char* const kExitCodesOfFiles;

// `sentence` may quote any bytes of the command line.
WrongUsage Refusal(std::string sentence);

}  // namespace zdx
