// What free records hold.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "formats/dxf/HandmadeDrawing.h"
#include "support/drawing/Tokens.h"

namespace dxf_free_values {
namespace {

using namespace handmade_dxf;
using zdx::model::FreeValue;

Tags FreeRecord(const Tags& body) {
  return Join(
      {{{0, "XRECORD"}, {5, "30"}, {102, "{REACTORS"}, {330, "C"}, {102, "}"}, {330, "C"}}, body});
}

// Each as "CODE=TEXT", bytes in brackets.
std::vector<std::string> Told(const std::vector<FreeValue>& values) {
  std::vector<std::string> told;
  for (const FreeValue& value : values) {
    told.push_back(std::to_string(value.code) + "=" +
                   std::string(value.text.begin(), value.text.end()) +
                   (value.bytes.empty() ? "" : "[" + value.bytes + "]"));
  }
  return told;
}

class DxfFreeValues : public testing::TestWithParam<dxf::Form> {
 protected:
  std::vector<std::string> ValuesIn(const Tags& objects) {
    OpenDrawing drawing(BytesOf({.objects = objects}, GetParam()));
    return Told(drawing->FreeValues(drawing->Find(0x30).value()));
  }
};

INSTANTIATE_TEST_SUITE_P(Forms, DxfFreeValues, testing::Values(dxf::Form::Ascii, dxf::Form::Binary),
                         [](const auto& info) {
                           return info.param == dxf::Form::Ascii ? "Text" : "Binary";
                         });

TEST_P(DxfFreeValues, AreTextsAndBytesAndTheCodesOfTheRest) {
  EXPECT_THAT(ValuesIn(FreeRecord({{100, drawing::kXrecordMarker},
                                   {280, 1},
                                   {300, "leaf.dwg"},
                                   {310, "chunk"},
                                   {40, 1.5},
                                   {1, ""},
                                   {330, "AB"},
                                   {280, 7},
                                   {102, "{free"},
                                   {319, "last"}})),
              testing::ElementsAre("300=leaf.dwg", "310=[chunk]",
                                   "40=", "1=", "330=", "280=", "102={free", "319=[last]"));
}

TEST_P(DxfFreeValues, EndWhereExtendedDataBegins) {
  EXPECT_THAT(ValuesIn(FreeRecord(
                  {{100, drawing::kXrecordMarker}, {1, "own"}, {1001, "APP"}, {1000, "other"}})),
              testing::ElementsAre("1=own"));
}

TEST_P(DxfFreeValues, AreNoneWithoutTheMarkerAndInOtherObjects) {
  EXPECT_THAT(ValuesIn(FreeRecord({{1, "own"}})), testing::IsEmpty());
  EXPECT_THAT(ValuesIn({{0, "GROUP"}, {5, "30"}, {100, drawing::kXrecordMarker}, {1, "own"}}),
              testing::IsEmpty());
}

TEST(DxfFreeValuesOfText, EndAtAChunkThatIsNotMadeOfBytes) {
  const std::string text =
      BytesOf({.objects = FreeRecord(
                   {{100, drawing::kXrecordMarker}, {310, "ab"}, {310, "cd"}, {1, "x"}})});
  for (const char* const digits : {"636", "6G64"}) {
    std::string changed = text;
    changed.replace(changed.find("6364"), 4, digits);
    OpenDrawing drawing(changed);
    EXPECT_THAT(Told(drawing->FreeValues(drawing->Find(0x30).value())),
                testing::ElementsAre("310=[ab]"));
    EXPECT_EQ(drawing.report().warningCount, 1u);
  }
}

}  // namespace
}  // namespace dxf_free_values
