// The blocks of real drawings, where a collection of them lies beside the project: their names are
// those that the drawing's truth file tells, in its order.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <fstream>
#include <map>
#include <memory>
#include <nlohmann/json.hpp>
#include <set>
#include <variant>

#include "ZDXEngine/Utf8.h"
#include "backends/database/dwg/DwgDrawing.h"
#include "support/Paths.h"
#include "support/Samples.h"

namespace {

using nlohmann::json;
using zdx::model::TableKind;

std::vector<std::string> BlocksOf(const std::string& name) {
  const auto path = zdx_test::SampleFolder() / name;
  auto file = zdx::file::MappedFile::Open(zdx_test::NameOf(path));
  auto opened = zdx::dwg::DwgDrawing::Open(std::move(std::get<zdx::file::MappedFile>(file)),
                                           std::make_shared<zdx::model::Report>());
  const auto drawing = std::get<std::unique_ptr<zdx::model::Drawing>>(std::move(opened));
  std::vector<std::string> names;
  for (const zdx::model::ObjectKey record : drawing->TableRecords(TableKind::kBlock)) {
    names.push_back(ZDXEngine::Utf8FromWide(
        drawing->RecordName(TableKind::kBlock, record).value_or(L"(can't be read)")));
  }
  return names;
}

// Whether it is the name of a block that people didn't name: a letter and a number.
bool IsAnonymous(const std::string& name) {
  return name.size() > 2 && name[0] == '*' &&
         std::all_of(name.begin() + 2, name.end(),
                     [](unsigned char c) { return std::isdigit(c) != 0; });
}

class BlockSamples : public testing::TestWithParam<std::string> {
 protected:
  BlockSamples() { std::ifstream(zdx_test::TruthOf(GetParam())) >> truth; }

  json truth;
};

TEST_P(BlockSamples, HaveTheirFullNames) {
  std::vector<std::string> names = BlocksOf(GetParam());
  std::vector<std::string> expected;
  for (const json& block : truth.at("blocks")) expected.push_back(block.at("name"));
  // Where the truth only counts the anonymous ones, each has a name of its own all the same.
  if (truth.contains("anonymousBlocks")) {
    std::map<std::string, int> counts;
    std::set<std::string> anonymous;
    std::erase_if(names, [&](const std::string& name) {
      if (!IsAnonymous(name)) return false;
      ++counts[name.substr(1, 1)];
      EXPECT_TRUE(anonymous.insert(name).second) << name;
      return true;
    });
    EXPECT_EQ(json(counts), truth.at("anonymousBlocks"));
  }
  EXPECT_EQ(names, expected);
}

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(BlockSamples);
INSTANTIATE_TEST_SUITE_P(Dwg, BlockSamples, testing::ValuesIn(zdx_test::SampleNames(".dwg")),
                         [](const auto& info) { return zdx_test::SampleTestName(info.param); });

TEST(BlockSampleFolder, IsReadWhereItLies) {
  if (zdx_test::SampleNames(".dwg").empty()) {
    GTEST_SKIP() << "no collection of real drawings at " << zdx_test::SampleFolder()
                 << ": its tests are left out";
  }
  SUCCEED();
}

}  // namespace
