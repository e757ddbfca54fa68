// Attributes and their definitions, in every version and form.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "formats/dxf/HandmadeDrawing.h"
#include "support/drawing/Tokens.h"
#include "support/drawing/Version.h"

namespace {

using namespace handmade_dxf;
using testing::ElementsAre;
using zdx::model::ObjectKey;
using StoredAttributes = std::vector<zdx::model::Attribute>;

const Tags kEmbeddedStart = {{101, drawing::kEmbeddedObject}};

// What the definitions of the block "door", and the attributes of its references, tell.
struct Told {
  StoredAttributes definitions;
  StoredAttributes attributes;
};

Told ReadDoor(OpenDrawing& drawing) {
  Told told;
  const ObjectKey door = drawing.BlockNamed(L"door");
  for (const ObjectKey entity : drawing->BlockEntities(door)) {
    told.definitions.push_back(drawing->ReadAttribute(entity));
  }
  for (const ObjectKey reference : drawing->BlockReferences(door)) {
    for (const ObjectKey attribute : drawing->ReadBlockReference(reference).attributes) {
      told.attributes.push_back(drawing->ReadAttribute(attribute));
    }
  }
  return told;
}

// `text` are the tags of the text part, `own` those behind the attribute's marker.
Tags AttributeOf(const std::string& type, const Tags& text, const Tags& own,
                 const Tags& head = {}) {
  const std::string marker =
      type == "ATTDEF" ? drawing::kAttributeDefinitionMarker : drawing::kAttributeMarker;
  return Join({{{0, type}, {5, "A0"}},
               head,
               {{100, drawing::kEntityMarker}, {8, "0"}, {100, drawing::kTextMarker}},
               text,
               {{100, marker}},
               own});
}

Contents WithAttributes(const std::string& version, const Tags& definition, const Tags& attribute,
                        const Tags& objects = {}) {
  Contents contents = {.version = version,
                       .blocks = BlockOf("door", definition),
                       .entities = Join({Insert("door", "9"), attribute, {{0, "SEQEND"}}}),
                       .objects = objects};
  if (version != "AC1009")
    contents.records = Join({Record("1", "*Model_Space"), Record("2", "door")});
  return contents;
}

class DxfAttributes : public testing::TestWithParam<std::tuple<const char*, dxf::Form>> {
 protected:
  std::string version() const { return std::get<0>(GetParam()); }
  OpenDrawing Open(const Tags& definition, const Tags& attribute, const Tags& objects = {}) {
    return OpenDrawing(BytesOf(WithAttributes(version(), definition, attribute, objects),
                               std::get<1>(GetParam())));
  }
};

TEST_P(DxfAttributes, TellTagPromptAndText) {
  OpenDrawing drawing =
      Open(AttributeOf("ATTDEF", {{40, 2.5}, {1, "\xC3\xA9t\xC3\xA9"}},
                       {{3, "Which season?"}, {2, "SEASON"}, {70, 0}}),
           AttributeOf("ATTRIB", {{40, 2.5}, {1, "autumn"}}, {{2, "SEASON"}, {70, 0}}));
  const Told told = ReadDoor(drawing);
  ASSERT_EQ(told.definitions.size(), 1u);
  EXPECT_EQ(told.definitions[0].tag, L"SEASON");
  EXPECT_EQ(told.definitions[0].prompt, L"Which season?");
  EXPECT_EQ(told.definitions[0].text, L"\u00E9t\u00E9");
  EXPECT_FALSE(told.definitions[0].isConstant);
  EXPECT_FALSE(told.definitions[0].isMultiLine);
  ASSERT_EQ(told.attributes.size(), 1u);
  EXPECT_EQ(told.attributes[0].tag, L"SEASON");
  EXPECT_EQ(told.attributes[0].text, L"autumn");
  EXPECT_FALSE(told.attributes[0].isMultiLine);
  EXPECT_EQ(drawing.report().warningCount, 0u);
}

TEST_P(DxfAttributes, AreConstantByTheirOwnFlags) {
  const auto isConstant = [&](int flags, const Tags& text = {{1, "fixed"}}) {
    OpenDrawing drawing =
        Open(AttributeOf("ATTDEF", text, {{3, ""}, {2, "T"}, {70, flags}, {70, 2}}), {});
    return ReadDoor(drawing).definitions.at(0).isConstant;
  };
  EXPECT_TRUE(isConstant(2));
  EXPECT_TRUE(isConstant(15));
  EXPECT_FALSE(isConstant(0));
  EXPECT_FALSE(isConstant(13));
  // Other parts of the entity may have flags of their own, where markers tell them apart.
  EXPECT_EQ(isConstant(0, {{1, "text"}, {70, 2}}), version() == "AC1009");
}

TEST_P(DxfAttributes, WithoutATextHaveAnEmptyOne) {
  OpenDrawing drawing =
      Open(AttributeOf("ATTDEF", {}, {{2, "T"}}), AttributeOf("ATTRIB", {{1, ""}}, {{2, ""}}));
  const Told told = ReadDoor(drawing);
  EXPECT_EQ(told.definitions.at(0).prompt, L"");
  EXPECT_EQ(told.definitions.at(0).text, L"");
  EXPECT_EQ(told.attributes.at(0).tag, L"");
  EXPECT_EQ(told.attributes.at(0).text, L"");
}

TEST_P(DxfAttributes, WithoutATagAreToldOf) {
  OpenDrawing drawing = Open({}, AttributeOf("ATTRIB", {{1, "text"}}, {{70, 0}}));
  const Told told = ReadDoor(drawing);
  EXPECT_EQ(told.attributes.at(0).tag, std::nullopt);
  EXPECT_EQ(told.attributes.at(0).text, L"text");
  EXPECT_EQ(drawing.report().warningCount, 1u);
}

TEST_P(DxfAttributes, OfManyLinesTellTheEmbeddedText) {
  const Tags embedded = Join({{{71, 2}, {72, 0}, {11, 1.0}, {21, 2.0}},
                              kEmbeddedStart,
                              {{10, 1.0},
                               {71, 1},
                               {70, 2},
                               {3, "one \\P"},
                               {3, "two "},
                               {1, "three"},
                               {2, "other"},
                               {1, "other"}}});
  OpenDrawing drawing =
      Open(AttributeOf("ATTDEF", {{1, ""}}, Join({{{3, "Lines?"}, {2, "T"}, {70, 0}}, embedded})),
           AttributeOf("ATTRIB", {{1, ""}}, Join({{{2, "T"}, {70, 0}}, embedded})));
  const Told told = ReadDoor(drawing);
  for (const auto& attribute : {told.definitions.at(0), told.attributes.at(0)}) {
    EXPECT_TRUE(attribute.isMultiLine);
    EXPECT_EQ(attribute.tag, L"T");
    EXPECT_EQ(attribute.text, L"one \\Ptwo three");
    EXPECT_FALSE(attribute.isConstant);
  }
  EXPECT_EQ(told.definitions.at(0).prompt, L"Lines?");
}

INSTANTIATE_TEST_SUITE_P(VersionsAndForms, DxfAttributes,
                         testing::Combine(testing::Values("AC1009", "AC1012", "AC1014", "AC1015",
                                                          "AC1018", "AC1021", "AC1024", "AC1027",
                                                          "AC1032"),
                                          testing::Values(dxf::Form::Ascii, dxf::Form::Binary)),
                         [](const auto& test) {
                           const bool isText = std::get<1>(test.param) == dxf::Form::Ascii;
                           return std::string(std::get<0>(test.param)) +
                                  (isText ? "Text" : "Binary");
                         });

// The attribute NOTE_001 of a drawing with `record` in the place of a multi-line attribute's.
zdx::model::Attribute WithRecord(const std::string& version, const Tags& record) {
  const Tags attribute =
      AttributeOf("ATTRIB", {{1, "plain"}}, {{2, "NOTE_001"}, {70, 0}}, Extension("70"));
  OpenDrawing drawing(BytesOf(WithAttributes(
      version, {}, attribute, Join({Dictionary("70", drawing::kMultiLineKey, "71"), record}))));
  return ReadDoor(drawing).attributes.at(0);
}

const Tags kMultiLineRecord = {{0, "XRECORD"},
                               {5, "71"},
                               {100, drawing::kXrecordMarker},
                               {280, 1},
                               {70, 2},
                               {2, "NOTE"},
                               {1, drawing::kEmbeddedObject},
                               {10, 1.0},
                               {3, "one "},
                               {1, "two"},
                               {73, 1},
                               {1, "other"}};

class DxfMultiLineRecord : public testing::TestWithParam<const char*> {};

TEST_P(DxfMultiLineRecord, TellsTheTagAndTheText) {
  const auto attribute = WithRecord(GetParam(), kMultiLineRecord);
  EXPECT_TRUE(attribute.isMultiLine);
  EXPECT_EQ(attribute.tag, L"NOTE");
  EXPECT_EQ(attribute.text, L"one two");
}

TEST_P(DxfMultiLineRecord, LeavesTheAttributeWhatItDoesNotTell) {
  const auto attribute = WithRecord(
      GetParam(), {{0, "XRECORD"}, {5, "71"}, {100, drawing::kXrecordMarker}, {1, "text"}});
  EXPECT_TRUE(attribute.isMultiLine);
  EXPECT_EQ(attribute.tag, L"NOTE_001");
  EXPECT_EQ(attribute.text, L"plain");
}

TEST_P(DxfMultiLineRecord, IsNoOtherObjectAndHasToBeThere) {
  EXPECT_FALSE(WithRecord(GetParam(), {{0, "OTHER"}, {5, "71"}, {2, "NOTE"}}).isMultiLine);
  EXPECT_FALSE(WithRecord(GetParam(), {{0, "XRECORD"}, {5, "72"}, {2, "NOTE"}}).isMultiLine);
}

INSTANTIATE_TEST_SUITE_P(Versions, DxfMultiLineRecord,
                         testing::Values("AC1012", "AC1014", "AC1015", "AC1018", "AC1021", "AC1024",
                                         "AC1027"),
                         [](const auto& test) { return std::string(test.param); });

TEST(DxfMultiLineRecords, MeanNothingWhereTheTextIsEmbedded) {
  const auto attribute = WithRecord("AC1032", kMultiLineRecord);
  EXPECT_FALSE(attribute.isMultiLine);
  EXPECT_EQ(attribute.tag, L"NOTE_001");
  EXPECT_EQ(attribute.text, L"plain");
}

TEST(DxfAttributePieces, MayCutACharacter) {
  OpenDrawing drawing(BytesOf(WithAttributes(
      "AC1032", {},
      AttributeOf("ATTRIB", {{1, ""}},
                  Join({{{2, "T"}},
                        kEmbeddedStart,
                        {{3, drawing::RawText{"caf\xC3"}}, {1, drawing::RawText{"\xA9 ^"}}}})))));
  EXPECT_EQ(ReadDoor(drawing).attributes.at(0).text, L"caf\u00E9 ^");
  EXPECT_EQ(drawing.report().warningCount, 0u);
}

TEST(DxfAttributeNames, AreReadAsNamesAndTextsAsValues) {
  OpenDrawing drawing(BytesOf(WithAttributes(
      "AC1027", AttributeOf("ATTDEF", {{1, "\\U+00B0"}}, {{3, "\\U+00B0"}, {2, "\\U+00B0"}}), {})));
  const auto definition = ReadDoor(drawing).definitions.at(0);
  EXPECT_EQ(definition.tag, L"\u00B0");
  EXPECT_EQ(definition.prompt, L"\\U+00B0");
  EXPECT_EQ(definition.text, L"\\U+00B0");
}

// A line that isn't a code ends what can be read of an attribute.
std::string CutBehind(const Tags& attribute, const std::string& line) {
  std::string text = BytesOf(WithAttributes("AC1032", {}, attribute));
  const std::size_t at = text.find(line);
  return at == std::string::npos ? "" : text.insert(at + line.size(), "rubbish\n");
}

TEST(DamagedDxfAttributes, LoseWhatStoodBehindTheDamage) {
  const Tags attribute = AttributeOf("ATTRIB", {{1, "text"}}, {{2, "TAG"}, {70, 0}});
  OpenDrawing late(CutBehind(attribute, "text\n"));
  EXPECT_EQ(ReadDoor(late).attributes.at(0).tag, std::nullopt);
  EXPECT_EQ(ReadDoor(late).attributes.at(0).text, L"text");
  EXPECT_EQ(late.report().warningCount, 1u);
  OpenDrawing early(CutBehind(attribute, std::string(drawing::kTextMarker) + "\n"));
  EXPECT_EQ(ReadDoor(early).attributes.at(0).text, std::nullopt);
}

TEST(DamagedDxfAttributes, TellNoPartOfATextOfManyPieces) {
  const Tags attribute = AttributeOf(
      "ATTRIB", {{1, ""}}, Join({{{2, "TAG"}}, kEmbeddedStart, {{3, "one"}, {1, "two"}}}));
  for (const std::string& line :
       {std::string(drawing::kEmbeddedObject) + "\n", std::string("one\n")}) {
    OpenDrawing drawing(CutBehind(attribute, line));
    EXPECT_EQ(ReadDoor(drawing).attributes.at(0).text, std::nullopt) << line;
    EXPECT_EQ(ReadDoor(drawing).attributes.at(0).tag, L"TAG") << line;
  }
}

}  // namespace
