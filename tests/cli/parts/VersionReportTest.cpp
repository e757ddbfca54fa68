#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include "VersionReport.h"

namespace zdx {

namespace {

TEST(TextOfVersions, HasThreeLines) {
  EXPECT_EQ(TextOf(L"a\033.dwg", {L"kDHL_1032", L"kDHL_1015", L"kDHL_1021", std::nullopt}),
            "a\\x1b.dwg\n"
            "  LastSavedAs  kDHL_1015\n"
            "  Signature    kDHL_1021\n"
            "  Current      kDHL_1032\n");
}

TEST(TextOfVersions, OfADrawingThatCannotBeOpenedHasNoLastOne) {
  EXPECT_THAT(TextOf(L"a.dwg", {L"kDHL_1032", L"", L"kDHL_1021", Failure()}),
              ::testing::HasSubstr("  LastSavedAs  (none)\n  Signature    kDHL_1021\n"));
}

TEST(JsonOfVersions, IsOneDocumentWithItsKeysInOrder) {
  EXPECT_EQ(JsonOf(L"a.dwg", {L"kDHL_1032", L"kDHL_1015", L"kDHL_1021", std::nullopt}),
            "{\"schema\":\"zdx/1\",\"file\":\"a.dwg\",\"status\":\"ok\","
            "\"lastSavedAsFileVersion\":\"kDHL_1015\",\"terrane3DVersion\":\"kDHL_1021\","
            "\"currentVersion\":\"kDHL_1032\"}\n");
}

TEST(JsonOfVersions, OfADrawingThatCannotBeOpenedHasTheFailure) {
  const Failure failure{"NotFound", 102, "Unable to find file 'a.dwg'", "", {}};
  const nlohmann::json document =
      nlohmann::json::parse(JsonOf(L"a.dwg", {L"kDHL_1032", L"", L"kDHL_Unknown", failure}));
  EXPECT_EQ(document.at("status"), "error");
  EXPECT_TRUE(document.at("lastSavedAsFileVersion").is_null());
  EXPECT_EQ(document.at("terrane3DVersion"), "kDHL_Unknown");
  EXPECT_EQ(document.at("error").at("class"), "NotFound");
}

}  // namespace

}  // namespace zdx
