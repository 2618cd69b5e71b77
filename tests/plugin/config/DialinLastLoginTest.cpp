// The time zone and the last login of a dial-in login.
#include "tests/plugin/config/DialScenario.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

const std::string kMorning = Bytes({9, 3, 7, 0, 14, 5, 9});
const std::string kNoUsableDate = "datetime 19700102120000.000000+000";

Scenario Login(platform::Reply timeZone, const std::string& lastLogin) {
  Scenario scenario = Scenario::Orlo();
  scenario.Component("4.1.4.1.255", 1)
      .Answer("4.4.2", {std::move(timeZone)})
      .Answer("4.1.4.1.3", lastLogin);
  return scenario;
}

Lines TimeLines(const Scenario& scenario) {
  return scenario.Record().Beginning(
      {"log 4 Timezone", "log 3 No data retrieved for Timezone", "log 3 LastLogin"});
}

TEST(DialinLastLogin, TheTimeZoneIsToldUnsignedAndSetSigned) {
  const struct {
    std::string reply;
    const char* told;
    const char* lastLogin;
  } cases[] = {
      {Bytes({0, 0}), "0", "datetime 20090307140509.000000+000"},
      {Bytes({0x3C, 0}), "60", "datetime 20090307140509.000000+060"},
      {Bytes({0xC4, 0xFF}), "65476", "datetime 20090307140509.000000-060"},
      {Bytes({0xE7, 3}), "999", "datetime 20090307140509.000000+999"},
      {Bytes({0x19, 0xFC}), "64537", "datetime 20090307140509.000000-999"},
      {Bytes({0xE8, 3}), "1000", "datetime 19700102120000.000000+000"},
      {Bytes({0x18, 0xFC}), "64536", "datetime 19700102120000.000000+000"},
      {Bytes({0xFF, 0x7F}), "32767", "datetime 19700102120000.000000+000"},
      {Bytes({0, 0x80}), "32768", "datetime 19700102120000.000000+000"},
      {Bytes({0xFF, 0xFF, 7}), "65535", "datetime 20090307140509.000000-001"},
  };
  for (const auto& [reply, told, lastLogin] : cases) {
    Scenario scenario = Login(Success(reply), kMorning);
    scenario.Run({kDialin});
    EXPECT_EQ(TimeLines(scenario),
              (Lines{std::string("log 4 Timezone = ") + told,
                     std::string("log 3 LastLogin = 3/7/2009 14:5:9 GMT offset (") + told + ")"}));
    EXPECT_EQ(Property(scenario, 1, "LastLogin"), lastLogin);
  }
}

TEST(DialinLastLogin, ValuesThatTheHostRejectsAreToldAndSetToTheSecondOfJanuary1970) {
  const struct {
    std::string reply;
    const char* told;
    const char* lastLogin;
  } cases[] = {
      {Bytes({9, 13, 32, 0, 25, 61, 61}), "13/32/2009 25:61:61", nullptr},
      {Bytes({9, 0, 7, 0, 14, 5, 9}), "0/7/2009 14:5:9", nullptr},
      {Bytes({9, 13, 7, 0, 14, 5, 9}), "13/7/2009 14:5:9", nullptr},
      {Bytes({9, 3, 0, 0, 14, 5, 9}), "3/0/2009 14:5:9", nullptr},
      {Bytes({9, 4, 31, 0, 14, 5, 9}), "4/31/2009 14:5:9", nullptr},
      {Bytes({9, 2, 29, 0, 14, 5, 9}), "2/29/2009 14:5:9", nullptr},
      {Bytes({9, 3, 7, 0, 24, 5, 9}), "3/7/2009 24:5:9", nullptr},
      {Bytes({9, 3, 7, 0, 14, 60, 9}), "3/7/2009 14:60:9", nullptr},
      {Bytes({9, 3, 7, 0, 14, 5, 60}), "3/7/2009 14:5:60", nullptr},
      {Bytes({255, 255, 255, 255, 255, 255, 255}), "255/255/2255 255:255:255", nullptr},
      {Bytes({9}), "0/0/2009 0:0:0", nullptr},
      {Bytes({8, 2, 29, 0, 0, 0, 0}), "2/29/2008 0:0:0", "20080229000000.000000+000"},
      {Bytes({0, 1, 1}), "1/1/2000 0:0:0", "20000101000000.000000+000"},
      {Bytes({255, 12, 31, 255, 23, 59, 59}), "12/31/2255 23:59:59", "22551231235959.000000+000"},
  };
  for (const auto& [reply, told, lastLogin] : cases) {
    Scenario scenario = Login(Success(Bytes({0, 0})), reply);
    scenario.Run({kDialin});
    // One line, whether or not the host takes it; then the reader ends.
    const Lines lines = ReaderLines(scenario, "getDialinSettings", 1);
    ASSERT_GE(lines.size(), 5U);
    EXPECT_EQ(Lines(lines.end() - 5, lines.end()),
              Join({Answered("4.1.4.1.3", static_cast<int>(reply.size())),
                    {std::string("3 LastLogin = ") + told + " GMT offset (0)",
                     "4 TStrakePluginCallbacks::getDialinSettings completed."}}));
    EXPECT_EQ(Property(scenario, 1, "LastLogin"),
              lastLogin != nullptr ? std::string("datetime ") + lastLogin : kNoUsableDate);
  }
}

TEST(DialinLastLogin, AnEntryThatTheHostRejectsDoesNotSpoilTheNextOne) {
  Scenario scenario = DialServer(1, 0, 3);
  scenario.Answer("4.1.4.2.3", Bytes({9, 13, 7, 0, 14, 5, 9})).Run({kDialin});
  EXPECT_EQ(Property(scenario, 1, "LastLogin"), "datetime 20090307140509.000000+060");
  EXPECT_EQ(Property(scenario, 2, "LastLogin"), kNoUsableDate);
  EXPECT_EQ(Property(scenario, 3, "LastLogin"), "datetime 20090307140509.000000+060");
}

TEST(DialinLastLogin, AShortTimeZoneReplyKeepsWhatTheAuthorityReplyLeft) {
  const struct {
    const char* title;
    platform::Reply authority;
    platform::Reply timeZone;
    const char* told;
  } cases[] = {
      {"one byte over two", Success(Bytes({3, 2})), Success(Bytes({60})), "572"},
      {"one byte over one", Success(Bytes({3})), Success(Bytes({60})), "60"},
      {"no byte over two", Success(Bytes({3, 2})), Reported("", 2), "515"},
      {"two bytes over two", Success(Bytes({3, 2})), Success(Bytes({60, 0})), "60"},
      {"over a failed reply's bytes", Failure(Bytes({3, 2}), 2), Success(Bytes({60})), "572"},
      {"over an empty reply's bytes", Reported(Bytes({3, 2}), 0), Success(Bytes({60})), "572"},
      {"over nothing", Failure(), Success(Bytes({60})), "60"},
      {"no byte over nothing", Failure(), Reported("", 1), "0"},
  };
  for (const auto& [title, authority, timeZone, told] : cases) {
    SCOPED_TRACE(title);
    Scenario scenario = Login(timeZone, kMorning);
    // The entry's bytes are gone by then.
    scenario.Answer("4.1.4.1.255", std::string(350, '\x07')).Answer("4.1.4.1.9", {authority});
    scenario.Run({kDialin});
    EXPECT_EQ(TimeLines(scenario),
              (Lines{std::string("log 4 Timezone = ") + told,
                     std::string("log 3 LastLogin = 3/7/2009 14:5:9 GMT offset (") + told + ")"}));
  }
}

TEST(DialinLastLogin, ATimeZoneThatFailsIsZeroWhateverItsSendWrote) {
  for (const platform::Reply& timeZone :
       {Failure(), Failure(Bytes({60, 1}), 2), Reported(Bytes({60, 1}), 0)}) {
    Scenario scenario = Login(timeZone, kMorning);
    scenario.Answer("4.1.4.1.9", Bytes({3, 2})).Run({kDialin});
    EXPECT_EQ(TimeLines(scenario), (Lines{"log 3 No data retrieved for Timezone.",
                                          "log 3 LastLogin = 3/7/2009 14:5:9 GMT offset (0)"}));
    EXPECT_EQ(Property(scenario, 1, "LastLogin"), "datetime 20090307140509.000000+000");
  }
}

TEST(DialinLastLogin, ATimeZoneDoesNotOutliveItsLogin) {
  Scenario scenario = DialServer(1, 0, 2);
  scenario.Answer("4.4.2", {Success(Bytes({60, 0})), Failure()}).Run({kDialin});
  EXPECT_EQ(Property(scenario, 1, "LastLogin"), "datetime 20090307140509.000000+060");
  EXPECT_EQ(Property(scenario, 2, "LastLogin"), "datetime 20090307140509.000000+000");
}

TEST(DialinLastLogin, AShortReplyReadsAsZerosWhateverTheTimeZoneLeft) {
  for (const bool timeZoneSucceeds : {true, false}) {
    const std::string ones(20, '\x01');
    Scenario scenario =
        Login(timeZoneSucceeds ? Success(ones) : Failure(ones, 20), Bytes({9, 3, 7}));
    scenario.Run({kDialin});
    EXPECT_EQ(scenario.Record().Beginning({"log 3 LastLogin"}),
              Lines{std::string("log 3 LastLogin = 3/7/2009 0:0:0 GMT offset (") +
                    (timeZoneSucceeds ? "257)" : "0)")});
  }
}

}  // namespace
}  // namespace strake::tests
