// The creator of real drawings, where a collection of them lies beside the project: what the engine
// reads is what the drawing's truth file says that its block holds.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>

#include "ZDXEngine/Utf8.h"
#include "backends/System.h"
#include "backends/common/CommonProvider.h"
#include "platform/common/CommonUtils.h"
#include "properties/appinfo/AppInfoReader.h"
#include "properties/appinfo/CreatorProperties.h"
#include "properties/appinfo/DwgHeader.h"
#include "support/Paths.h"
#include "support/Samples.h"

namespace {

using nlohmann::json;

// Keeps the entries of a block as pairs of id and text.
class Entries final : public ZDXEngine::ZnHsAppInfoNotifier {
 public:
  void OnEntryCount(std::uint32_t count) override { announced = count; }
  void OnPropertySet(const GUID& formatId, const std::wstring& text) override {
    told.push_back({ZDXEngine::Utf8FromWide(Common::PropertyUtils::GuidToString(formatId)),
                    ZDXEngine::Utf8FromWide(text)});
  }

  std::uint32_t announced = 0;
  std::vector<std::pair<std::string, std::string>> told;
};

class Creator : public testing::TestWithParam<std::string> {
 protected:
  Creator() {
    std::ifstream(zdx_test::TruthOf(GetParam())) >> truth;
    os::InstallProvider(system_.get());
    os::InstallFileProvider(files_.get());
    Common::InstallProvider(&common_);
  }
  ~Creator() override {
    Common::InstallProvider(nullptr);
    os::InstallFileProvider(nullptr);
    os::InstallProvider(nullptr);
  }

  bool IsReachable() const { return !truth["appInfo"]["offsetByRawScan"].is_null(); }
  // What a property of the summary set holds by the truth: its text from behind the tags on.
  std::vector<std::string> Expected(const std::string& number) const {
    if (!IsReachable()) return {};
    for (const json& entry : truth["appInfo"]["entries"]) {
      if (entry[0] != "{F29F85E0-4FF9-1068-AB91-08002B27B3D9}") continue;
      const std::string text = entry[1];
      const std::string tags = "<prop id=\"" + number + "\"><string>";
      const std::size_t begin = text.find(tags);
      if (begin == std::string::npos) return {};
      const std::size_t end = text.find("</string>", begin);
      return {text.substr(begin + tags.size(), end - begin - tags.size())};
    }
    return {};
  }
  static std::vector<std::string> Told(const std::vector<ZDXEngine::_PropData>& properties,
                                       const std::wstring& name) {
    std::vector<std::string> texts;
    for (const auto& property : properties) {
      if (property.name == name) texts.push_back(ZDXEngine::Utf8FromWide(property.value.bstrVal));
    }
    return texts;
  }

  json truth;
  const std::wstring path = zdx_test::NameOf(zdx_test::SampleFolder() / GetParam());

 private:
  std::unique_ptr<os::Provider> system_ = zdx::MakeSystem();
  std::unique_ptr<os::FileProvider> files_ = zdx::MakeSystemFiles();
  zdx::CommonProvider common_{[](os::ModuleHandle, unsigned int) { return std::wstring(); }};
};

TEST_P(Creator, TheNameAndTheVersionAreTheFiles) {
  std::vector<ZDXEngine::_PropData> properties;
  ZDXEngine::CollectCreatorProperties(properties, path);
  EXPECT_EQ(Told(properties, L"DWG Creator Name"), Expected("258"));
  EXPECT_EQ(Told(properties, L"DWG Creator Version"), Expected("259"));
  EXPECT_EQ(properties.size(), Expected("258").size() + Expected("259").size());
}

TEST_P(Creator, EveryEntryOfTheBlockIsTold) {
  Entries entries;
  EXPECT_EQ(ZDXEngine::ReadAppInfo(path, entries), IsReachable());
  std::vector<std::pair<std::string, std::string>> expected;
  if (IsReachable()) {
    for (const json& entry : truth["appInfo"]["entries"]) expected.push_back({entry[0], entry[1]});
  }
  EXPECT_EQ(entries.told, expected);
  EXPECT_EQ(entries.announced, expected.size());
}

// A block that isn't reached from the header may lie in the file all the same.
TEST_P(Creator, TheHeaderLeadsToTheBlock) {
  std::uint32_t offset = 0;
  const ZDXEngine::DwgHeaderKind kind = ZDXEngine::LocateAppInfo(path, offset);
  if (!IsReachable()) return;
  EXPECT_GE(kind, ZDXEngine::kDwgHeader1018);
  const std::int64_t block = truth["appInfo"]["sentinelAt"][0];
  EXPECT_LE(offset, block);
  EXPECT_LE(block - offset, 4063);
}

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(Creator);
INSTANTIATE_TEST_SUITE_P(Dwg, Creator, testing::ValuesIn(zdx_test::SampleNames(".dwg")),
                         [](const auto& info) { return zdx_test::SampleTestName(info.param); });

TEST(CreatorSamples, AreReadWhereTheyLie) {
  if (zdx_test::SampleNames(".dwg").empty()) {
    GTEST_SKIP() << "no collection of real drawings at " << zdx_test::SampleFolder()
                 << ": its tests are left out";
  }
  SUCCEED();
}

}  // namespace
