// The marks of the products, in real files.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/PublicRead.h"
#include "support/dxf/DxfMaker.h"

namespace {

using ZDXEngine::DwgFileType;
using ZDXEngine::FilePropertyMgr;

DwgFileType FlavourOf(const drawing::DrawingSpec& spec, const dxf::Writing& writing = {}) {
  const std::wstring path = zdx_test::WriteFile(dxf::Make(spec, writing));
  zdx_test::ReadFile(path);
  return FilePropertyMgr::Instance().GetFileType(path);
}

drawing::DrawingSpec WithEntries(const std::vector<drawing::NamedObject>& entries) {
  drawing::DrawingSpec spec;
  spec.rootEntries = entries;
  return spec;
}

TEST(Flavour, WithoutAMarkIsThePlainOne) {
  EXPECT_EQ(FlavourOf(drawing::DrawingSpec()), DwgFileType::Zent);
}

TEST(Flavour, ABlockMarksItInAnyCaseAndVersion) {
  for (const char* version : {"AC1009", "AC1015", "AC1032"}) {
    drawing::DrawingSpec spec;
    spec.version = version;
    spec.blocks = {{"door"}, {"WD_M"}};
    EXPECT_EQ(FlavourOf(spec), DwgFileType::Zne) << version;
  }
}

TEST(Flavour, EntriesOfTheRootDictionaryMarkIt) {
  EXPECT_EQ(FlavourOf(WithEntries({{"IDW_DICT_ROOT", drawing::Dictionary()}})),
            DwgFileType::Partonic);
  EXPECT_EQ(FlavourOf(WithEntries({{"ZNME_SCOPE_NAME", drawing::Xrecord()}})), DwgFileType::Znm);
  EXPECT_EQ(FlavourOf(WithEntries({{"ZNME_SCOPE_NAME", drawing::Xrecord()},
                                   {"ZNASGREF_MASTER", drawing::Xrecord()}})),
            DwgFileType::Zmt);
}

TEST(Flavour, AnObjectOfTheClassMarksIt) {
  drawing::DrawingSpec spec = WithEntries({{"Root", drawing::CustomObject("TERRDBTREENODE")}});
  spec.classes = {{"TERRDBTREENODE", "TerrDbTreeNode"}};
  EXPECT_EQ(FlavourOf(spec), DwgFileType::Terrane3D);
}

TEST(Flavour, AProxyForTheClassMarksIt) {
  for (const dxf::Form form : {dxf::Form::Ascii, dxf::Form::Binary}) {
    const drawing::DrawingSpec spec = WithEntries({{"Root", drawing::Proxy("TerrDbTreeNode")}});
    EXPECT_EQ(FlavourOf(spec, {.form = form}), DwgFileType::Terrane3D);
  }
}

TEST(Flavour, AnyOtherObjectOfThatNameDoesNot) {
  EXPECT_EQ(FlavourOf(WithEntries({{"Root", drawing::Xrecord()}})), DwgFileType::Zent);
  EXPECT_EQ(FlavourOf(WithEntries({{"Root", drawing::Proxy("OtherNode")}})), DwgFileType::Zent);
  EXPECT_EQ(FlavourOf(WithEntries({{"Root", drawing::ObjectAt("ABCDEF")}})), DwgFileType::Zent);
}

}  // namespace
