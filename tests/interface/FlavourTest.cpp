// The marks of the products, in real files.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/PublicRead.h"
#include "support/dwg/DwgMaker.h"
#include "support/dxf/DxfMaker.h"

namespace {

using ZDXEngine::DwgFileType;
using ZDXEngine::FilePropertyMgr;

// Every form of file in which a drawing is made.
struct FileForm {
  const char* name;
  const char* suffix;
  std::vector<std::string> versions;
  std::string (*make)(const drawing::DrawingSpec& spec);
};

const FileForm kForms[] = {
    {"Text",
     ".dxf",
     {"AC1015", "AC1032"},
     [](const drawing::DrawingSpec& spec) { return dxf::Make(spec); }},
    {"Binary",
     ".dxf",
     {"AC1015", "AC1032"},
     [](const drawing::DrawingSpec& spec) { return dxf::Make(spec, {.form = dxf::Form::Binary}); }},
    {"Dwg",
     ".dwg",
     {"AC1014", "AC1015", "AC1018", "AC1021", "AC1024", "AC1027", "AC1032"},
     [](const drawing::DrawingSpec& spec) { return dwg::Make(spec); }},
};

DwgFileType FlavourIn(const std::string& bytes, const std::string& suffix) {
  const std::wstring path = zdx_test::WriteFile(bytes, suffix);
  zdx_test::ReadFile(path);
  return FilePropertyMgr::Instance().GetFileType(path);
}

// Expects the flavour in every form and version.
void ExpectFlavour(drawing::DrawingSpec spec, DwgFileType flavour) {
  for (const FileForm& form : kForms) {
    for (const std::string& version : form.versions) {
      spec.version = version;
      EXPECT_EQ(FlavourIn(form.make(spec), form.suffix), flavour) << form.name << ' ' << version;
    }
  }
}

drawing::DrawingSpec WithEntries(const std::vector<drawing::NamedObject>& entries) {
  drawing::DrawingSpec spec;
  spec.rootEntries = entries;
  return spec;
}

TEST(Flavour, WithoutAMarkIsThePlainOne) {
  ExpectFlavour(drawing::DrawingSpec(), DwgFileType::Zent);
}

TEST(Flavour, ABlockMarksItInAnyCase) {
  drawing::DrawingSpec spec;
  spec.blocks = {{"door"}, {"WD_M"}};
  ExpectFlavour(spec, DwgFileType::Zne);
  spec.version = "AC1009";
  EXPECT_EQ(FlavourIn(dxf::Make(spec), ".dxf"), DwgFileType::Zne);
}

TEST(Flavour, ADynamicBlockMarksItToo) {
  drawing::DrawingSpec spec;
  spec.blocks = {{"door"}, {"wd_m"}};
  spec.blocks[1].isDynamic = true;
  ExpectFlavour(spec, DwgFileType::Zne);
}

TEST(Flavour, EntriesOfTheRootDictionaryMarkIt) {
  ExpectFlavour(WithEntries({{"IDW_DICT_ROOT", drawing::Dictionary()}}), DwgFileType::Partonic);
  ExpectFlavour(WithEntries({{"ZNME_SCOPE_NAME", drawing::Xrecord()}}), DwgFileType::Znm);
  ExpectFlavour(WithEntries({{"ZNME_SCOPE_NAME", drawing::Xrecord()},
                             {"ZNASGREF_MASTER", drawing::Xrecord()}}),
                DwgFileType::Zmt);
}

TEST(Flavour, AnObjectOfTheClassMarksIt) {
  drawing::DrawingSpec spec = WithEntries({{"Root", drawing::CustomObject("TERRDBTREENODE")}});
  spec.classes = {{"TERRDBTREENODE", "TerrDbTreeNode"}};
  ExpectFlavour(spec, DwgFileType::Terrane3D);
}

TEST(Flavour, AProxyForTheClassMarksIt) {
  ExpectFlavour(WithEntries({{"Root", drawing::Proxy("TerrDbTreeNode")}}), DwgFileType::Terrane3D);
}

TEST(Flavour, AnyOtherObjectOfThatNameDoesNot) {
  ExpectFlavour(WithEntries({{"Root", drawing::Xrecord()}}), DwgFileType::Zent);
  ExpectFlavour(WithEntries({{"Root", drawing::Proxy("OtherNode")}}), DwgFileType::Zent);
}

TEST(Flavour, AnEntryThatLeadsNowhereDoesNot) {
  const drawing::DrawingSpec spec = WithEntries({{"Root", drawing::ObjectAt("ABCDEF")}});
  EXPECT_EQ(FlavourIn(dxf::Make(spec), ".dxf"), DwgFileType::Zent);
  EXPECT_EQ(FlavourIn(dwg::Make(spec), ".dwg"), DwgFileType::Zent);
}

}  // namespace
