#include <gtest/gtest.h>

#include "FormatId.h"
#include "ZDXEngine/FormatIds.h"

namespace zdx {

namespace {

constexpr GUID kId = {0x01234567, 0x89AB, 0xCDEF, {0x01, 0x23, 0x45, 0x67, 0x89, 0xAB, 0xCD, 0xEF}};

TEST(FormatId, IsShownInBracesAndCapitals) {
  EXPECT_EQ(FormatIdText(kId), L"{01234567-89AB-CDEF-0123-456789ABCDEF}");
  EXPECT_EQ(FormatIdText(ZDXEngine::FMTID_Storage), L"{B725F130-47EF-101A-A5F1-02608C9EEBAC}");
}

TEST(FormatId, IsReadInBracesOrWithoutAndInEitherCase) {
  for (const char* const text :
       {"{01234567-89AB-CDEF-0123-456789ABCDEF}", "01234567-89AB-CDEF-0123-456789ABCDEF",
        "{01234567-89ab-cdef-0123-456789abcdef}", "01234567-89aB-cDeF-0123-456789AbCdEf"}) {
    const std::optional<GUID> id = ParseFormatId(text);
    ASSERT_TRUE(id) << text;
    EXPECT_EQ(FormatIdText(*id), FormatIdText(kId)) << text;
  }
}

TEST(FormatId, OfAnotherFormIsNone) {
  for (const char* const text :
       {"", "{}", "{01234567-89AB-CDEF-0123-456789ABCDEF", "01234567-89AB-CDEF-0123-456789ABCDEF}",
        "01234567-89AB-CDEF-0123-456789ABCDE", "01234567-89AB-CDEF-0123-456789ABCDEFF",
        "0123456789ABCDEF0123456789ABCDEF", "01234567-89AB-CDEF-01234-56789ABCDEF",
        "G1234567-89AB-CDEF-0123-456789ABCDEF", " 1234567-89AB-CDEF-0123-456789ABCDEF",
        "{{01234567-89AB-CDEF-0123-456789ABCDEF}}"}) {
    EXPECT_FALSE(ParseFormatId(text)) << text;
  }
}

}  // namespace

}  // namespace zdx
