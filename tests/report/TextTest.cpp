// Readings, date-times and addresses as text.
#include "report/AddressText.h"
#include "report/DateTimeForPeople.h"
#include "report/Reading.h"

#include <gtest/gtest.h>
#include <limits>
#include <vector>

namespace strake::tests {
namespace {

TEST(Reading, IsScaledExactlyByItsModifier) {
  struct Case {
    std::int32_t reading;
    std::int32_t modifier;
    std::string expected;
  };
  constexpr std::int32_t kLowest = std::numeric_limits<std::int32_t>::min();
  constexpr std::int32_t kHighest = std::numeric_limits<std::int32_t>::max();
  const std::vector<Case> cases = {
      {500, -2, "5.00"},
      {2700, -2, "27.00"},
      {5, -2, "0.05"},
      {0, -2, "0.00"},
      {-5, -2, "-0.05"},
      {-1204, -2, "-12.04"},
      {123, -1, "12.3"},
      {123, -3, "0.123"},
      {123, -18, "0.000000000000000123"},
      {73, 0, "73"},
      {-73, 0, "-73"},
      {40, 2, "4000"},
      {-4, 3, "-4000"},
      {0, 5, "0"},
      {7, 19, "7e19"},
      {7, -19, "7e-19"},
      {-7, kLowest, "-7e-2147483648"},
      {7, kHighest, "7e2147483647"},
      {kLowest, -2, "-21474836.48"},
      {kHighest, -2, "21474836.47"},
      {kLowest, 0, "-2147483648"},
  };
  for (const Case& one : cases) {
    EXPECT_EQ(report::ScaledReading(one.reading, one.modifier), one.expected);
  }
}

TEST(Reading, NamesTheUnitsOfServiceProcessorsAndNumbersTheOthers) {
  EXPECT_EQ(report::UnitText(2), "°C");
  EXPECT_EQ(report::UnitText(5), "V");
  EXPECT_EQ(report::UnitText(19), "RPM");
  EXPECT_EQ(report::UnitText(65), "%");
  EXPECT_EQ(report::UnitText(6), "A");
  EXPECT_EQ(report::UnitText(7), "W");
  EXPECT_EQ(report::UnitText(0), "0");
  EXPECT_EQ(report::UnitText(65535), "65535");
}

TEST(DateTimeText, IsWrittenAsAPersonWritesIt) {
  struct Case {
    std::string cim;
    std::string expected;
  };
  const std::vector<Case> cases = {
      {"20100615134530.000000-120", "2010-06-15 13:45:30 UTC-02:00"},
      {"20240229000000.000000+000", "2024-02-29 00:00:00 UTC+00:00"},
      {"00010101235959.000001+999", "0001-01-01 23:59:59.000001 UTC+16:39"},
      {"20100615134530.120000+345", "2010-06-15 13:45:30.120000 UTC+05:45"},
  };
  for (const Case& one : cases) {
    EXPECT_EQ(report::DateTimeForPeople(one.cim), one.expected);
  }
}

TEST(DateTimeText, LeavesATextOfAnotherFormAsItIs) {
  for (const std::string text :
       {"", "now", "20100615134530.000000-12", "20100615134530.000000-1200",
        "2010061513453a.000000-120", "20100615134530,000000-120", "20100615134530.000000:120",
        "20100615******.******+000"}) {
    EXPECT_EQ(report::DateTimeForPeople(text), text);
  }
}

TEST(AddressText, JoinsAnAddressAndItsMask) {
  struct Case {
    std::string mask;
    std::string expected;
  };
  const std::vector<Case> cases = {
      {"255.255.255.0", "10.0.0.5/24 (255.255.255.0)"},
      {"255.255.255.255", "10.0.0.5/32 (255.255.255.255)"},
      {"0.0.0.0", "10.0.0.5/0 (0.0.0.0)"},
      {"255.255.240.0", "10.0.0.5/20 (255.255.240.0)"},
      {"255.0.255.0", "10.0.0.5 mask 255.0.255.0"},
      {"0.255.255.255", "10.0.0.5 mask 0.255.255.255"},
      {"", "10.0.0.5 mask "},
      {"255.255.255", "10.0.0.5 mask 255.255.255"},
      {"255.255.255.0.0", "10.0.0.5 mask 255.255.255.0.0"},
      {"255.255.255.256", "10.0.0.5 mask 255.255.255.256"},
      {"255.255.255.-1", "10.0.0.5 mask 255.255.255.-1"},
  };
  for (const Case& one : cases) {
    EXPECT_EQ(report::AddressWithMask("10.0.0.5", one.mask), one.expected);
  }
}

}  // namespace
}  // namespace strake::tests
