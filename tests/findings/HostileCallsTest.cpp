// Calls that no plug-in of this tree makes: in any order, with any values.
#include "tests/findings/Watched.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <set>

namespace strake::tests {
namespace {

using findings::CollectionWatch;
using platform::BoundaryCall;

constexpr int kLowest = std::numeric_limits<int>::min();
constexpr int kHighest = std::numeric_limits<int>::max();

const std::string kSensor = Id("2.3.16");

std::span<const unsigned char> View(const std::string& bytes) {
  return {reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size()};
}

void Send(CollectionWatch& watch, int sp, const std::string& identifier, bool result, int length) {
  platform::DotSend send;
  send.sp = sp;
  send.identifier = View(identifier);
  send.result = result;
  send.length = length;
  watch.OnDotSend(send);
}

void SendKestle(CollectionWatch& watch, int code, bool result, int length,
                const std::string& reply) {
  platform::KestleSend send;
  send.code = code;
  send.result = result;
  send.length = length;
  send.reply = View(reply);
  watch.OnKestleSend(send);
}

TEST(HostileCalls, OfNothingTellNothing) {
  const report::Collected collected = WhatItTells(CollectionWatch());
  EXPECT_EQ(FindingLines(collected), Lines{});
  EXPECT_EQ(ProcessorLines(collected), Lines{});
}

TEST(HostileCalls, TellOfAnSpWithoutPresenceTestWhetherAnythingCame) {
  CollectionWatch watch;
  Send(watch, 0, Id("4.4.1"), false, 0);
  EXPECT_EQ(ProcessorLines(WhatItTells(watch)), Lines{"1 silent"});
  Send(watch, 1, kSensor, false, 0);
  EXPECT_EQ(ProcessorLines(WhatItTells(watch)), (Lines{"1 silent", "2 silent"}));
  Send(watch, 0, Id("4.4.2"), true, 3);
  Send(watch, 1, kSensor, true, 3);
  EXPECT_EQ(ProcessorLines(WhatItTells(watch)), (Lines{"1 answered", "2 answered"}));
}

TEST(HostileCalls, KeepAnySpNumber) {
  CollectionWatch watch;
  for (const int sp : {kHighest, 255, -1, kLowest}) Send(watch, sp, Id("1.1"), false, 0);
  EXPECT_EQ(
      FindingLines(WhatItTells(watch)),
      (Lines{"critical sp-silent -2147483647: SP -2147483647 did not answer its presence test",
             "critical sp-silent 0: SP 0 did not answer its presence test",
             "critical sp-silent 256: SP 256 did not answer its presence test",
             "critical sp-silent 2147483647: SP 2147483647 did not answer its presence test"}));
}

TEST(HostileCalls, NameCommandsOfAnyLength) {
  CollectionWatch watch;
  for (const std::string& identifier :
       {std::string(), std::string(1, '\0'), Id("9.8.7.6.5.4.3"), std::string(100000, '\xFF')}) {
    Send(watch, 0, identifier, false, 0);
  }
  Send(watch, 0, std::string(100000, '\xFF') + '\1', false, 0);
  EXPECT_EQ(FindingLines(WhatItTells(watch)),
            Lines{"warning command-unanswered 1: 5 of 5 commands to SP 1 had no reply: a command "
                  "without identifier, command 0, command 9.8.7.6.5.4.3, command "
                  "255.255.255.255.255.255.255.255... (2 times)"});
}

TEST(HostileCalls, NameUnknownCommandsThatDifferInTheirLastByteTogether) {
  CollectionWatch watch;
  for (const char* const identifier : {"4.9.7.1.16.1", "4.9.7.1.16.2", "4.9.7.1.17.2"}) {
    Send(watch, 0, Id(identifier), false, 0);
  }
  EXPECT_EQ(FindingLines(WhatItTells(watch)),
            Lines{"warning command-unanswered 1: 3 of 3 commands to SP 1 had no reply: commands "
                  "4.9.7.1.16.* (2 times), command 4.9.7.1.17.2"});
}

TEST(HostileCalls, CountComponentsOfAnyIdentifierOnceAnSpIsKnown) {
  CollectionWatch watch;
  watch.OnComponentCount(View(Id("4.1.3.1.255")), -1);
  watch.OnSpQuestion("buildDotCommandList", false);
  EXPECT_EQ(FindingLines(WhatItTells(watch)), Lines{});
  Send(watch, 0, Id("1.1"), true, 0);
  watch.OnComponentCount({}, -1);
  watch.OnComponentCount(View(Id("4.1.3.1.255")), 65535);
  watch.OnComponentCount(View(Id("4.1.3.200.255")), -1);
  watch.OnComponentCount(View(Id("4.1")), kLowest);
  Send(watch, 1, Id("1.1"), false, 0);
  watch.OnComponentCount(View(Id("4.1.4.1.255")), -1);
  watch.OnQuery({});
  watch.OnComponentCount(View(Id("4.1.4.1.255")), -1);
  EXPECT_EQ(FindingLines(WhatItTells(watch)),
            (Lines{"warning command-unanswered 1: 3 of 4 commands to SP 1 had no reply: number of "
                   "instances of a command without identifier, number of instances of dial-out "
                   "settings (2 times)",
                   "critical sp-silent 2: SP 2 did not answer its presence test"}));
}

TEST(HostileCalls, TakeATimeZoneForTheClocksOnlyBehindOne) {
  CollectionWatch watch;
  for (const char* const between : {"1.1", "4.9.3.1.1"}) {
    Send(watch, 0, Id("4.4.1"), true, 7);
    Send(watch, 0, Id(between), true, 1);
    Send(watch, 0, Id("4.4.2"), true, -1);
  }
  EXPECT_EQ(FindingLines(WhatItTells(watch)), Lines{});
  Send(watch, 0, Id("4.4.1"), true, 7);
  Send(watch, 0, Id("4.4.2"), true, -1);
  EXPECT_EQ(FindingLines(WhatItTells(watch)),
            Lines{"warning command-unanswered 1: 1 of 7 commands to SP 1 had no reply: "
                  "SP time zone"});
}

TEST(HostileCalls, LookAtListsOfKnownFamiliesAndCodesAlone) {
  CollectionWatch watch;
  SendKestle(watch, 0xA6, false, 0, "");
  watch.OnHostText(BoundaryCall::GetSystemName, "5125");
  SendKestle(watch, 0xA6, false, 0, "");
  watch.OnHostText(BoundaryCall::GetMachineTypeFromID, "5125");
  watch.OnSpQuestion("isQmvStop", true);
  for (const int code : {-1, 0, 0xA5, 0xA6 + 256, kLowest, kHighest}) {
    SendKestle(watch, code, true, 5, "\x05");
  }
  watch.OnHostThrew(BoundaryCall::GetMachineTypeFromID, "gone");
  SendKestle(watch, 0xA6, false, 0, "");
  EXPECT_EQ(FindingLines(WhatItTells(watch)), Lines{});
}

TEST(HostileCalls, ShortenALongTextOfTheHost) {
  CollectionWatch watch;
  watch.OnHostThrew(BoundaryCall::GetMachineTypeFromID, std::string(100000, '\x07'));
  watch.OnSpQuestion("isQmvStop", true);
  const Lines lines = FindingLines(WhatItTells(watch));
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_LT(lines[0].size(), 1000U);
}

TEST(HostileCalls, TellHowManyQueriesSomethingHappenedIn) {
  CollectionWatch watch;
  const auto query = [&watch](bool isThere, const std::string& machine, bool isHeld) {
    watch.OnQuery({});
    watch.OnHostText(BoundaryCall::GetMachineTypeFromID, machine);
    watch.OnSpQuestion("isDotcommand", false);
    watch.OnSpQuestion("isKestle", isThere);
    if (isThere) {
      watch.OnSpQuestion("isQmvStop", !isHeld);
      if (isHeld) watch.OnSpQuestion("isDornlibrary", true);
    }
  };
  query(false, "5125", false);
  query(true, "5125", true);
  query(true, "9999", false);
  query(true, "5125", false);
  watch.OnQuery({});
  watch.OnSpQuestion("isDotcommand", true);
  watch.OnSpQuestion("checkSPComm", false);
  watch.OnQuery({});
  watch.OnSpQuestion("isDotcommand", true);
  watch.OnSpQuestion("checkSPComm", true);
  watch.OnSpQuestion("isDotcommand", true);
  watch.OnDiscoverSPs(0);
  watch.OnDiscoverSPs(-256);
  watch.OnDiscoverSPs(3);
  EXPECT_EQ(
      FindingLines(WhatItTells(watch)),
      (Lines{
          "warning not-communicating: could not communicate with the Orlo card in 1 of 2 "
          "queries",
          "warning no-sp: there was neither an Orlo card nor a Tavit processor in 1 of 6 queries",
          "warning no-sp: no service processor was found on the Orlo card in 2 of 3 queries "
          "(the count was -256, of which the low eight bits count)",
          "warning held 1: the management server held the Tavit processor in 1 of 3 queries, "
          "so its sensors were not read",
          "warning machine-unknown 1: no family of Tavit machines has the machine type "
          "\"9999\" in 1 of 2 queries, so the sensors of the Tavit processor were not read"}));
}

bool IsOneSafeLine(const std::string& text) {
  return text.size() < 2000 && std::ranges::all_of(text, [](char character) {
           return character >= ' ' && character <= '~';
         });
}

// Values that matter more often than others, and any other.
class Dice {
 public:
  explicit Dice(unsigned int seed) : fRandom(seed) {}
  int Of(int sides) { return static_cast<int>(fRandom() % static_cast<unsigned int>(sides)); }
  bool Flip() { return Of(2) == 0; }
  int Number() {
    constexpr int kOften[] = {0, 1, -1, 255, 256, kLowest, kHighest};
    return Flip() ? kOften[Of(7)] : static_cast<int>(fRandom());
  }
  std::string Identifier() {
    if (Of(3) == 0) {
      std::string any(static_cast<std::size_t>(Of(12)), '\0');
      for (char& byte : any) byte = static_cast<char>(Of(256));
      return any;
    }
    const auto all = AllIdentifiers();
    const auto bytes =
        all[static_cast<std::size_t>(Of(static_cast<int>(all.size())))].identifier.Bytes();
    return {bytes.begin(), bytes.end()};
  }

 private:
  std::mt19937 fRandom;
};

void CallSomething(CollectionWatch& watch, Dice& dice) {
  constexpr const char* kQuestions[] = {
      "isDotcommand",        "isKestle", "isQmvStop", "isDornlibrary", "checkSPComm",
      "buildDotCommandList", ""};
  constexpr const char* kMachines[] = {"5120", "5123", "5125", "5128", "\x1b\xff\n", ""};
  constexpr int kCodes[] = {0xA6, 0xA4, 0xA2};
  switch (dice.Of(9)) {
    case 0:
      watch.OnQuery({});
      break;
    case 1:
      watch.OnHostText(BoundaryCall::GetMachineTypeFromID, kMachines[dice.Of(6)]);
      break;
    case 2:
      watch.OnHostThrew(BoundaryCall::GetMachineTypeFromID, dice.Identifier());
      break;
    case 3:
      watch.OnSpQuestion(kQuestions[dice.Of(7)], dice.Flip());
      break;
    case 4:
      watch.OnDiscoverSPs(dice.Number());
      break;
    case 5:
      watch.OnComponentCount(View(dice.Identifier()), dice.Number());
      break;
    case 6:
      SendKestle(watch, dice.Flip() ? kCodes[dice.Of(3)] : dice.Number(), dice.Flip(),
                 dice.Number(), dice.Identifier());
      break;
    default:
      Send(watch, dice.Flip() ? 0 : dice.Number(), dice.Identifier(), dice.Flip(), dice.Number());
  }
}

TEST(HostileCalls, InAnyOrderTellSafeLines) {
  std::set<report::FindingCode> told;
  for (unsigned int seed = 0; seed < 200; ++seed) {
    Dice dice(seed);
    CollectionWatch watch;
    for (int call = 0; call < 300; ++call) CallSomething(watch, dice);
    for (const report::Finding& finding : WhatItTells(watch).findings) {
      EXPECT_TRUE(IsOneSafeLine(finding.text)) << "seed " << seed << ": " << finding.text;
      told.insert(finding.code);
    }
  }
  EXPECT_EQ(told.size(), 8U);
}

}  // namespace
}  // namespace strake::tests
