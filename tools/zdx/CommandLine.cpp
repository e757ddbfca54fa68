#include "CommandLine.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iterator>
#include <string_view>
#include <vector>

#include "ReadableText.h"
#include "SystemNames.h"
#include "ZDXEngine/Utf8.h"

namespace zdx {

namespace {

constexpr const char* kExitCodes =
    "Exit codes: 0 all files were read, 2 a file failed (the others were told), 64 wrong usage,\n"
    "74 the output couldn't be written.";
constexpr const char* kExitCodesOfThumb =
    "Exit codes: 0 the picture was written, 1 the drawing has none, 2 the drawing couldn't be "
    "read,\n"
    "64 wrong usage, 74 the picture couldn't be written.";

// The parser reads "[a,b]", "{}", "++" and an empty argument in ways of its own, but any of them
// may be a file's name.  No argument of a process can hold this character, and before such a name
// it makes the parser leave it alone.
constexpr char kMark = '\0';

std::string Marked(std::string_view argument) {
  const bool special =
      argument.empty() || std::string_view("[{+%").find(argument[0]) != std::string_view::npos;
  return special ? kMark + std::string(argument) : std::string(argument);
}

std::string Unmarked(std::string argument) {
  if (!argument.empty() && argument[0] == kMark) argument.erase(0, 1);
  return argument;
}

// The parser takes them from the back.
std::vector<std::string> ReversedArguments(const std::vector<std::string>& arguments) {
  std::vector<std::string> reversed;
  std::transform(arguments.rbegin(), arguments.rend(), std::back_inserter(reversed), Marked);
  return reversed;
}

std::string CheckSelection(const std::string& list) {
  std::string unknown;
  if (ParseSelection(Unmarked(list), unknown)) return {};
  return "'" + unknown + "' isn't one of " + SelectionNames();
}

std::string CheckPictureName(const std::string& name) {
  if (PictureKindOf(name)) return {};
  return "'" + Unmarked(name) + "' doesn't end in .png, .bmp or .wmf";
}

// The words of the command line, before they are understood.
struct Words {
  std::string format = "text";
  std::string selection = "all";
  std::vector<std::string> files;
  std::string file;
  std::string picture;
};

void AddInfo(CLI::App& app, Words& words) {
  CLI::App* const info = app.add_subcommand("info", "Tells the properties of drawings.");
  info->add_option("-o,--output", words.format, "text for people, json for programs; default text")
      ->check(CLI::IsMember({"text", "json"}))
      ->type_name("FORMAT");
  info->add_option("--select", words.selection,
                   "what to tell: names of the list below, separated by commas; default all")
      ->check(CheckSelection)
      ->type_name("LIST");
  info->add_option("FILE", words.files, "drawings; names that begin with '-' go after --")
      ->required()
      ->type_name("");
  info->footer("LIST: " + SelectionNames() + "\n\n" + kExitCodes);
}

CLI::App* AddThumb(CLI::App& app, Words& words) {
  CLI::App* const thumb =
      app.add_subcommand("thumb", "Writes the preview picture of a drawing to a file.");
  thumb
      ->add_option("-O,--output", words.picture,
                   "where to write; the name ends in .png, .bmp or .wmf")
      ->required()
      ->check(CheckPictureName)
      ->type_name("OUT");
  thumb->add_option("FILE", words.file, "a drawing; a name that begins with '-' goes after --")
      ->required()
      ->type_name("");
  thumb->footer(kExitCodesOfThumb);
  return thumb;
}

// `sentence` may quote any bytes of the command line.
WrongUsage Refusal(std::string sentence) {
  std::erase(sentence, kMark);
  return {"zdx: " + ReadableText(ZDXEngine::WideFromUtf8(sentence)) +
          "\nRun 'zdx --help' or 'zdx COMMAND --help' to see what can be asked for.\n"};
}

Request UnderstoodThumb(const Words& words) {
  const std::vector<std::string> files = FilesMeantBy(Unmarked(words.file));
  if (files.size() > 1) return Refusal("FILE: '" + words.file + "' stands for several files");
  return ThumbOptions{files.front(), Unmarked(words.picture),
                      PictureKindOf(words.picture).value_or(PictureKind::kPng)};
}

InfoOptions UnderstoodInfo(const Words& words) {
  InfoOptions options;
  options.format = words.format == "json" ? OutputFormat::kJson : OutputFormat::kText;
  std::string unknown;
  options.selection = ParseSelection(words.selection, unknown).value_or(options.selection);
  for (const std::string& word : words.files) {
    std::ranges::move(FilesMeantBy(Unmarked(word)), std::back_inserter(options.files));
  }
  return options;
}

}  // namespace

Request ParseCommandLine(const std::vector<std::string>& arguments) {
  CLI::App app("Tells what CAD drawings say about themselves.", "zdx");
  // A name may begin with a slash on every system.
  app.allow_windows_style_options(false);
  app.set_version_flag("--version", "zdx " ZDX_VERSION);
  // Not more than one, or a file with a command's name would count as a second command.
  app.require_subcommand(0, 1);
  app.footer("Run 'zdx COMMAND --help' for the options of a command.");
  Words words;
  AddInfo(app, words);
  const CLI::App* const thumb = AddThumb(app, words);
  try {
    app.parse(ReversedArguments(arguments));
  } catch (const CLI::CallForHelp&) {
    return PrintAndLeave{app.help()};
  } catch (const CLI::CallForVersion& version) {
    return PrintAndLeave{std::string(version.what()) + "\n"};
  } catch (const CLI::ParseError& error) {
    return Refusal(error.what());
  }
  if (app.get_subcommands().empty()) return WrongUsage{app.help()};
  if (app.got_subcommand(thumb)) return UnderstoodThumb(words);
  return UnderstoodInfo(words);
}

}  // namespace zdx
