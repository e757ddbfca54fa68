// What drawings depend on.
#include <gmock/gmock.h>

#include "cli/CliTest.h"
#include "cli/SmallDrawing.h"
#include "support/Paths.h"
#include "support/dwg/DwgMaker.h"
#include "support/dxf/DxfMaker.h"

namespace zdx_test {

namespace {

using drawing::XrefBlock;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;
using ::testing::StartsWith;

constexpr int kSomethingMissing = 1;

drawing::DrawingSpec DrawingOf(std::vector<drawing::BlockSpec> xrefs) {
  drawing::DrawingSpec spec;
  spec.blocks = std::move(xrefs);
  // The font of a drawing without text styles isn't anywhere.
  spec.textStyles = {{"Standard", "plain.shx"}};
  return spec;
}

// A plan that attaches pipes and overlays steel, and lacks roof; the pipes attach valves.
class Deps : public CliTest {
 protected:
  Deps() {
    drawing::DrawingSpec plan =
        DrawingOf({XrefBlock("PIPES", "pipes.dxf"), XrefBlock("ROOF", "roof.dwg"),
                   XrefBlock("STEEL", "steel.dwg", drawing::Xref::Overlaid)});
    Write("plan.dwg", dwg::Make(plan));
    Write("pipes.dxf", dxf::Make(DrawingOf({XrefBlock("VALVES", "valves.dwg")})));
    Write("steel.dwg", dwg::Make(DrawingOf({})));
    Write("valves.dwg", dwg::Make(DrawingOf({})));
    Write("plain.shx", "a font");
  }

  // The one document about a drawing.
  nlohmann::json DocumentOf(std::vector<std::string> options,
                            const std::string& file = "plan.dwg") const {
    options.insert(options.begin(), {"deps", "-o", "json"});
    options.push_back(file);
    const auto documents = Documents(Zdx(options).out);
    EXPECT_THAT(documents, SizeIs(1));
    return documents.size() == 1 ? documents[0] : nlohmann::json();
  }

  // What a drawing needs, without fonts.
  nlohmann::json ListOf(std::vector<std::string> options) const {
    const nlohmann::json document = DocumentOf(std::move(options));
    nlohmann::json list = nlohmann::json::array();
    for (const nlohmann::json& entry : document.at("dependencies")) {
      if (entry.at("kind") != "font") list.push_back(entry);
    }
    return list;
  }

  std::vector<std::string> StoredPaths(const nlohmann::json& list) const {
    std::vector<std::string> paths;
    for (const nlohmann::json& entry : list) {
      paths.push_back(entry.at("storedPath").get<std::string>());
    }
    return paths;
  }
};

TEST_F(Deps, AreToldAsATreeWithWhatIsMissingMarked) {
  const Outcome outcome = Zdx({"deps", "plan.dwg"});
  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_THAT(outcome.err, IsEmpty());
  EXPECT_EQ(outcome.out,
            "plan.dwg\n"
            "  Zent drawing, DWG, AC1032, code page ANSI_1252\n"
            "\n"
            "  ├─ pipes.dxf        attached drawing (PIPES)\n"
            "  │  ├─ valves.dwg    attached drawing (VALVES)\n"
            "  │  │  └─ plain.shx  font (Standard)\n"
            "  │  └─ plain.shx     font (Standard)\n"
            "  ├─ roof.dwg         attached drawing (ROOF)    MISSING\n"
            "  ├─ steel.dwg        overlaid drawing (STEEL)\n"
            "  │  └─ plain.shx     font (Standard)\n"
            "  └─ plain.shx        font (Standard)\n"
            "\n"
            "  5 files, 1 missing\n");
}

TEST_F(Deps, AreToldInTheEnginesOrderInJson) {
  const nlohmann::json list = ListOf({});
  EXPECT_THAT(StoredPaths(list), ElementsAre("pipes.dxf", "roof.dwg", "steel.dwg", "valves.dwg"));
  EXPECT_EQ(list[0].at("kind"), "attachedDrawing");
  EXPECT_EQ(list[0].at("fileType"), 1);
  EXPECT_EQ(list[0].at("supportRePath"), true);
  EXPECT_EQ(list[0].at("exists"), true);
  EXPECT_EQ(list[0].at("absolutePath"), "");
  EXPECT_EQ(PathOf(list[0].at("sourcePath").get<std::string>()), Folder() / "pipes.dxf");
  EXPECT_EQ(list[1].at("exists"), false);
  EXPECT_EQ(list[1].at("problem"), "notFound");
  EXPECT_EQ(list[1].at("sourcePath"), "roof.dwg");
  EXPECT_EQ(list[3].at("parent"), list[0].at("refId"));
  EXPECT_EQ(list[3].at("parentPath"), list[0].at("sourcePath"));
  EXPECT_EQ(list[0].at("parent"), "0");
}

TEST_F(Deps, AreToldBelowTheDrawingItself) {
  const nlohmann::json document = DocumentOf({});
  EXPECT_EQ(document.at("schema"), "zdx/1");
  EXPECT_EQ(document.at("file"), "plan.dwg");
  EXPECT_EQ(document.at("status"), "ok");
  EXPECT_EQ(document.at("drawingType"), "Zent");
  EXPECT_EQ(document.at("format"), "DWG");
  EXPECT_EQ(document.at("root").at("refId"), "0");
  EXPECT_EQ(document.at("root").at("sourcePath"), "plan.dwg");
}

TEST_F(Deps, EndWithTheDrawingsOwnIfTheyAreToBeDirect) {
  EXPECT_THAT(StoredPaths(ListOf({"--direct"})), ElementsAre("pipes.dxf", "roof.dwg", "steel.dwg"));
}

TEST_F(Deps, TellOverlaysIfTheyAreAskedFor) {
  const auto overlaid = [&](std::vector<std::string> options) {
    std::vector<bool> flags;
    for (const nlohmann::json& entry : ListOf(std::move(options))) {
      flags.push_back(entry.at("isOverlay").get<bool>());
    }
    return flags;
  };
  EXPECT_THAT(overlaid({}), ElementsAre(false, false, false, false));
  EXPECT_THAT(overlaid({"--overlays"}), ElementsAre(false, false, true, false));
}

TEST_F(Deps, NestInJsonIfTheyAreToBeATree) {
  const nlohmann::json list = ListOf({"--tree"});
  EXPECT_THAT(StoredPaths(list), ElementsAre("pipes.dxf", "roof.dwg", "steel.dwg"));
  EXPECT_EQ(list[0].at("dependencies").at(0).at("storedPath"), "valves.dwg");
  EXPECT_EQ(list[1].at("dependencies"), nlohmann::json::array());
}

TEST_F(Deps, ThatAreMissingCanBeToldAlone) {
  const Outcome text = Zdx({"deps", "--missing", "plan.dwg"});
  EXPECT_EQ(text.exitCode, kSomethingMissing);
  EXPECT_THAT(text.err, IsEmpty());
  EXPECT_THAT(text.out, HasSubstr("\n\n  └─ roof.dwg  attached drawing (ROOF)  MISSING\n\n"));
  EXPECT_THAT(StoredPaths(ListOf({"--missing"})), ElementsAre("roof.dwg"));
}

TEST_F(Deps, ThatAreMissingInTheFirstOfSeveralFilesCount) {
  EXPECT_EQ(Zdx({"deps", "--missing", "plan.dwg", "steel.dwg"}).exitCode, kSomethingMissing);
}

TEST_F(Deps, ThatAreAllThereGiveNothingMissing) {
  const Outcome text = Zdx({"deps", "--missing", "pipes.dxf"});
  EXPECT_EQ(text.exitCode, 0);
  EXPECT_THAT(text.out, EndsWith("2 files, none missing\n"));
  EXPECT_THAT(text.out, Not(HasSubstr("valves")));
}

TEST_F(Deps, ThatAreMissingAreNoFailureUnlessTheyAreAskedFor) {
  EXPECT_EQ(Zdx({"deps", "-o", "json", "plan.dwg"}).exitCode, 0);
}

TEST_F(Deps, AreFoundInTheFoldersThatAreGiven) {
  std::filesystem::create_directory(Folder() / "more");
  std::filesystem::create_directory(Folder() / "fonts");
  Write("more/roof.dwg", dwg::Make(DrawingOf({})));
  Write("letters.dxf", dxf::Make([] {
          drawing::DrawingSpec spec;
          spec.textStyles = {{"Notes", "rare-letters"}};
          return spec;
        }()));
  Write("fonts/rare-letters.shx", "a font");
  const std::vector<std::string> options = {"--search-path=fonts", "--search-path", "more"};
  EXPECT_EQ(ListOf(options)[1].at("exists"), true);
  // What follows one folder are files.
  EXPECT_THAT(Zdx({"deps", "--search-path", "more", "steel.dwg", "pipes.dxf"}).out,
              StartsWith("steel.dwg\n"));
  const nlohmann::json fonts = DocumentOf(options, "letters.dxf").at("dependencies");
  ASSERT_THAT(fonts, SizeIs(1));
  EXPECT_EQ(PathOf(fonts[0].at("sourcePath").get<std::string>()),
            Folder() / "fonts" / "rare-letters.shx");
}

TEST_F(Deps, OfSeveralFilesAreToldInTheOrderGivenAndAFailureStopsNone) {
  const Outcome text = Zdx({"deps", "steel.dwg", "nowhere.dwg", "pipes.dxf"});
  EXPECT_EQ(text.exitCode, kFileFailed);
  EXPECT_THAT(text.err, StartsWith("zdx: nowhere.dwg: Unable to find file 'nowhere.dwg'"));
  EXPECT_THAT(text.out, AllOf(StartsWith("steel.dwg\n"), HasSubstr("missing\n\npipes.dxf\n")));
  const auto documents = Documents(Zdx({"deps", "-o", "json", "nowhere.dwg", "steel.dwg"}).out);
  ASSERT_THAT(documents, SizeIs(2));
  EXPECT_EQ(documents[0].at("error").at("class"), "NotFound");
  EXPECT_EQ(documents[1].at("status"), "ok");
}

TEST_F(Deps, ThatCannotBeReadSayMoreThanMissingOnes) {
  EXPECT_EQ(Zdx({"deps", "--missing", "plan.dwg", "nowhere.dwg"}).exitCode, kFileFailed);
}

TEST_F(Deps, FailAsInfoDoesIfTheDrawingItselfCannotBeRead) {
  Write("letter.dxf", "no drawing");
  const Outcome info = Zdx({"info", "-o", "json", "nowhere.dxf"});
  const Outcome deps = Zdx({"deps", "-o", "json", "nowhere.dxf"});
  EXPECT_EQ(deps.exitCode, kFileFailed);
  EXPECT_EQ(Documents(deps.out).at(0).at("error").at("class"),
            Documents(info.out).at(0).at("error").at("class"));
  const Outcome letter = Zdx({"deps", "letter.dxf"});
  EXPECT_EQ(letter.exitCode, kFileFailed);
  EXPECT_THAT(letter.err, StartsWith("zdx: letter.dxf: "));
  EXPECT_THAT(letter.out, IsEmpty());
}

TEST_F(Deps, ThatAreDamagedAreListedWithWhatIsWrong) {
  Write("roof.dwg", "no drawing at all");
  const nlohmann::json list = ListOf({});
  EXPECT_EQ(list[1].at("storedPath"), "roof.dwg");
  EXPECT_EQ(list[1].at("problem"), "notReadable");
  EXPECT_EQ(list[1].at("exists"), true);
  EXPECT_EQ(Zdx({"deps", "--missing", "plan.dwg"}).exitCode, 0);
}

TEST_F(Deps, ThatRunInACircleEnd) {
  Write("valves.dwg", dwg::Make(DrawingOf({XrefBlock("PLAN", "plan.dwg")})));
  const nlohmann::json list = ListOf({});
  ASSERT_THAT(list, SizeIs(5));
  EXPECT_EQ(list[4].at("storedPath"), "plan.dwg");
  EXPECT_EQ(list[4].at("repeated"), true);
  // The circle leads to the node of the drawing.
  const std::string dot = Zdx({"deps", "-o", "dot", "plan.dwg"}).out;
  EXPECT_THAT(dot, HasSubstr("-> n0 [tooltip=\"attached drawing PLAN: plan.dwg\"]"));
}

TEST_F(Deps, ThroughALinkAreTheFileThatItLeadsTo) {
  std::error_code refused;
  std::filesystem::create_symlink("valves.dwg", Folder() / "link.dwg", refused);
  if (refused) GTEST_SKIP() << "No link can be made here: " << refused.message();
  Write("linked.dwg", dwg::Make(DrawingOf({XrefBlock("A", "link.dwg"), XrefBlock("B", "link.dwg"),
                                           XrefBlock("C", "valves.dwg")})));
  // The valves and the font.
  EXPECT_THAT(Zdx({"deps", "--direct", "linked.dwg"}).out, EndsWith("2 files, none missing\n"));
}

TEST_F(Deps, ThatAreTheDrawingItselfByAnotherNameDoNotCount) {
  Write("twin.dwg", dwg::Make(DrawingOf({XrefBlock("OTHER", "other.dwg")})));
  std::error_code refused;
  std::filesystem::create_hard_link(Folder() / "twin.dwg", Folder() / "other.dwg", refused);
  if (refused) GTEST_SKIP() << "No link can be made here: " << refused.message();
  // The font.
  EXPECT_THAT(Zdx({"deps", "twin.dwg"}).out, EndsWith("1 file, none missing\n"));
}

TEST_F(Deps, AreOneGraphForAllFiles) {
  const Outcome dot = Zdx({"deps", "-o", "dot", "plan.dwg", "nowhere.dwg", "pipes.dxf"});
  EXPECT_EQ(dot.exitCode, kFileFailed);
  EXPECT_THAT(dot.err, StartsWith("zdx: nowhere.dwg: "));
  EXPECT_THAT(dot.out, AllOf(StartsWith("digraph dependencies {\n"), EndsWith("}\n")));
  EXPECT_THAT(dot.out, HasSubstr("n2 [label=\"roof.dwg\\nmissing attached drawing\""));
  // The plan, its three drawings, the valves and the font.
  EXPECT_THAT(dot.out, HasSubstr("  n5 ["));
  EXPECT_THAT(dot.out, Not(HasSubstr("  n6 [")));
  const Outcome page = Zdx({"deps", "--output=html", "plan.dwg"});
  EXPECT_EQ(page.exitCode, 0);
  EXPECT_THAT(page.out, StartsWith("<!DOCTYPE html>\n"));
  EXPECT_THAT(page.out, HasSubstr("<title>Files that plan.dwg depends on</title>"));
}

TEST_F(Deps, OfNothingButFailuresAreNoGraph) {
  const Outcome outcome = Zdx({"deps", "-o", "html", "nowhere.dwg"});
  EXPECT_EQ(outcome.exitCode, kFileFailed);
  EXPECT_THAT(outcome.out, IsEmpty());
}

TEST_F(Deps, ThatCannotBeWrittenAreTold) {
  for (const char* const format : {"text", "json", "dot", "html"}) {
    const Outcome outcome = Zdx({"deps", "-o", format, "plan.dwg"}, OutputTo::kFullDevice);
    EXPECT_EQ(outcome.exitCode, kOutputFailed) << format;
    EXPECT_THAT(outcome.err, StartsWith("zdx: standard output: ")) << format;
  }
}

class DepsOfServices : public Deps {
 protected:
  static std::string Module(const char* name) {
    return BytesOf(std::filesystem::path(ZDX_PROGRAM).parent_path() / name);
  }
};

TEST_F(DepsOfServices, AreToldLast) {
  const nlohmann::json list = ListOf({"--service", "2024=" + Module("good.zdx")});
  ASSERT_THAT(list, SizeIs(6));
  EXPECT_EQ(list[4].at("refId"), "good-1");
  EXPECT_EQ(list[4].at("kind"), "service");
  EXPECT_EQ(list[4].at("sourcePath"), "points.txt");
  EXPECT_EQ(list[4].at("absolutePath"), "/survey/points.txt");
  EXPECT_EQ(list[4].at("supportRePath"), false);
  EXPECT_EQ(list[4].at("parent"), "0");
  EXPECT_EQ(list[4].at("exists"), false);
  EXPECT_EQ(list[5].at("refId"), "good-2");
  EXPECT_EQ(list[5].at("supportRePath"), true);
}

TEST_F(DepsOfServices, ThatAreMissingCount) {
  EXPECT_EQ(Zdx({"deps", "--missing", "steel.dwg"}).exitCode, 0);
  const Outcome outcome =
      Zdx({"deps", "--missing", "--service", "1=" + Module("good.zdx"), "steel.dwg"});
  EXPECT_EQ(outcome.exitCode, kSomethingMissing);
  EXPECT_THAT(outcome.out, HasSubstr("points.txt  file of a service  MISSING\n"));
}

TEST_F(DepsOfServices, ThatTheDrawingNamesTooAreOneFile) {
  std::filesystem::create_directory(Folder() / "survey");
  Write("survey/curves.txt", "beside the drawing");
  drawing::DrawingSpec spec;
  spec.textStyles = {{"Standard", "curves.txt"}, {"Other", "points.txt"}};
  Write("survey/curves.dwg", dwg::Make(spec));
  EXPECT_THAT(
      Zdx({"deps", "--service", "1=" + Module("good.zdx"), "survey/curves.dwg"}).out,
      AllOf(HasSubstr("curves.txt  file of a service\n"), EndsWith("3 files, 2 missing\n")));
}

TEST_F(DepsOfServices, FailWithTheService) {
  const std::string throwing = "1=" + Module("throwing.zdx");
  const Outcome outcome = Zdx({"deps", "-o", "json", "--service", throwing, "steel.dwg"});
  EXPECT_EQ(outcome.exitCode, kFileFailed);
  EXPECT_THAT(outcome.err, StartsWith("zdx: steel.dwg: Unable to get vertical dependencies"));
  EXPECT_EQ(Documents(outcome.out).at(0).at("error").at("class"), "GetVerticalDependenciesError");
}

TEST_F(DepsOfServices, ThatCannotBeLoadedAreNamedAndTheRestIsTold) {
  const Outcome outcome =
      Zdx({"deps", "--service", "8=" + Module("lacking.zdx"), "--service=9=no\033where.zdx",
           "--service", "10=" + Module("good.zdx"), "steel.dwg"});
  EXPECT_EQ(outcome.exitCode, kFileFailed);
  EXPECT_THAT(outcome.err, HasSubstr("zdx: The service 8 isn't asked: '"));
  EXPECT_THAT(outcome.err, HasSubstr("zdx: The service 9 isn't asked: 'no\\x1bwhere.zdx'"));
  EXPECT_THAT(outcome.err, Not(HasSubstr("service 10")));
  EXPECT_THAT(outcome.out, HasSubstr("points.txt"));
}

}  // namespace

}  // namespace zdx_test
