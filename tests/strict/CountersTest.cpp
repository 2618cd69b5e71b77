// Dial instances are numbered in eight bits against a count of sixteen.
#include "tests/strict/Classes.h"

#include <ostream>

namespace strake::strict {
namespace {

// Thrown by the logger, so that a query without an end has one.
struct Enough {};
constexpr std::size_t kLinesUntilEnough = 2000;

struct GroupCase {
  const char* name;
  const char* component;
  const char* other;  // the component that is counted beside it
  const char* className;
  const char* prefix;
  const char* failure;
};

void PrintTo(const GroupCase& groupCase, std::ostream* stream) { *stream << groupCase.name; }

class DialGroup : public testing::TestWithParam<GroupCase> {
 protected:
  // Numbers as the trail tells them, for a driver that counts `count`.
  std::vector<int> NumbersTold() {
    const std::string start = std::string(GetParam().prefix) + " instance #";
    std::vector<int> numbers;
    for (const std::string& line : host.Lines()) {
      if (line.starts_with(start)) numbers.push_back(std::stoi(line.substr(start.size())));
    }
    return numbers;
  }

  void Count(int count) { host.counts = {{GetParam().component, count}, {GetParam().other, 0}}; }

  // False: the logger ended it.
  bool QueryUntilEnough(const char* className) {
    std::size_t lines = 0;
    host.onCall = [&](const Event& event) {
      if (event.call == Call::Log && ++lines == kLinesUntilEnough) throw Enough();
    };
    try {
      host.Query({className});
    } catch (const Enough&) {
      return false;
    }
    return true;
  }

  StrictHost host;
};

// 1, 2, ... 254, 255, 0, 1, ...
std::vector<int> Wrapping(std::size_t count) {
  std::vector<int> numbers;
  for (std::size_t i = 1; i <= count; ++i) numbers.push_back(static_cast<int>(i % 256));
  return numbers;
}

TEST_P(DialGroup, NeverEndsBehindACountThatItsNumbersCannotExceed) {
  for (const int count : {255, 256, 300, 32767}) {
    host.events.clear();
    Count(count);
    EXPECT_FALSE(QueryUntilEnough(kAlerts)) << count;
    const std::vector<int> numbers = NumbersTold();
    EXPECT_GT(numbers.size(), 600U) << count;
    EXPECT_EQ(numbers, Wrapping(numbers.size())) << count;
  }
}

TEST_P(DialGroup, AddressesTheNumbersThatItTells) {
  Count(300);
  host.otherReply = {.isCarriedOut = true};
  EXPECT_FALSE(QueryUntilEnough(kAlerts));
  host.events.clear();
  // Fewer lines an instance would not reach 256 of them within the limit.
  host.otherReply.bytes = {};
  host.onCall = nullptr;
  std::size_t sends = 0;
  host.onCall = [&](const Event& event) {
    const bool isEntry = event.call == Call::SendDotCommand && event.text.ends_with(".255");
    if (isEntry && ++sends == 600) throw Enough();
  };
  EXPECT_THROW(host.Query({GetParam().className}), Enough);
  std::vector<std::string> sent;
  for (const Event* const event : host.All(Call::SendDotCommand)) {
    if (event->text.ends_with(".255")) sent.push_back(event->text);
  }
  std::vector<std::string> expected;
  for (const int number : Wrapping(sent.size())) {
    expected.push_back(std::string(GetParam().component) + "." + std::to_string(number) + ".255");
  }
  EXPECT_EQ(sent, expected);
}

struct CountCase {
  int counted;
  int told;
  int instances;
};

TEST_P(DialGroup, KeepsTheLowSixteenBitsOfItsCount) {
  constexpr CountCase kCounts[] = {
      {0, 0, 0},      {1, 1, 1},       {2, 2, 2},           {254, 254, 254},    {-1, -1, 0},
      {-2, -2, 0},    {-300, -300, 0}, {-32768, -32768, 0}, {32768, -32768, 0}, {65534, -2, 0},
      {65535, -1, 0}, {65536, 0, 0},   {65537, 1, 1},       {-65535, 1, 1}};
  for (const CountCase& each : kCounts) {
    host.events.clear();
    Count(each.counted);
    ASSERT_TRUE(QueryUntilEnough(kAlerts)) << each.counted;
    EXPECT_EQ(NumbersTold(), Wrapping(static_cast<std::size_t>(each.instances))) << each.counted;
    EXPECT_EQ(host.CountLines(std::string(GetParam().prefix) +
                              " instances = " + std::to_string(each.told)),
              1U)
        << each.counted;
    EXPECT_EQ(host.CountLines(GetParam().failure), each.told == -1 ? 1U : 0U) << each.counted;
  }
}

TEST_P(DialGroup, IsFollowedByTheFixedGroupsWhateverItsCount) {
  for (const int count : {-32768, -1, 0, 1}) {
    host.events.clear();
    Count(count);
    ASSERT_TRUE(QueryUntilEnough(kAlerts));
    EXPECT_EQ(host.CountLines("SerialPort instances = 2"), 1U);
    EXPECT_EQ(host.CountLines("DialOutAlerts instances = 1"), 1U);
  }
}

constexpr GroupCase kGroups[] = {
    {"DialoutSettings", "4.1.3", "4.1.4", kDialout, "DialoutSettings",
     "Failed to get componentcmdlist for dialoutsettings."},
    {"DialinSettings", "4.1.4", "4.1.3", kDialin, "DialinSettings",
     "Failed to get componentcmdlist for dialinsettings."},
};

INSTANTIATE_TEST_SUITE_P(Of, DialGroup, testing::ValuesIn(kGroups),
                         [](const testing::TestParamInfo<GroupCase>& each) {
                           return std::string(each.param.name);
                         });

TEST_F(OneSP, HasItsInterfacesCountedInSixteenBits) {
  struct InterfaceCase {
    int counted;
    const char* line;
    std::size_t published;
  };
  constexpr InterfaceCase kCounts[] = {{1, "cmd_NetworkInterface instances = 1", 1},
                                       {2, "cmd_NetworkInterface instances = 2", 2},
                                       {300, "cmd_NetworkInterface instances = 300", 2},
                                       {-1, "cmd_NetworkInterface instances = -1", 1},
                                       {65535, "cmd_NetworkInterface instances = -1", 1},
                                       {65537, "cmd_NetworkInterface instances = 1", 1},
                                       {65538, "cmd_NetworkInterface instances = 2", 2}};
  for (const InterfaceCase& each : kCounts) {
    host.events.clear();
    host.counts = {{"4.9.1", each.counted}};
    host.Query({kIPEndpoint});
    EXPECT_EQ(host.CountLines(each.line), 1U) << each.counted;
    EXPECT_EQ(host.Count(Call::Commit), each.published) << each.counted;
  }
}

}  // namespace
}  // namespace strake::strict
