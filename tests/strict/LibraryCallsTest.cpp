// How often and in which order the driver library and the host are asked.
#include "tests/strict/Classes.h"

#include <ostream>

namespace strake::strict {
namespace {

std::vector<Call> CallsOf(const StrictHost& host) {
  std::vector<Call> calls;
  for (const Event& event : host.events) {
    if (event.call != Call::Log && event.call != Call::GetName) calls.push_back(event.call);
  }
  return calls;
}

struct ServerCase {
  const char* name;
  void (*setUp)(StrictHost& host);
  const char* className;
  std::vector<Call> calls;  // behind the names and the singleton
  const char* lastLine;     // before the collector's
};

void PrintTo(const ServerCase& serverCase, std::ostream* stream) { *stream << serverCase.name; }

class Server : public testing::TestWithParam<ServerCase> {};

TEST_P(Server, IsAskedNoMoreThanItsQueryNeeds) {
  StrictHost host;
  GetParam().setUp(host);
  host.Query({GetParam().className});
  std::vector<Call> expected = {Call::GetMachineTypeFromID, Call::GetSystemName,
                                Call::GetSplibraryInstance, Call::IsDotcommand};
  expected.insert(expected.end(), GetParam().calls.begin(), GetParam().calls.end());
  EXPECT_EQ(CallsOf(host), expected);
  const std::vector<std::string> lines = host.Lines();
  ASSERT_GE(lines.size(), 2U);
  EXPECT_EQ(lines[lines.size() - 2], GetParam().lastLine);
  EXPECT_EQ(lines.back(), "TSPEnviron destructor entered.");
  EXPECT_EQ(host.All(Call::GetSplibraryInstance).front()->number, 0);
}

void IsTavit(StrictHost& host) {
  host.isDotcommand = false;
  host.isKestle = true;
}

constexpr const char* kComplete = "Strake plugin execution complete.";

const ServerCase kServers[] = {
    {"WithoutAnSp",
     [](StrictHost& host) { host.isDotcommand = false; },
     kSensor,
     {Call::IsKestle},
     kComplete},
    {"WithATavitThatIsNotAskedFor", IsTavit, kAlerts, {Call::IsKestle}, kComplete},
    {"WithATavitThatIsHeld",
     [](StrictHost& host) {
       IsTavit(host);
       host.isDornlibrary = true;
     },
     kSensor,
     {Call::IsKestle, Call::IsQmvStop, Call::IsDornlibrary, Call::GetLocalTime},
     kComplete},
    {"WithATavitThatIsNotInTheTable",
     [](StrictHost& host) {
       IsTavit(host);
       host.machineType = "512";
     },
     kSensor,
     {Call::IsKestle, Call::IsQmvStop, Call::IsDornlibrary},
     "No matching Tavit machine was found."},
    {"WithACardThatCannotBeReached",
     [](StrictHost& host) { host.checksSPComm = false; },
     kSensor,
     {Call::CheckSPComm},
     "Could not communicate with Orlo card."},
    {"WithACardWithoutSPs",
     [](StrictHost& host) { host.spCount = 0; },
     kComputerSystem,
     {Call::CheckSPComm, Call::DiscoverSPs},
     kComplete},
    {"WithAnSpThatDoesNotAnswer",
     [](StrictHost& host) { host.replies["1.1"] = {.isCarriedOut = false}; },
     kComputerSystem,
     {Call::CheckSPComm, Call::DiscoverSPs, Call::NewDotCommand, Call::SendDotCommand},
     kComplete},
};

INSTANTIATE_TEST_SUITE_P(Of, Server, testing::ValuesIn(kServers),
                         [](const testing::TestParamInfo<ServerCase>& each) {
                           return std::string(each.param.name);
                         });

TEST_P(EveryClass, AsksForTheLibraryAfreshWithZero) {
  Query();
  Query();
  const auto calls = host.All(Call::GetSplibraryInstance);
  ASSERT_EQ(calls.size(), 2U);
  for (const Event* const call : calls) EXPECT_EQ(call->number, 0);
  EXPECT_EQ(host.Count(Call::GetMachineTypeFromID), 2U);
}

// Once by the driver, and by the sender of each command.
TEST_P(EveryClass, AsksWhatKindOfSpItIsBeforeEachCommand) {
  Query();
  const bool sends = std::string(GetParam().className) != kComputerSystem;
  EXPECT_EQ(host.Count(Call::IsDotcommand),
            1U + (sends ? kSPs * GetParam().identifiers.size() : 0U));
  EXPECT_EQ(host.Count(Call::IsKestle), GetParam().isTavit ? 1U : 0U);
}

struct NumberCase {
  int discovered;
  int sps;
};

TEST(DiscoveredSPs, AreCountedInEightBits) {
  constexpr NumberCase kNumbers[] = {{0, 0},      {1, 1},     {3, 3},           {255, 255},
                                     {256, 0},    {257, 1},   {-1, 255},        {-256, 0},
                                     {0x7F02, 2}, {65536, 0}, {0x7FFFFFFF, 255}};
  for (const NumberCase& number : kNumbers) {
    StrictHost host;
    host.spCount = number.discovered;
    host.Query({});
    std::vector<int> sent;
    for (const Event* const event : host.All(Call::SendDotCommand)) sent.push_back(event->sp);
    std::vector<int> expected;
    for (int sp = 0; sp < number.sps; ++sp) expected.push_back(sp);
    EXPECT_EQ(sent, expected) << number.discovered;
    EXPECT_EQ(host.CountLines("DiscoverSPs() found SPinstance#: " + std::to_string(number.sps)),
              1U);
  }
}

TEST(RequestedClass, IsAskedForItsNameAnewForEachComparison) {
  const std::vector<const char*> inOrder = {kComputerSystem, kIPEndpoint2, kIPEndpoint, kSerialPort,
                                            kDialout,        kDialin,      kAlerts,     kSensor};
  StrictHost host;
  host.spCount = 0;
  std::size_t comparisons = 0;
  for (const char* const className : inOrder) {
    host.events.clear();
    host.Query({className});
    EXPECT_EQ(host.Count(Call::GetName), 1 + ++comparisons) << className;
  }
  for (const char* const unknown : {"", "velksg_sp_numericsensor", "VELKSG_SP_NumericSensor "}) {
    host.events.clear();
    host.Query({unknown});
    EXPECT_EQ(host.Count(Call::GetName), 1 + inOrder.size()) << unknown;
  }
}

TEST_F(OneSP, IsAskedForItsListOncePerDialQuery) {
  Query("Dialin");
  EXPECT_EQ(host.Count(Call::BuildDotCommandList), 1U);
  const auto lookups = host.All(Call::GetComponentdotCmdList);
  ASSERT_EQ(lookups.size(), 2U);
  EXPECT_TRUE(lookups[0]->text.starts_with("4.1.3.")) << lookups[0]->text;
  EXPECT_TRUE(lookups[1]->text.starts_with("4.1.4.")) << lookups[1]->text;
  for (const Event* const lookup : lookups) {
    EXPECT_EQ(lookup->number, 5);
    EXPECT_TRUE(lookup->text.ends_with(".255")) << lookup->text;
  }
}

TEST_F(OneSP, IsAskedForItsSecondInterfaceBehindTheFirst) {
  Query("IPEndpoint");
  EXPECT_EQ(host.Count(Call::BuildDotCommandList), 1U);
  const auto lookups = host.All(Call::GetComponentdotCmdList);
  ASSERT_EQ(lookups.size(), 1U);
  EXPECT_EQ(lookups[0]->text, "4.9.1.2.255");
}

TEST_F(OneSP, IsNotAskedToCountWithoutAList) {
  host.buildsList = false;
  Query("Dialin");
  EXPECT_EQ(host.Count(Call::GetComponentdotCmdList), 0U);
  EXPECT_EQ(host.Count(Call::Commit), 0U);
  host.events.clear();
  Query("IPEndpoint");
  EXPECT_EQ(host.Count(Call::GetComponentdotCmdList), 0U);
  EXPECT_EQ(host.Count(Call::Commit), 1U);
}

TEST(ClosedGate, HidesEveryLineAndChangesNothingElse) {
  StrictHost open;
  Prepare(open, CaseOf("SerialPort"));
  open.Query({kSerialPort});
  const std::vector<Call> calls = CallsOf(open);
  StrictHost closed(StrictHost::Gate::Closed);
  Prepare(closed, CaseOf("SerialPort"));
  closed.Query({kSerialPort});
  EXPECT_EQ(closed.Count(Call::Log), 0U);
  EXPECT_EQ(CallsOf(closed), calls);
}

}  // namespace
}  // namespace strake::strict
