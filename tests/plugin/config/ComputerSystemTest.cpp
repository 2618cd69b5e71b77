// The SP itself and its clock.
#include "platform/session/HostSession.h"
#include "platform/spdriver/DriverControl.h"
#include "plugin/frame/ModuleEntry.h"
#include "plugin/frame/TStrakePluginCallbacks.h"
#include "tests/support/Scenario.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

const Classes kComputer = {"VELKSG_SP_ComputerSystem"};
const std::string kClock = Bytes({10, 6, 15, 99, 13, 45, 30});

Lines Trail(const Scenario& scenario) {
  return Between(scenario.Record().All(), "log 4 CreateVELKSGComputerSystem() entered.",
                 "log 4 CreateVELKSGComputerSystem() completed.");
}

TEST(ComputerSystem, PublishesItsIdentityAndItsClock) {
  Scenario scenario = Scenario::Orlo();
  scenario.Answer("4.4.1", kClock).Answer("4.4.2", Bytes({0x88, 0xFF})).Run(kComputer);
  EXPECT_EQ(
      Trail(scenario),
      (Lines{"log 4 CreateVELKSGComputerSystem() entered.", "GetClass VELKSG_SP_ComputerSystem",
             "CreateInstance 1 VELKSG_SP_ComputerSystem",
             "Set 1 CreationClassName string VELKSG_SP_ComputerSystem", "Set 1 SourceNode uint8 1",
             "Set 1 Name string SRV1:Node1", "log 4 FinalSystemName = SRV1:Node1",
             "dot 2 4.4.1 sp 0 size 2048 -> true 7 0A060F630D2D1E",
             "dot 2 4.4.2 sp 0 size 2048 -> true 2 88FF",
             "log 3 SPtime = 20100615134530.000000-120",
             "Set 1 SPClock datetime 20100615134530.000000-120", "Commit 1",
             "log 4 CreateVELKSGComputerSystem() completed."}));
}

TEST(ComputerSystem, StopsBehindItsFirstLineWhenItsClassIsNotWanted) {
  Recorder record;
  platform::HostSession session(Scenario::Orlo().server, &record);
  session.Attach(&StrakeModuleEntry);
  const auto& plugin = dynamic_cast<const TStrakePluginCallbacks&>(session.Plugin());
  const auto status = plugin.CreateVELKSGComputerSystem(
      session.Namespace(), "SRV1", NVELKZEV20::SPLibrary::GetSplibraryInstance(0), 0);
  EXPECT_EQ(status.Code(), 0);
  EXPECT_EQ(record.All(), (Lines{"log 4 CreateVELKSGComputerSystem() entered."}));
}

TEST(ComputerSystem, NumbersSpsFromOneAndUsesTheSystemNameNotTheMtm) {
  Scenario scenario = Scenario::Orlo(3);
  scenario.server.host.systemName.text = "ATLAS";
  scenario.server.host.machineTypeModel.text = "5301-AR2";
  scenario.Run(kComputer);
  for (unsigned long sp = 1; sp <= 3; ++sp) {
    const std::string node = std::to_string(sp);
    EXPECT_EQ(scenario.Record().Properties(sp),
              (Lines{"CreationClassName string VELKSG_SP_ComputerSystem",
                     "SourceNode uint8 " + node, "Name string ATLAS:Node" + node}));
  }
}

TEST(ComputerSystem, WithoutAClockIsPublishedWithoutOneAndAsksForNoTimeZone) {
  const std::vector<platform::Reply> replies = {
      Failure(),           Failure(kClock, 7),   Success(""),
      Reported(kClock, 0), Reported(kClock, -1), Reported(kClock, -2147483647 - 1),
  };
  for (const platform::Reply& reply : replies) {
    Scenario scenario = Scenario::Orlo();
    scenario.Answer("4.4.1", {reply}).Answer("4.4.2", Bytes({0, 0})).Run(kComputer);
    EXPECT_EQ(scenario.Record().Beginning({"log 0", "log 1", "log 2", "dot 2 4.4.2", "Commit"}),
              (Lines{"log 1 Command to read SP clock failed.", "Commit 1"}));
    EXPECT_EQ(scenario.Record().Properties(1).size(), 3U);
  }
}

TEST(ComputerSystem, WithoutATimeZoneTakesOffsetZero) {
  const std::string zone = Bytes({60, 0});
  const std::vector<platform::Reply> replies = {Failure(), Failure(zone, 2), Success(""),
                                                Reported(zone, 0), Reported(zone, -5)};
  for (const platform::Reply& reply : replies) {
    Scenario scenario = Scenario::Orlo();
    scenario.Answer("4.4.1", kClock).Answer("4.4.2", {reply}).Run(kComputer);
    EXPECT_EQ(scenario.Record().Beginning({"log 1", "log 2", "log 3 SPtime", "Commit"}),
              (Lines{"log 2 Command to read SP timezone failed.",
                     "log 3 SPtime = 20100615134530.000000+000", "Commit 1"}));
    EXPECT_EQ(scenario.Record().Properties(1).back(), "SPClock datetime 20100615134530.000000+000");
  }
}

TEST(ComputerSystem, TakesTheOffsetAsASignedWordLowByteFirst) {
  const std::vector<std::pair<std::string, std::string>> cases = {
      {Bytes({0, 0}), "+000"},
      {Bytes({60, 0}), "+060"},
      {Bytes({0x2C, 0x01}), "+300"},
      {Bytes({0xE7, 0x03}), "+999"},
      {Bytes({0x19, 0xFC}), "-999"},
      {Bytes({0xFF, 0xFF}), "-001"},
      // The reply buffer is cleared in between: no byte of the clock is left.
      {Bytes({5}), "+005"},
  };
  for (const auto& [reply, offset] : cases) {
    Scenario scenario = Scenario::Orlo();
    scenario.Answer("4.4.1", kClock).Answer("4.4.2", reply).Run(kComputer);
    EXPECT_EQ(scenario.Record().Properties(1).back(),
              "SPClock datetime 20100615134530.000000" + offset);
  }
}

TEST(ComputerSystem, LeavesTheClockUnsetWhenTheHostRejectsIt) {
  const std::vector<std::tuple<std::string, std::string, std::string>> cases = {
      {Bytes({10, 13, 15, 0, 1, 1, 1}), "", "month 13 is not in 1..12"},
      {Bytes({10, 0, 0, 0, 1, 1, 1}), "", "month 0 is not in 1..12"},
      {Bytes({11, 2, 29, 0, 1, 1, 1}), "", "day 29 is not in 1..28"},
      {Bytes({10, 6, 31, 0, 1, 1, 1}), "", "day 31 is not in 1..30"},
      {Bytes({10, 6, 15, 0, 24, 1, 1}), "", "hour 24 is not in 0..23"},
      {Bytes({10, 6, 15, 0, 1, 60, 1}), "", "minute 60 is not in 0..59"},
      {Bytes({10, 6, 15, 0, 1, 1, 60}), "", "second 60 is not in 0..59"},
      {kClock, Bytes({0xE8, 0x03}), "offset 1000 is not in -999..999"},
      {kClock, Bytes({0x00, 0x80}), "offset -32768 is not in -999..999"},
      // A short reply reads as zeros behind its end.
      {Bytes({10}), "", "month 0 is not in 1..12"},
  };
  for (const auto& [clock, zone, text] : cases) {
    Scenario scenario = Scenario::Orlo();
    scenario.Answer("4.4.1", clock).Answer("4.4.2", zone.empty() ? Bytes({0, 0}) : zone);
    scenario.Run(kComputer);
    EXPECT_EQ(scenario.Record().Beginning({"log 1", "log 3 SPtime", "Commit"}),
              (Lines{"log 1 Unable to set SP Clock due to caught exception " + text, "Commit 1"}));
    EXPECT_EQ(scenario.Record().Properties(1).size(), 3U);
  }
}

TEST(ComputerSystem, TheYearIsUnsigned) {
  Scenario scenario = Scenario::Orlo();
  scenario.Answer("4.4.1", Bytes({255, 2, 28, 0, 0, 0, 0})).Run(kComputer);
  EXPECT_EQ(scenario.Record().Properties(1).back(), "SPClock datetime 22550228000000.000000+000");
}

TEST(ComputerSystem, TheNodeNumberStartsOverInEightBits) {
  Scenario scenario = Scenario::Orlo(256);
  scenario.server.sp.count = 0;
  scenario.Answer("4.4.1", kClock, 255);
  Recorder record;
  platform::HostSession session(scenario.server, &record);
  session.Attach(&StrakeModuleEntry);
  session.Query(kComputer);  // of no SPs: the plug-in remembers that the class is wanted
  static_cast<void>(dynamic_cast<TStrakePluginCallbacks&>(session.Plugin())
                        .CreateVELKSGComputerSystem(session.Namespace(), "SRV1",
                                                    NVELKZEV20::SPLibrary::GetSplibraryInstance(0),
                                                    255));
  EXPECT_EQ(record.Properties(1),
            (Lines{"CreationClassName string VELKSG_SP_ComputerSystem", "SourceNode uint8 0",
                   "Name string SRV1:Node0", "SPClock datetime 20100615134530.000000+000"}));
  EXPECT_EQ(record.Beginning({"dot 2 4.4"}),
            (Lines{"dot 2 4.4.1 sp 255 size 2048 -> true 7 0A060F630D2D1E",
                   "dot 2 4.4.2 sp 255 size 2048 -> false 0 "}));
}

// Counts the commands that are there at each send and when the instance goes out.
class CommandsAlive : public Recorder {
 public:
  void OnDotSend(const platform::DotSend& send) override {
    Recorder::OnDotSend(send);
    atSends.push_back(platform::LiveDotCommands());
  }
  void OnCommit(unsigned long instance) override {
    Recorder::OnCommit(instance);
    atCommit = platform::LiveDotCommands();
  }

  std::vector<long> atSends;
  long atCommit = -1;
};

TEST(ComputerSystem, MakesBothCommandsBeforeItSendsOneAndEndsThemBeforeItCommits) {
  for (const bool answers : {true, false}) {
    Scenario scenario = Scenario::Orlo();
    if (answers) {
      scenario.Answer("4.4.1", kClock).Answer("4.4.2", Bytes({60, 0}));
    }
    CommandsAlive record;
    platform::HostSession session(scenario.server, &record);
    session.Attach(&StrakeModuleEntry);
    const long before = platform::LiveDotCommands();
    session.Query(kComputer);
    std::vector<long> expected = {before + 1};  // the presence test's stays
    expected.insert(expected.end(), answers ? 2U : 1U, before + 3);
    EXPECT_EQ(record.atSends, expected);
    EXPECT_EQ(record.atCommit, before + 1);
  }
}

TEST(ComputerSystem, TheLastOf255SpsIsNode255) {
  Scenario scenario = Scenario::Orlo(255);
  scenario.Run(kComputer);
  EXPECT_EQ(scenario.Record().Properties(255),
            (Lines{"CreationClassName string VELKSG_SP_ComputerSystem", "SourceNode uint8 255",
                   "Name string SRV1:Node255"}));
}

}  // namespace
}  // namespace strake::tests
