// The marks of the products, in real files.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/PublicRead.h"
#include "support/dxf/DxfMaker.h"

namespace {

using ZDXEngine::DwgFileType;
using ZDXEngine::FilePropertyMgr;

DwgFileType FlavourOf(const dxf::DrawingSpec& spec) {
  const std::wstring path = zdx_test::WriteFile(dxf::Make(spec));
  zdx_test::ReadFile(path);
  return FilePropertyMgr::Instance().GetFileType(path);
}

dxf::DrawingSpec WithEntries(const std::vector<dxf::NamedObject>& entries) {
  dxf::DrawingSpec spec;
  spec.rootEntries = entries;
  return spec;
}

TEST(Flavour, WithoutAMarkIsThePlainOne) {
  EXPECT_EQ(FlavourOf(dxf::DrawingSpec()), DwgFileType::Zent);
}

TEST(Flavour, ABlockMarksItInAnyCaseAndVersion) {
  for (const char* version : {"AC1009", "AC1015", "AC1032"}) {
    dxf::DrawingSpec spec;
    spec.version = version;
    spec.blocks = {{"door"}, {"WD_M"}};
    EXPECT_EQ(FlavourOf(spec), DwgFileType::Zne) << version;
  }
}

TEST(Flavour, EntriesOfTheRootDictionaryMarkIt) {
  EXPECT_EQ(FlavourOf(WithEntries({{"IDW_DICT_ROOT", dxf::Dictionary()}})), DwgFileType::Partonic);
  EXPECT_EQ(FlavourOf(WithEntries({{"ZNME_SCOPE_NAME", dxf::Xrecord()}})), DwgFileType::Znm);
  EXPECT_EQ(FlavourOf(WithEntries(
                {{"ZNME_SCOPE_NAME", dxf::Xrecord()}, {"ZNASGREF_MASTER", dxf::Xrecord()}})),
            DwgFileType::Zmt);
}

TEST(Flavour, AnObjectOfTheClassMarksIt) {
  dxf::DrawingSpec spec = WithEntries({{"Root", dxf::CustomObject("TERRDBTREENODE")}});
  spec.classes = {{"TERRDBTREENODE", "TerrDbTreeNode"}};
  EXPECT_EQ(FlavourOf(spec), DwgFileType::Terrane3D);
}

TEST(Flavour, AProxyForTheClassMarksIt) {
  for (const dxf::Form form : {dxf::Form::Ascii, dxf::Form::Binary}) {
    dxf::DrawingSpec spec = WithEntries({{"Root", dxf::Proxy("TerrDbTreeNode")}});
    spec.form = form;
    EXPECT_EQ(FlavourOf(spec), DwgFileType::Terrane3D);
  }
}

TEST(Flavour, AnyOtherObjectOfThatNameDoesNot) {
  EXPECT_EQ(FlavourOf(WithEntries({{"Root", dxf::Xrecord()}})), DwgFileType::Zent);
  EXPECT_EQ(FlavourOf(WithEntries({{"Root", dxf::Proxy("OtherNode")}})), DwgFileType::Zent);
  EXPECT_EQ(FlavourOf(WithEntries({{"Root", dxf::ObjectAt("ABCDEF")}})), DwgFileType::Zent);
}

}  // namespace
