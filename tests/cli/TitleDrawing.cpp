#include "cli/TitleDrawing.h"

namespace zdx_test {

drawing::DrawingSpec TitleDrawing() {
  drawing::DrawingSpec spec;
  spec.blocks = {
      {.name = "TITLE",
       .definitions = {{.tag = "SCALE", .value = "1:1", .prompt = "Scale?"},
                       {.tag = "NO"},
                       {.tag = "NOTES", .prompt = "Notes?", .multiLine = true},
                       {.tag = "OFFICE", .value = "Drawing office", .flags = drawing::kConstant}}}};
  spec.layouts = {
      {"Sheet",
       {drawing::Insert("TITLE", {{.tag = "SCALE", .value = "1:50"},
                                  {.tag = "NO", .value = "17"},
                                  {.tag = "NOTES", .value = "one\ntwo", .multiLine = true}})}}};
  return spec;
}

void AddBlock(drawing::DrawingSpec& spec, const std::string& name) {
  spec.blocks.push_back({.name = name, .definitions = {{.tag = "TAG", .prompt = "Prompt"}}});
  spec.entities.push_back(drawing::Insert(name, {{.tag = "TAG", .value = "x"}}));
}

}  // namespace zdx_test
