// Two files of one drawing, one DXF and one DWG, tell the same of it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <set>

#include "ZDXEngine/Utf8.h"
#include "support/Paths.h"
#include "support/PublicRead.h"
#include "support/Samples.h"

namespace {

using nlohmann::json;
using Records = std::vector<std::pair<std::string, std::string>>;

// The real drawings that are there in both formats, without their extensions.
std::vector<std::string> RealPairs() {
  std::vector<std::string> pairs;
  const std::vector<std::string> dxf = zdx_test::SampleNames(".dxf");
  for (const std::string& dwg : zdx_test::SampleNames(".dwg")) {
    const std::string stem = dwg.substr(0, dwg.rfind('.'));
    if (std::find(dxf.begin(), dxf.end(), stem + ".dxf") != dxf.end()) pairs.push_back(stem);
  }
  return pairs;
}

std::set<std::string> NamedObjectsInTruth(const std::string& name) {
  json truth;
  std::ifstream(zdx_test::TruthOf(name)) >> truth;
  const auto names = truth["dictionaries"]["namedObjects"].get<std::vector<std::string>>();
  return {names.begin(), names.end()};
}

// Asks for the values of all blocks that are told to carry some.
std::vector<ZDXEngine::BlockFilterParam> AllBlocks(const std::filesystem::path& path,
                                                   bool usePrompt) {
  std::vector<ZDXEngine::BlockFilterParam> filters;
  for (const ZDXEngine::BlockInfo& block : zdx_test::ListBlocks(zdx_test::NameOf(path))) {
    filters.push_back(zdx_test::FilterFor(block.name, usePrompt));
  }
  return filters;
}

// Everything that the file tells, but for what only one of the two may carry: the picture, and the
// program that wrote the drawing.
std::vector<std::string> Told(const std::filesystem::path& path,
                              std::vector<ZDXEngine::BlockFilterParam> filters = {}) {
  const auto reading = zdx_test::ReadFile(zdx_test::NameOf(path), std::move(filters),
                                          ZDXEngine::FilePropertyMgr::AllProperties);
  std::vector<std::string> told;
  for (const ZDXEngine::_PropData& record : reading.properties) {
    if (record.formatId == zdx_test::kSummary && record.name == L"17") continue;
    if (record.name.starts_with(L"DWG Creator ")) continue;
    std::string line = ZDXEngine::Utf8FromWide(record.formatId + L" " + record.name + L": ");
    if (record.value.vt == VT_BSTR) line += ZDXEngine::Utf8FromWide(record.value.bstrVal);
    if (record.value.vt == VT_R8) line += std::to_string(record.value.dblVal);
    if (record.value.vt == VT_BOOL) line += record.value.boolVal != 0 ? "true" : "false";
    told.push_back(line);
  }
  return told;
}

// What is told of the blocks that carry attributes.
std::vector<std::string> Listed(const std::filesystem::path& path) {
  std::vector<std::string> lines;
  const auto add = [&](const std::wstring& text, const std::string& more) {
    lines.push_back(ZDXEngine::Utf8FromWide(text) + more);
  };
  for (const ZDXEngine::BlockInfo& block : zdx_test::ListBlocks(zdx_test::NameOf(path))) {
    add(block.name, ": " + std::to_string(block.references) + " references and " +
                        std::to_string(block.variations) + " of variations");
    for (const ZDXEngine::AttributeDefinitionInfo& definition : block.definitions) {
      add(definition.tag + L", " + definition.prompt + L" = " + definition.text,
          definition.isConstant ? " (constant)" : "");
    }
  }
  return lines;
}

class RealTwins : public testing::TestWithParam<std::string> {};

TEST_P(RealTwins, TellTheSame) {
  std::vector<std::string> dwg = Told(zdx_test::SampleFolder() / (GetParam() + ".dwg"));
  std::vector<std::string> dxf = Told(zdx_test::SampleFolder() / (GetParam() + ".dxf"));
  // By their truths one root dictionary may have an entry that the other file lacks.
  const std::set<std::string> ofDwg = NamedObjectsInTruth(GetParam() + ".dwg");
  const std::set<std::string> ofDxf = NamedObjectsInTruth(GetParam() + ".dxf");
  std::vector<std::string> alone;
  std::set_symmetric_difference(ofDwg.begin(), ofDwg.end(), ofDxf.begin(), ofDxf.end(),
                                std::back_inserter(alone));
  for (const std::string& name : alone) {
    const std::string line =
        ZDXEngine::Utf8FromWide(zdx_test::kStorage) + " Named Object Name: " + name;
    EXPECT_EQ(std::erase(dwg, line) + std::erase(dxf, line), 1u) << name;
  }
  EXPECT_GT(dwg.size(), 40u);
  EXPECT_EQ(dwg, dxf);
}

TEST_P(RealTwins, TellTheSameOfTheirBlocks) {
  const std::filesystem::path dwg = zdx_test::SampleFolder() / (GetParam() + ".dwg");
  const std::filesystem::path dxf = zdx_test::SampleFolder() / (GetParam() + ".dxf");
  EXPECT_EQ(Listed(dwg), Listed(dxf));
  for (const bool usePrompt : {false, true}) {
    const auto valuesOf = [usePrompt](const std::filesystem::path& path) {
      const std::wstring name = zdx_test::NameOf(path);
      return zdx_test::ReadFile(name, AllBlocks(name, usePrompt),
                                ZDXEngine::FilePropertyMgr::BlockAttributes)
          .Records(zdx_test::kBlockSet);
    };
    EXPECT_EQ(valuesOf(dwg), valuesOf(dxf));
  }
}

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(RealTwins);
INSTANTIATE_TEST_SUITE_P(Samples, RealTwins, testing::ValuesIn(RealPairs()),
                         [](const auto& info) { return zdx_test::SampleTestName(info.param); });

struct ExampleTwin {
  const char* dwg;
  const char* dxf;
  // What the DWG drawing's version can't tell.
  const char* missing = nullptr;
};

TEST(ExampleTwins, TellTheSame) {
  const std::filesystem::path examples = std::filesystem::path(ZDX_SOURCE_DIR) / "examples";
  // The first version of a location has no unit of heights.
  const ExampleTwin twins[] = {{"site-plan.dwg", "site-plan.dxf"},
                               {"site-plan-2013.dwg", "site-plan.dxf"},
                               {"site-plan-2010.dwg", "site-plan.dxf"},
                               {"site-plan-2007.dwg", "site-plan.dxf", " verticalUnits: "},
                               {"grading-2004.dwg", "grading.dxf"},
                               {"survey-r2000.dwg", "survey-r2000.dxf"}};
  for (const ExampleTwin& twin : twins) {
    EXPECT_EQ(Listed(examples / twin.dwg), Listed(examples / twin.dxf)) << twin.dwg;
    const auto tell = [&](const char* name, bool usePrompt) {
      std::vector<std::string> told = Told(examples / name, AllBlocks(examples / name, usePrompt));
      if (twin.missing != nullptr) {
        EXPECT_EQ(std::erase_if(told,
                                [&twin](const std::string& line) {
                                  return line.find(twin.missing) != std::string::npos;
                                }),
                  1u);
      }
      return told;
    };
    for (const bool usePrompt : {false, true}) {
      const std::vector<std::string> told = tell(twin.dwg, usePrompt);
      EXPECT_GT(told.size(), 30u);
      EXPECT_EQ(told, tell(twin.dxf, usePrompt)) << twin.dwg;
    }
  }
}

}  // namespace
