#include <CLI/CLI.hpp>

#include "CommandUsage.h"
#include "CommandWords.h"
#include "SystemNames.h"

namespace zdx {

namespace {

constexpr const char* kExitCodesOfThumb =
    "Exit codes: 0 the picture was written, 1 the drawing has none, 2 the drawing couldn't be "
    "read,\n"
    "64 wrong usage, 74 the picture couldn't be written.";

std::string CheckPictureName(const std::string& name) {
  if (PictureKindOf(name)) return {};
  return "'" + Unmarked(name) + "' doesn't end in .png, .bmp or .wmf";
}

class Thumb : public CommandUsage {
 public:
  explicit Thumb(CLI::App* command) : CommandUsage(command) {
    command
        ->add_option("-O,--output", picture_, "where to write; the name ends in .png, .bmp or .wmf")
        ->required()
        ->check(CheckPictureName)
        ->type_name("OUT");
    command->add_option("FILE", file_, "a drawing; a name that begins with '-' goes after --")
        ->required()
        ->type_name("");
    command->footer(kExitCodesOfThumb);
  }

  Request Understood() const override {
    const std::vector<std::string> files = FilesMeantBy(Unmarked(file_));
    if (files.size() > 1) return Refusal("FILE: '" + file_ + "' stands for several files");
    return ThumbOptions{files.front(), Unmarked(picture_),
                        PictureKindOf(picture_).value_or(PictureKind::kPng)};
  }

 private:
  std::string file_;
  std::string picture_;
};

}  // namespace

std::unique_ptr<CommandUsage> ThumbUsage(CLI::App& app) {
  return std::make_unique<Thumb>(
      app.add_subcommand("thumb", "Writes the preview picture of a drawing to a file."));
}

}  // namespace zdx
