// The commands of every class' query: what they are made from, when they are
// made and when they go.
#include "tests/strict/Classes.h"

#include <map>
#include <set>

namespace strake::strict {
namespace {

constexpr const char* kPresenceTest = "1.1";

std::vector<const Event*> Sends(const StrictHost& host, int sp) {
  std::vector<const Event*> sends;
  for (const Event* const event : host.All(Call::SendDotCommand)) {
    if (event->sp == sp && event->text != kPresenceTest) sends.push_back(event);
  }
  return sends;
}

// A zero byte, a second length of zero and the class that every command has.
void ExpectPlain(const Event& event) {
  EXPECT_EQ(event.dot.commandClass, 2) << event.text;
  EXPECT_EQ(event.dot.secondLength, 0) << event.text;
  EXPECT_NE(event.dot.extraData, nullptr) << event.text;
  EXPECT_EQ(event.dot.extraByte, 0) << event.text;
}

TEST_P(EveryClass, MakesPlainDotCommands) {
  Query();
  for (const Call call : {Call::NewDotCommand, Call::SendDotCommand}) {
    EXPECT_GE(host.Count(call), GetParam().identifiers.size());
    for (const Event* const event : host.All(call)) ExpectPlain(*event);
  }
}

TEST_P(EveryClass, SendsItsIdentifiersToEverySp) {
  Query();
  for (int sp = 0; sp < kSPs; ++sp) {
    std::vector<std::string> sent;
    for (const Event* const event : Sends(host, sp)) sent.push_back(event->text);
    EXPECT_EQ(sent, GetParam().identifiers);
  }
}

TEST_P(EveryClass, SendsWhatTheCommandWasMadeFrom) {
  Query();
  std::map<int, DotArguments> made;
  for (const Event& event : host.events) {
    if (event.call == Call::NewDotCommand) made[event.number] = event.dot;
    if (event.call != Call::SendDotCommand) continue;
    EXPECT_EQ(event.dot.identifier, made[event.number].identifier);
    EXPECT_EQ(event.dot.identifierLength, made[event.number].identifierLength);
  }
}

TEST_P(EveryClass, KeepsOnePresenceTestForEachSpAndQuery) {
  Query();
  const std::size_t tests = GetParam().isTavit ? 0 : kSPs;
  EXPECT_EQ(host.LiveDotCommands(), tests);
  Query();
  EXPECT_EQ(host.LiveDotCommands(), 2 * tests);
  EXPECT_EQ(host.LiveKestleCommands(), 0U);
  for (const Event* const event : host.All(Call::DeleteDotCommand)) {
    EXPECT_NE(event->text, kPresenceTest);
  }
}

// Where the sender stands when its command is made, sent and destroyed.
TEST_P(EveryClass, MakesACommandBehindItsFirstLineAndDestroysItBehindItsLast) {
  if (GetParam().isTavit || std::string(GetParam().className) == kComputerSystem) return;
  Query();
  const bool isSensor = std::string(GetParam().className) == kSensor;
  const std::string sender = isSensor ? "sendOrloCommand" : "TStrakePluginCallbacks::sendCommand";
  const std::string sent = isSensor ? "Sent Orlo command: " : "Sent command: ";
  std::size_t looked = 0;
  for (std::size_t i = 0; i < host.events.size(); ++i) {
    if (host.events[i].call != Call::NewDotCommand || host.events[i].text == kPresenceTest) {
      continue;
    }
    ++looked;
    ASSERT_LT(i + 5, host.events.size());
    const auto& events = host.events;
    EXPECT_EQ(events[i - 1].text, sender + " entered.");
    EXPECT_EQ(events[i + 1].call, Call::IsDotcommand);
    EXPECT_EQ(events[i + 2].call, Call::SendDotCommand);
    EXPECT_EQ(events[i + 2].number, events[i].number);
    EXPECT_TRUE(events[i + 3].text.starts_with(sent)) << events[i + 3].text;
    EXPECT_EQ(events[i + 4].text, sender + " completed.");
    EXPECT_EQ(events[i + 5].call, Call::DeleteDotCommand);
    EXPECT_EQ(events[i + 5].number, events[i].number);
  }
  EXPECT_EQ(looked, kSPs * GetParam().identifiers.size());
}

TEST_F(OneSP, GetsNoCommandOnceItIsNoDotCommandSp) {
  host.onCall = [&](const Event& event) {
    if (event.call == Call::DiscoverSPs) host.isDotcommand = false;
  };
  Query("Alerts");
  EXPECT_EQ(Sends(host, 0).size(), 0U);
  EXPECT_EQ(host.CountLines("This command is not a valid dot command: 4.2.1.1."), 1U);
  EXPECT_EQ(host.CountLines("No data retrieved for Dialout Alerts."), 1U);
  EXPECT_EQ(host.Count(Call::NewDotCommand), 2U);
  EXPECT_EQ(host.LiveDotCommands(), 1U);  // the presence test
}

// What happens from the first command of the computer system to its commit.
std::vector<Call> ClockTrail(const StrictHost& host) {
  std::vector<Call> trail;
  for (const Event& event : host.events) {
    const bool isFirst = event.call == Call::NewDotCommand && event.text == "4.4.1";
    if (isFirst || !trail.empty()) trail.push_back(event.call);
    if (event.call == Call::Commit) break;
  }
  return trail;
}

TEST_F(OneSP, HasBothClockCommandsMadeBeforeTheFirstIsSent) {
  Query("ComputerSystem");
  EXPECT_EQ(ClockTrail(host),
            (std::vector<Call>{Call::NewDotCommand, Call::NewDotCommand, Call::SendDotCommand,
                               Call::SendDotCommand, Call::DateTimeSet, Call::DateTimeToString,
                               Call::Log, Call::SetProperty, Call::DeleteDotCommand,
                               Call::DeleteDotCommand, Call::Commit}));
}

TEST_F(OneSP, HasBothClockCommandsMadeWhenTheClockCannotBeRead) {
  host.replies["4.4.1"] = {.isCarriedOut = false};
  Query("ComputerSystem");
  EXPECT_EQ(
      ClockTrail(host),
      (std::vector<Call>{Call::NewDotCommand, Call::NewDotCommand, Call::SendDotCommand, Call::Log,
                         Call::DeleteDotCommand, Call::DeleteDotCommand, Call::Commit}));
  EXPECT_EQ(host.CountLines("Command to read SP clock failed."), 1U);
}

// The addresses that commands to `identifiers` carry as extra data.
std::set<const unsigned char*> ExtraData(const StrictHost& host,
                                         const std::vector<std::string>& starts) {
  std::set<const unsigned char*> addresses;
  for (const Event* const event : host.All(Call::SendDotCommand)) {
    for (const std::string& start : starts) {
      if (event->text.starts_with(start)) addresses.insert(event->dot.extraData);
    }
  }
  return addresses;
}

TEST_F(OneSP, GetsAnExtraByteOfItsOwnFromEachSensorReader) {
  Query("OrloSensor");
  EXPECT_EQ(ExtraData(host, {"2.2."}).size(), 1U);
  EXPECT_EQ(ExtraData(host, {"2.1."}).size(), 1U);
  EXPECT_EQ(ExtraData(host, {"2.3."}).size(), 1U);
  EXPECT_EQ(ExtraData(host, {"2."}).size(), 3U);
}

TEST_F(OneSP, GetsExtraBytesOfTheirOwnFromTheDialinAndAlertReaders) {
  Prepare(host, CaseOf("Dialin"));
  host.spCount = 1;
  host.Query({kSerialPort, kDialout, kDialin, kAlerts});
  const auto others = ExtraData(host, {"4.1.2.", "4.1.3."});
  const auto dialin = ExtraData(host, {"4.1.4.", "4.4.2"});
  const auto alerts = ExtraData(host, {"4.2.1."});
  EXPECT_EQ(alerts.size(), 1U);
  for (const unsigned char* const byte : dialin) {
    EXPECT_FALSE(others.contains(byte));
    EXPECT_FALSE(alerts.contains(byte));
  }
  for (const unsigned char* const byte : alerts) EXPECT_FALSE(others.contains(byte));
}

TEST(TavitProcessor, GetsThreeKestleCommandsWithoutData) {
  StrictHost host;
  Prepare(host, CaseOf("TavitSensor"));
  host.Query({kSensor});
  std::vector<KestleArguments> made;
  std::vector<KestleArguments> sent;
  for (const Event* const event : host.All(Call::NewKestleCommand)) made.push_back(event->kestle);
  for (const Event* const event : host.All(Call::SendKestleCommand)) sent.push_back(event->kestle);
  const auto command = [](unsigned char code, unsigned char checksum) {
    return KestleArguments{2, code, code, checksum, nullptr, 0, false, true};
  };
  EXPECT_EQ(made, (std::vector{command(166, 90), command(162, 94), command(164, 92)}));
  EXPECT_EQ(sent, made);
}

TEST(TavitProcessor, SeesEachCommandGoBeforeItsLastLine) {
  StrictHost host;
  Prepare(host, CaseOf("TavitSensor"));
  host.Query({kSensor});
  std::size_t looked = 0;
  for (std::size_t i = 0; i < host.events.size(); ++i) {
    if (host.events[i].call != Call::NewKestleCommand) continue;
    ++looked;
    const auto& events = host.events;
    ASSERT_LT(i + 6, events.size());
    EXPECT_EQ(events[i - 1].text, "sendKestleCommand entered.");
    EXPECT_TRUE(events[i + 1].text.starts_with("Sending Kestle command: Length = 2, "));
    EXPECT_EQ(events[i + 2].call, Call::SendKestleCommand);
    EXPECT_EQ(events[i + 2].number, events[i].number);
    EXPECT_TRUE(events[i + 3].text.starts_with("Result of Kestle cmd: Status: 1. "));
    EXPECT_TRUE(events[i + 4].text.starts_with("h8Data = "));
    EXPECT_EQ(events[i + 5].call, Call::DeleteKestleCommand);
    EXPECT_EQ(events[i + 5].number, events[i].number);
    EXPECT_EQ(events[i + 6].text, "sendKestleCommand completed.");
  }
  EXPECT_EQ(looked, 3U);
}

}  // namespace
}  // namespace strake::strict
