#include "interface/BlocksSpec.h"

namespace zdx_test {
namespace {

using drawing::AttributeSpec;
using drawing::EntitySpec;

EntitySpec At(const char* handle, EntitySpec entity) {
  entity.handle = handle;
  return entity;
}

drawing::BlockSpec Sign() {
  return {.name = "Sign",
          .definitions =
              {{.tag = "NO", .value = "0", .prompt = "Number?"},
               {.tag = "KIND", .value = "metal", .prompt = "Kind?", .flags = drawing::kConstant},
               {.tag = "NAME", .value = "none"},
               {.tag = "NOTE", .value = kNote, .prompt = "Note?", .multiLine = true}},
          .entities = {drawing::Line("0", {}, {1, 1})}};
}

drawing::BlockSpec Copy(const char* name, const char* width) {
  drawing::BlockSpec copy = {.name = name, .copyOf = "Gate"};
  copy.definitions = {{.tag = "WIDTH", .value = width, .prompt = "Width?"}};
  return copy;
}

}  // namespace

drawing::DrawingSpec SpecWithBlocks() {
  drawing::DrawingSpec spec;
  spec.definitions = {{.tag = "LOOSE", .value = "in no block", .prompt = "Loose?"}};
  spec.blocks = {Sign(),
                 {.name = "Frame", .entities = {drawing::Circle("0", {}, 1.0)}},
                 {.name = "Gate", .isDynamic = true},
                 Copy("*U7", "90"),
                 Copy("*U8", "100"),
                 {.name = "Empty"}};
  spec.blocks[2].definitions = {{.tag = "WIDTH", .value = "80", .prompt = "Width?"}};
  spec.entities = {
      drawing::Line("0", {}, {1, 1}),
      At("F01",
         drawing::Insert(
             "Sign",
             {{.tag = "NO", .value = "1"},
              {.tag = "NAME", .value = "Überholverbot"},
              {.tag = "NOTE", .value = kNote, .multiLine = true, .plainValue = "not this one"}})),
      At("F02", drawing::Insert("SIGN", {}, {.columns = 2, .rows = 3, .columnSpacing = 5.0})),
      At("F03", drawing::Insert("*U7", {{.tag = "WIDTH", .value = "91"}})),
      At("F04", drawing::Insert("*U8", {{.tag = "WIDTH", .value = "101"}})),
      At("F05", drawing::Insert("Frame"))};
  spec.layouts = {{"Sheet 1", {At("F06", drawing::Insert("Sign", {{.tag = "NO", .value = "2"}}))}},
                  {"Sheet 2", {At("F07", drawing::Insert("Sign", {{.tag = "NO", .value = "3"}}))}}};
  spec.blocks[1].entities.push_back(
      At("F08", drawing::Insert("sign", {{.tag = "NO", .value = "4"}})));
  return spec;
}

}  // namespace zdx_test
