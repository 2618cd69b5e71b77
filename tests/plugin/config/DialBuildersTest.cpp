// The dial driver and its readers, called as members of the plug-in's object.
#include "platform/session/HostSession.h"
#include "platform/spdriver/DriverControl.h"
#include "plugin/config/SharedIdentifiers.h"
#include "plugin/frame/ModuleEntry.h"
#include "plugin/frame/TStrakePluginCallbacks.h"
#include "tests/plugin/config/DialScenario.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <initializer_list>
#include <optional>

namespace strake::tests {
namespace {

using NVELKZEV20::SPLibrary;

const Classes kAllDial = {kSerialPort, kDialout, kDialin, kAlerts};

class DialBuilders : public testing::Test {
 protected:
  DialBuilders() { Identifiers() = SharedIdentifiers{}; }

  // A session whose plug-in remembers that these classes are wanted.
  void Want(const Classes& classes, const Scenario& scenario) {
    fSession.emplace(scenario.server, &fRecord);
    fSession->Attach(&StrakeModuleEntry);
    fSession->Query(classes);
    fRecord.Forget();
  }

  TStrakePluginCallbacks& Plugin() {
    return dynamic_cast<TStrakePluginCallbacks&>(fSession->Plugin());
  }

  std::int32_t DialCommands(unsigned char sp) {
    SPLibrary* const library = SPLibrary::GetSplibraryInstance(0);
    return Plugin().dialcommands(fSession->Namespace(), library, "9999-AC1", "SRV1", sp).Code();
  }

  // What instance `number` of the first SP reports, read by one reader.
  template <typename Reader>
  std::int32_t Read(Reader reader, unsigned char number) {
    SPLibrary* const library = SPLibrary::GetSplibraryInstance(0);
    return (Plugin().*reader)(fSession->Namespace(), number, library, "9999-AC1", "SRV1", 0).Code();
  }

  Recorder fRecord;
  std::optional<platform::HostSession> fSession;
};

TEST_F(DialBuilders, ReportSuccessOnEveryPath) {
  Scenario noList = DialServer(1, 2, 2);
  noList.server.sp.commandList = false;
  const Scenario answering = DialServer(1, 2, 2);
  const Scenario silent = Scenario::Orlo();
  for (const Scenario* scenario :
       std::initializer_list<const Scenario*>{&answering, &silent, &noList}) {
    for (const Classes& classes : {kAllDial, Classes{}}) {
      Want(classes, *scenario);
      EXPECT_EQ(DialCommands(0), 0);
      EXPECT_EQ(Read(&TStrakePluginCallbacks::getSerialPortData, 1), 0);
      EXPECT_EQ(Read(&TStrakePluginCallbacks::getDialoutSettings, 1), 0);
      EXPECT_EQ(Read(&TStrakePluginCallbacks::getDialinSettings, 1), 0);
      EXPECT_EQ(Read(&TStrakePluginCallbacks::getDialOutAlerts, 1), 0);
    }
  }
}

TEST_F(DialBuilders, ReadTheInstanceThatTheyAreGiven) {
  Want(kAllDial, Scenario::Orlo());
  Read(&TStrakePluginCallbacks::getSerialPortData, 255);
  Read(&TStrakePluginCallbacks::getDialOutAlerts, 7);
  EXPECT_EQ(fRecord.Beginning({"log 4 TStrakePluginCallbacks::get", "dot 2 "}),
            (Lines{"log 4 TStrakePluginCallbacks::getSerialPortData entered. Instance #255",
                   "dot 2 4.1.2.255.255 sp 0 size 350 -> false 0 ",
                   "log 4 TStrakePluginCallbacks::getSerialPortData completed.",
                   "log 4 TStrakePluginCallbacks::getDialOutAlerts entered. Instance #7",
                   "dot 2 4.2.1.7 sp 0 size 350 -> false 0 ",
                   "log 4 TStrakePluginCallbacks::getDialOutAlerts completed."}));
}

TEST_F(DialBuilders, CountTheLastServiceProcessorsNodeAsZero) {
  Scenario scenario = Scenario::Orlo(256);
  scenario.server.sp.count = 0;
  scenario.Component("4.1.3.1.255", 1).Component("4.1.4.1.255", 1);
  for (const char* const identifier : {"4.1.3.1.255", "4.1.2.1.255", "4.1.2.2.255", "4.2.1.1"}) {
    scenario.Answer(identifier, Bytes({1}), 255);
  }
  Want(kAllDial, scenario);
  EXPECT_EQ(DialCommands(255), 0);
  EXPECT_EQ(fRecord.Beginning({"Set 1 SourceNode", "Set 1 Name", "Set 2 SourceNode", "Set 2 Name",
                               "Set 3 SourceNode", "Set 3 Name", "Set 5 SourceNode", "Set 5 Name",
                               "log 4 Sent command: 4.2.1.1"}),
            (Lines{"Set 1 SourceNode uint8 0", "Set 1 Name string 9999-AC1-Node0",
                   "Set 2 Name string 9999-AC1-Node0", "Set 2 SourceNode uint8 0",
                   "Set 3 SourceNode uint8 0", "Set 3 Name string 9999-AC1-Node0",
                   "log " + Answered("4.2.1.1", 1, 255).at(1), "Set 5 SourceNode uint8 0",
                   "Set 5 Name string 9999-AC1-Node0"}));
}

TEST_F(DialBuilders, LetGoOfTheNamespaceAndOfTheirCommands) {
  Want(kAllDial, DialServer(1, 2, 2));
  const long handles = fSession->Namespace().use_count();
  const long commands = platform::LiveDotCommands();
  EXPECT_EQ(DialCommands(0), 0);
  EXPECT_EQ(fSession->Namespace().use_count(), handles);
  EXPECT_EQ(platform::LiveDotCommands(), commands);
}

}  // namespace
}  // namespace strake::tests
