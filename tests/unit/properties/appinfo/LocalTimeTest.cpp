// Local time as a number: what is refused, and what comes out.
#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <limits>
#include <string>

#include "ZDXEngine/Automation.h"
#include "properties/appinfo/LocalTime.h"
#include "support/TimeZone.h"

using ZDXEngine::MakeLocalTime;

namespace {

// Year to second.
using Fields = std::array<std::int32_t, 6>;

std::int64_t Time(const Fields& fields) {
  return MakeLocalTime(fields[0], fields[1], fields[2], fields[3], fields[4], fields[5]);
}

// The failure's code; S_OK if there is none.
HRESULT Failure(const Fields& fields) {
  try {
    Time(fields);
    return S_OK;
  } catch (const ATL::CAtlException& error) {
    return error.m_hr;
  }
}

// Tests run in a time zone of their own.
class LocalTime : public testing::Test {
 protected:
  LocalTime() { zdx_test::SetTimeZone("UTC0"); }
  ~LocalTime() override { zdx_test::SetTimeZone(had_ ? before_.c_str() : nullptr); }

 private:
  bool had_ = std::getenv("TZ") != nullptr;
  std::string before_ = had_ ? std::getenv("TZ") : "";
};

TEST_F(LocalTime, IsSecondsSinceTheBeginOf1970) {
  EXPECT_EQ(Time({1970, 1, 1, 0, 0, 0}), 0);
  EXPECT_EQ(Time({1970, 1, 1, 0, 0, 59}), 59);
  EXPECT_EQ(Time({1970, 1, 2, 1, 1, 1}), 90061);
  EXPECT_EQ(Time({2000, 3, 1, 12, 30, 15}), 951913815);
}

TEST_F(LocalTime, GoesBeyondThirtyTwoBits) { EXPECT_EQ(Time({2040, 1, 1, 0, 0, 0}), 2208988800); }

TEST_F(LocalTime, IsOfTheSystemsZone) {
  zdx_test::SetTimeZone("XXX5");
  EXPECT_EQ(Time({1970, 1, 1, 0, 0, 0}), 5 * 3600);
}

TEST_F(LocalTime, KnowsSummerTimeByItself) {
  if (!zdx_test::SetTimeZone("AAA0BBB,M3.5.0,M10.5.0")) {
    GTEST_SKIP() << "no test can set rules of summer time here";
  }
  EXPECT_EQ(Time({2021, 1, 15, 12, 0, 0}), 1610712000);
  EXPECT_EQ(Time({2021, 7, 15, 12, 0, 0}), 1626346800);
}

TEST_F(LocalTime, AcceptsTheLastOfEachField) {
  EXPECT_EQ(Failure({1970, 12, 31, 23, 59, 59}), S_OK);
}

TEST_F(LocalTime, RefusesEachFieldOutOfItsRange) {
  constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
  const Fields good = {2020, 6, 15, 12, 30, 30};
  const std::pair<std::size_t, std::int32_t> bad[] = {
      {0, 1969}, {0, 0},  {0, kLeast}, {1, 0},  {1, 13}, {1, -1}, {2, 0},  {2, 32},
      {2, -1},   {3, -1}, {3, 24},     {4, -1}, {4, 60}, {5, -1}, {5, 60}, {5, kLeast}};
  ASSERT_EQ(Failure(good), S_OK);
  for (const auto& [field, value] : bad) {
    Fields fields = good;
    fields[field] = value;
    EXPECT_EQ(Failure(fields), E_FAIL) << field << " " << value;
  }
}

TEST_F(LocalTime, ADayBeyondItsMonthIsOneOfTheNext) {
  EXPECT_EQ(Time({2021, 2, 30, 0, 0, 0}), Time({2021, 3, 2, 0, 0, 0}));
}

TEST_F(LocalTime, RefusesAMomentBeforeTheBegin) {
  zdx_test::SetTimeZone("XXX-1");
  EXPECT_EQ(Failure({1970, 1, 1, 0, 59, 59}), E_INVALIDARG);  // 1 second before
  EXPECT_EQ(Failure({1970, 1, 1, 0, 0, 0}), E_INVALIDARG);    // 1 hour before
  EXPECT_EQ(Failure({1970, 1, 1, 1, 0, 0}), S_OK);
}

}  // namespace
