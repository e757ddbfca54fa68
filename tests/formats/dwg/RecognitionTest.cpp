#include <gtest/gtest.h>

#include "backends/database/dwg/Recognition.h"
#include "support/handmade/HandMade.h"

namespace zdx::dwg {
namespace {

// A head of that version; its protection is the word at 24.
std::string Head(const std::string& magic, std::uint32_t protection = 0) {
  return handmade::Padded(magic, 24) + handmade::Low32(protection);
}

void ExpectRefusal(const std::string& bytes, RefusalKind kind, const std::wstring& words) {
  const Recognition recognition = Recognise(bytes);
  EXPECT_EQ(recognition.version, std::nullopt);
  EXPECT_EQ(recognition.refusal.kind, kind);
  EXPECT_NE(recognition.refusal.reason.text.find(words), std::wstring::npos)
      << recognition.refusal.reason.text;
}

TEST(DwgRecognition, KnowsTheVersionsFromAC1014ToAC1032) {
  EXPECT_EQ(Recognise(Head("AC1014")).version, model::kVersion1014);
  EXPECT_EQ(Recognise(Head("AC1015")).version, model::kVersion1015);
  EXPECT_EQ(Recognise(Head("AC1018")).version, model::kVersion1018);
  EXPECT_EQ(Recognise(Head("AC1021")).version, model::kVersion1021);
  EXPECT_EQ(Recognise(Head("AC1024")).version, model::kVersion1024);
  EXPECT_EQ(Recognise(Head("AC1027")).version, model::kVersion1027);
  EXPECT_EQ(Recognise(Head("AC1032")).version, model::kVersion1032);
}

TEST(DwgRecognition, AnOlderVersionIsNamed) {
  for (const std::string magic : {"AC1009", "AC1012", "AC1013", "AC2.10"}) {
    ExpectRefusal(Head(magic), RefusalKind::kVersionNotKnown,
                  std::wstring(magic.begin(), magic.end()) + L", which is older");
  }
}

TEST(DwgRecognition, ANewerVersionIsNamed) {
  for (const std::string magic : {"AC1033", "AC1035", "AC9999"}) {
    ExpectRefusal(Head(magic), RefusalKind::kVersionNotKnown,
                  std::wstring(magic.begin(), magic.end()) + L", which is newer");
  }
}

TEST(DwgRecognition, AVersionBetweenIsNamed) {
  for (const std::string magic : {"AC1016", "AC1019", "AC1026"}) {
    ExpectRefusal(Head(magic), RefusalKind::kVersionNotKnown,
                  std::wstring(magic.begin(), magic.end()) + L", which isn't one of those");
  }
}

TEST(DwgRecognition, OtherBytesAreNoDrawing) {
  ExpectRefusal("", RefusalKind::kNotADrawing, L"empty");
  ExpectRefusal(Head("PNG"), RefusalKind::kNotADrawing, L"mark of a drawing");
  ExpectRefusal(Head("AC10x2"), RefusalKind::kNotADrawing, L"mark of a drawing");
  ExpectRefusal("AC103", RefusalKind::kNotADrawing, L"mark of a drawing");
}

TEST(DwgRecognition, AFileThatEndsWithinItsHeadIsDamaged) {
  ExpectRefusal(Head("AC1015").substr(0, 27), RefusalKind::kDamaged, L"ends within its head");
  ExpectRefusal("AC1032", RefusalKind::kDamaged, L"ends within its head");
}

TEST(DwgRecognition, AnEncryptedDrawingIsRefused) {
  for (const std::uint32_t protection : {1u, 2u, 3u}) {
    ExpectRefusal(Head("AC1018", protection), RefusalKind::kProtected, L"encrypted");
    ExpectRefusal(Head("AC1032", protection), RefusalKind::kProtected, L"encrypted");
  }
}

// There the list of sections stands in that place.
TEST(DwgRecognition, BelowAC1018TheHeadHasNoProtection) {
  EXPECT_EQ(Recognise(Head("AC1015", 3)).version, model::kVersion1015);
}

}  // namespace
}  // namespace zdx::dwg
