#include "cim/DateTimeText.h"
#include "plugin/host/TCIMDateTime.h"
#include "tests/platform/TestServer.h"

namespace strake::platform {
namespace {

using NVELKZEV20::TCIMDateTime;

struct Fields {
  unsigned short year, month;
  unsigned int day;
  unsigned short hour, minute, second;
  unsigned int microseconds;
  short offset;
};

void Set(TCIMDateTime& dateTime, const Fields& f) {
  dateTime.Set(f.year, f.month, f.day, f.hour, f.minute, f.second, f.microseconds, f.offset);
}

TEST(DateTime, IsAllZerosBeforeItIsSet) {
  EXPECT_EQ(TCIMDateTime().ToString(), "00000000000000.000000+000");
}

TEST(DateTime, WritesTheCimText) {
  const struct {
    Fields fields;
    const char* text;
  } cases[] = {
      {{2010, 6, 15, 13, 45, 30, 0, -120}, "20100615134530.000000-120"},
      {{2010, 6, 15, 13, 45, 30, 0, 0}, "20100615134530.000000+000"},
      {{1, 1, 1, 0, 0, 0, 0, -999}, "00010101000000.000000-999"},
      {{9999, 12, 31, 23, 59, 59, 999999, 999}, "99991231235959.999999+999"},
      {{2009, 3, 7, 14, 5, 9, 42, 5}, "20090307140509.000042+005"},
      {{2000, 2, 29, 0, 0, 0, 0, -1}, "20000229000000.000000-001"},
      {{2012, 2, 29, 0, 0, 0, 0, 1}, "20120229000000.000000+001"},
  };
  for (const auto& one : cases) {
    TCIMDateTime dateTime;
    Set(dateTime, one.fields);
    EXPECT_EQ(dateTime.ToString(), one.text);
    EXPECT_EQ(cim::ParseDateTime(one.text).ToString(), one.text);
  }
}

TEST(DateTime, RefusesWhatIsOutOfRangeInTheOrderOfTheArguments) {
  const struct {
    Fields fields;
    const char* message;
  } cases[] = {
      {{0, 0, 0, 24, 60, 60, 1000000, 1000}, "year 0 is not in 1..9999"},
      {{10000, 1, 1, 0, 0, 0, 0, 0}, "year 10000 is not in 1..9999"},
      {{2010, 0, 0, 24, 60, 60, 1000000, 1000}, "month 0 is not in 1..12"},
      {{2010, 13, 32, 25, 61, 61, 0, 0}, "month 13 is not in 1..12"},
      {{2010, 1, 0, 24, 60, 60, 1000000, 1000}, "day 0 is not in 1..31"},
      {{2010, 1, 32, 0, 0, 0, 0, 0}, "day 32 is not in 1..31"},
      {{2010, 4, 31, 0, 0, 0, 0, 0}, "day 31 is not in 1..30"},
      {{2010, 2, 29, 0, 0, 0, 0, 0}, "day 29 is not in 1..28"},
      {{1900, 2, 29, 0, 0, 0, 0, 0}, "day 29 is not in 1..28"},
      {{2000, 2, 30, 0, 0, 0, 0, 0}, "day 30 is not in 1..29"},
      {{2010, 1, 4000000000, 0, 0, 0, 0, 0}, "day 4000000000 is not in 1..31"},
      {{2010, 1, 1, 24, 60, 60, 1000000, 1000}, "hour 24 is not in 0..23"},
      {{2010, 1, 1, 0, 60, 60, 1000000, 1000}, "minute 60 is not in 0..59"},
      {{2010, 1, 1, 0, 0, 60, 1000000, 1000}, "second 60 is not in 0..59"},
      {{2010, 1, 1, 0, 0, 0, 1000000, 1000}, "microseconds 1000000 is not in 0..999999"},
      {{2010, 1, 1, 0, 0, 0, 0, 1000}, "offset 1000 is not in -999..999"},
      {{2010, 1, 1, 0, 0, 0, 0, -1000}, "offset -1000 is not in -999..999"},
      {{2010, 1, 1, 0, 0, 0, 0, -32768}, "offset -32768 is not in -999..999"},
  };
  for (const auto& one : cases) {
    TCIMDateTime dateTime;
    EXPECT_EQ(TextThrownBy([&] { Set(dateTime, one.fields); }), one.message);
  }
}

TEST(DateTime, KeepsItsValueWhenANewOneIsRefused) {
  TCIMDateTime dateTime;
  Set(dateTime, {2010, 6, 15, 13, 45, 30, 7, -120});
  EXPECT_ANY_THROW(Set(dateTime, {2011, 7, 16, 14, 46, 31, 8, 1000}));
  EXPECT_EQ(dateTime.ToString(), "20100615134530.000007-120");
}

TEST(DateTime, IsACopyableValue) {
  TCIMDateTime original;
  Set(original, {2010, 6, 15, 13, 45, 30, 7, -120});
  TCIMDateTime copy(original);
  Set(original, {2011, 6, 15, 13, 45, 30, 7, -120});
  EXPECT_EQ(copy.ToString(), "20100615134530.000007-120");
  copy = original;
  EXPECT_EQ(copy.ToString(), "20110615134530.000007-120");
}

TEST(DateTime, IsReadFromItsTextAlone) {
  const struct {
    const char* text;
    const char* message;
  } cases[] = {
      {"", "not of this form"},
      {"20100615134530.000000-12", "not of this form"},
      {"20100615134530.000000-1200", "not of this form"},
      {"20100615134530,000000-120", "not of this form"},
      {"20100615134530.000000*120", "not of this form"},
      {"2010061513453x.000000-120", "not of this form"},
      {"20100615134530.000000-1 0", "not of this form"},
      {"20101315134530.000000-120", "month 13 is not in 1..12"},
      {"20100229134530.000000-120", "day 29 is not in 1..28"},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(TextThrownBy([&] { cim::ParseDateTime(one.text); }), one.message) << one.text;
  }
}

}  // namespace
}  // namespace strake::platform
