// The values of the blocks that are named.
#include <gmock/gmock.h>

#include "cli/CliTest.h"
#include "cli/TitleDrawing.h"
#include "support/dwg/DwgMaker.h"
#include "support/dxf/DxfMaker.h"

namespace zdx_test {

namespace {

using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr const char* kGivenId = "{01234567-89AB-CDEF-0123-456789ABCDEF}";
constexpr const char* kFirstOwnId = "{5F1C7E2A-93D4-4B68-A0E7-000000000001}";
constexpr const char* kSecondOwnId = "{5F1C7E2A-93D4-4B68-A0E7-000000000002}";
constexpr const char* kEngineId = "{B725F130-47EF-101A-A5F1-02608C9EEBAC}";

class NamedBlock : public CliTest {
 protected:
  NamedBlock() { Write("plan.dxf", dxf::Make(TitleDrawing())); }

  // What is told behind the head's two lines.
  std::string Told(std::vector<std::string> words, const std::string& file = "plan.dxf") const {
    words.insert(words.begin(), {"info", "--select", "blocks"});
    words.push_back(file);
    const Outcome outcome = Zdx(words);
    EXPECT_EQ(outcome.exitCode, 0) << outcome.err;
    EXPECT_THAT(outcome.err, IsEmpty());
    const std::size_t head = outcome.out.find('\n', outcome.out.find('\n') + 1);
    return outcome.out.substr(head + 1);
  }

  // "format id name=value" of each property.
  std::vector<std::string> Properties(std::vector<std::string> words) const {
    words.insert(words.begin(), {"info", "-o", "json", "--select", "blocks"});
    words.push_back("plan.dxf");
    const auto documents = Documents(Zdx(words).out);
    if (documents.size() != 1) return {"not one document"};
    std::vector<std::string> properties;
    for (const nlohmann::json& property : documents[0].at("properties")) {
      EXPECT_EQ(property.at("typeCode"), 2);
      properties.push_back(property.at("formatId").get<std::string>() + " " +
                           property.at("name").get<std::string>() + "=" +
                           property.at("value").get<std::string>());
    }
    return properties;
  }
};

TEST_F(NamedBlock, IsToldWithItsValuesByPromptsAndByTagsWhereThereAreNone) {
  const std::string values =
      "\n  Block TITLE\n"
      "    OFFICE  Drawing office\n"
      "    Scale?  1:50\n"
      "    NO      17\n"
      "    Notes?  one two\n";
  EXPECT_EQ(Told({"--block", "TITLE"}), values);
  EXPECT_EQ(Told({"--block", "TITLE:prompt"}), values);
  EXPECT_EQ(Told({"--block=TITLE:PROMPT"}), values);
}

TEST_F(NamedBlock, IsToldByTagsIfTheyAreAskedFor) {
  EXPECT_EQ(Told({"--block", "TITLE:tag"}),
            "\n  Block TITLE\n"
            "    OFFICE  Drawing office\n"
            "    SCALE   1:50\n"
            "    NO      17\n"
            "    NOTES   one two\n");
}

TEST_F(NamedBlock, IsToldOfDwgDrawingsAlike) {
  const std::string text = Told({"--block", "TITLE:tag"});
  EXPECT_THAT(text, HasSubstr("SCALE"));
  for (const char* const version : {"AC1015", "AC1018", "AC1021", "AC1024", "AC1027", "AC1032"}) {
    drawing::DrawingSpec spec = TitleDrawing();
    spec.version = version;
    Write("plan.dwg", dwg::Make(spec));
    EXPECT_EQ(Told({"--block", "TITLE:tag"}, "plan.dwg"), text) << version;
  }
}

TEST_F(NamedBlock, MayBeNamedInAnyCase) {
  EXPECT_THAT(Told({"--block", "title:tag"}), HasSubstr("\n  Block title\n    OFFICE"));
}

TEST_F(NamedBlock, ThatTheDrawingDoesNotHaveHasNoValues) {
  EXPECT_EQ(Told({"--block", "STAMP"}), "\n  Block STAMP (none)\n");
  EXPECT_THAT(Properties({"--block", "STAMP"}), IsEmpty());
}

TEST_F(NamedBlock, IsInJsonUnderAnIdOfItsOwnAndUnderTheEngines) {
  EXPECT_THAT(
      Properties({"--block", "STAMP", "--block", "TITLE:tag"}),
      ElementsAre(std::string(kSecondOwnId) + " OFFICE=Drawing office",
                  std::string(kEngineId) + " OFFICE=Drawing office",
                  std::string(kSecondOwnId) + " SCALE=1:50", std::string(kEngineId) + " SCALE=1:50",
                  std::string(kSecondOwnId) + " NO=17", std::string(kEngineId) + " NO=17",
                  std::string(kSecondOwnId) + " NOTES=one two",
                  std::string(kEngineId) + " NOTES=one two"));
  EXPECT_THAT(Properties({"--block", "TITLE"}).front(), HasSubstr(kFirstOwnId));
}

TEST_F(NamedBlock, IsInJsonUnderTheIdThatIsGiven) {
  for (const char* const id : {kGivenId, "01234567-89ab-cdef-0123-456789abcdef"}) {
    const auto properties = Properties({"--block", std::string("TITLE:tag=") + id});
    ASSERT_THAT(properties, SizeIs(8));
    EXPECT_EQ(properties[0], std::string(kGivenId) + " OFFICE=Drawing office");
    EXPECT_EQ(properties[1], std::string(kEngineId) + " OFFICE=Drawing office");
  }
}

TEST_F(NamedBlock, IsToldUnderAnyId) {
  const std::string text = Told({"--block", "TITLE:tag"});
  for (const char* const id : {"{F29F85E0-4FF9-1068-AB91-08002B27B3D9}",
                               "{D5CDD505-2E9C-101B-9397-08002B2CF9AE}", kEngineId, kGivenId}) {
    EXPECT_EQ(Told({"--block", std::string("TITLE:tag=") + id}), text);
  }
}

TEST_F(NamedBlock, IsNamedAsTheFirstBlockOfItsIdIs) {
  const std::string id = std::string("=") + kGivenId;
  EXPECT_THAT(Properties({"--block", "STAMP:tag" + id, "--block", "TITLE:prompt" + id}),
              ::testing::Contains(std::string(kGivenId) + " SCALE=1:50"));
}

TEST_F(NamedBlock, ThatIsNamedTwiceIsToldTheFirstTime) {
  EXPECT_THAT(Told({"--block", "TITLE:tag", "--block", "title"}),
              EndsWith("    NOTES   one two\n\n  Block title (none)\n"));
}

TEST_F(NamedBlock, IsToldBesideOthersInTheOrderOfTheCommandLine) {
  drawing::DrawingSpec spec = TitleDrawing();
  AddBlock(spec, "STAMP");
  Write("plan.dxf", dxf::Make(spec));
  const std::string title = Told({"--block", "TITLE"});
  EXPECT_EQ(Told({"--block", "STAMP", "--block", "TITLE"}),
            "\n  Block STAMP\n    Prompt  x\n" + title);
}

TEST_F(NamedBlock, IsToldWhateverIsSelected) {
  for (const char* const selection : {"flavour", "blocks", "flavour,blocks"}) {
    EXPECT_THAT(
        Zdx({"info", "--select", selection, "--block", "TITLE", "plan.dxf"}).out,
        HasSubstr("AC1032, code page ANSI_1252\n\n  Block TITLE\n    OFFICE  Drawing office\n"));
  }
  for (const std::string& text :
       {Zdx({"info", "--block", "TITLE", "plan.dxf"}).out,
        Zdx({"info", "--select", "all", "--block", "TITLE", "plan.dxf"}).out}) {
    EXPECT_THAT(text, HasSubstr("\n  Layers (1)\n    0\n"));
    EXPECT_THAT(text, HasSubstr("\n  Block TITLE\n    OFFICE  Drawing office\n"));
  }
}

TEST_F(NamedBlock, IsToldOfEachFile) {
  Write("empty.dxf", dxf::Make({}));
  const Outcome outcome =
      Zdx({"info", "--select", "blocks", "--block", "TITLE:tag", "plan.dxf", "empty.dxf"});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_THAT(outcome.out, HasSubstr("    SCALE   1:50\n"));
  EXPECT_THAT(outcome.out, EndsWith("\n  Block TITLE (none)\n"));
}

TEST_F(NamedBlock, MayHaveAnyCharactersInItsName) {
  drawing::DrawingSpec spec;
  const std::vector<std::string> names = {
      "[a,b]", "{x}", "++",  "%%",   "-o",
      "a b",   "a=b", "a:b", "*U77", "\xD0\xA8\xD0\xA2\xE5\x9B\xB3"};
  for (const std::string& name : names) AddBlock(spec, name);
  Write("plan.dxf", dxf::Make(spec));
  for (const std::string& name : names) {
    const std::string value = "\n  Block " + name + "\n    TAG  x\n";
    const std::string word = name + ":tag=" + kGivenId;
    EXPECT_EQ(Told({"--block", word}), value);
    EXPECT_EQ(Told({"--block=" + word}), value);
  }
}

TEST_F(NamedBlock, IsReadOfADynamicBlocksVariations) {
  drawing::DrawingSpec spec;
  spec.blocks = {{.name = "GATE", .definitions = {{.tag = "MARK"}}, .isDynamic = true},
                 {.name = "*U5", .definitions = {{.tag = "MARK"}}, .copyOf = "GATE"}};
  spec.entities = {drawing::Insert("*U5", {{.tag = "MARK", .value = "G1"}})};
  Write("plan.dxf", dxf::Make(spec));
  EXPECT_EQ(Told({"--block", "GATE"}), "\n  Block GATE\n    MARK  G1\n");
}

TEST_F(NamedBlock, WithEscapeSequencesDoesNotReachTheTerminal) {
  EXPECT_EQ(Told({"--block", "T\033"}), "\n  Block T\\x1b (none)\n");
}

TEST_F(NamedBlock, ThatCannotBeUnderstoodIsWrongUsage) {
  const auto expectRefused = [&](const std::string& word, const std::string& reason) {
    const Outcome outcome = Zdx({"info", "--block", word, "plan.dxf"});
    EXPECT_EQ(outcome.exitCode, 64) << word;
    EXPECT_THAT(outcome.out, IsEmpty());
    EXPECT_THAT(outcome.err, HasSubstr("--block"));
    EXPECT_THAT(outcome.err, HasSubstr(reason));
  };
  expectRefused("", "names no block");
  expectRefused(":tag", "':tag' names no block");
  expectRefused(std::string("=") + kGivenId, "names no block");
  expectRefused("TITLE=1234", "'1234' behind the '=' isn't a GUID");
  expectRefused("[=1234]", "'1234]' behind the '=' isn't a GUID");
}

}  // namespace

}  // namespace zdx_test
