#include <gtest/gtest.h>

#include <string>

#include "backends/database/dxf/ObjectIndex.h"

namespace zdx::dxf {
namespace {

ObjectIndex IndexOf(const std::string& text) {
  const TagStream stream(text, Form::kText);
  return ObjectIndex::Build(stream, 0, text.size());
}

std::string ObjectText(const std::string& type, const std::string& tags) {
  return "  0\n" + type + "\n" + tags;
}

TEST(ObjectIndex, LeadsFromAHandleToItsObject) {
  const std::string first = ObjectText("LINE", "  5\n2A\n  8\n0\n");
  const ObjectIndex index = IndexOf(first + ObjectText("CIRCLE", "  5\n2b\n"));
  EXPECT_EQ(index.Find(0x2A), 0u);
  EXPECT_EQ(index.Find(0x2B), first.size());
  EXPECT_EQ(index.Find(0x2C), std::nullopt);
}

TEST(ObjectIndex, HandlesMayComeInAnyOrder) {
  const std::string first = ObjectText("A", "  5\nFF\n");
  const ObjectIndex index = IndexOf(first + ObjectText("B", "  5\n1\n"));
  EXPECT_EQ(index.Find(0xFF), 0u);
  EXPECT_EQ(index.Find(1), first.size());
}

TEST(ObjectIndex, ARepeatedHandleIsTheFirstObjects) {
  const std::string first = ObjectText("A", "  5\n7\n");
  const std::string second = ObjectText("B", "  5\n5\n");
  EXPECT_EQ(IndexOf(first + second + ObjectText("C", "  5\n7\n")).Find(7), 0u);
}

TEST(ObjectIndex, TheHandleZeroIsNone) {
  const ObjectIndex index = IndexOf(ObjectText("A", "  5\n0\n") + ObjectText("B", "  5\nx\n"));
  EXPECT_EQ(index.size(), 0u);
  EXPECT_EQ(index.Find(0), std::nullopt);
}

TEST(ObjectIndex, ADimensionStyleHasItsHandleUnderACodeOfItsOwn) {
  const ObjectIndex index = IndexOf(ObjectText("DIMSTYLE", "105\n1E\n  5\n2F\n"));
  EXPECT_EQ(index.Find(0x1E), 0u);
  EXPECT_EQ(index.Find(0x2F), std::nullopt);
}

TEST(ObjectIndex, BehindASubclassMarkerTheCodeIsNoHandle) {
  EXPECT_EQ(IndexOf(ObjectText("A", "100\nSub\n  5\n2F\n")).size(), 0u);
}

TEST(ObjectIndex, TagsMayStandBeforeTheHandle) {
  EXPECT_EQ(IndexOf(ObjectText("A", "  8\nLayer\n102\n{G\n330\n9\n102\n}\n  5\n3C\n")).Find(0x3C),
            0u);
}

TEST(ObjectIndex, OnlyObjectsWithinThePlacesCount) {
  const std::string text = ObjectText("A", "  5\n1\n") + ObjectText("B", "  5\n2\n");
  const TagStream stream(text, Form::kText);
  const ObjectIndex index = ObjectIndex::Build(stream, 0, text.size() / 2);
  EXPECT_TRUE(index.Find(1));
  EXPECT_FALSE(index.Find(2));
}

TEST(ObjectIndex, HandlesBeyond32BitsAreFound) {
  const std::string first = ObjectText("A", "  5\nFFFFFFFFFFFFFFFF\n");
  const std::string second = ObjectText("B", "  5\n100000000\n");
  const ObjectIndex index = IndexOf(first + second + ObjectText("C", "  5\nFFFFFFFF\n"));
  EXPECT_EQ(index.Find(0xFFFFFFFFFFFFFFFF), 0u);
  EXPECT_EQ(index.Find(0x100000000), first.size());
  EXPECT_EQ(index.Find(0xFFFFFFFF), first.size() + second.size());
  EXPECT_EQ(index.Find(0x100000001), std::nullopt);
}

TEST(ObjectIndex, AHeadersVariablesAreNoObject) {
  const ObjectIndex index = IndexOf("  0\nSECTION\n  2\nHEADER\n  9\n$HANDSEED\n  5\nABC\n");
  EXPECT_EQ(index.Find(0xABC), std::nullopt);
}

TEST(ObjectIndex, HoldsEveryObjectOfALongFile) {
  std::string text;
  for (int i = 1; i <= 20000; ++i) {
    text += ObjectText("LINE", "  5\n" + std::to_string(i) + "\n  8\n0\n 10\n0.0\n");
  }
  EXPECT_EQ(IndexOf(text).size(), 20000u);
}

}  // namespace
}  // namespace zdx::dxf
