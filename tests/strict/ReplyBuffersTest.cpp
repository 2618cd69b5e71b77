// What reply buffers hold when a command is sent, behind a driver that writes
// over all of them, whether or not its command is carried out.
#include "tests/strict/Classes.h"

#include <algorithm>
#include <ostream>

namespace strake::strict {
namespace {

bool IsClear(const Bytes& bytes) {
  return std::ranges::all_of(bytes, [](unsigned char byte) { return byte == 0; });
}

// What one class' commands find.
struct BufferCase {
  const char* name;
  const char* classCase;
  const char* identifier;  // where it begins
  std::size_t size;
  bool isCleared;
};

void PrintTo(const BufferCase& bufferCase, std::ostream* stream) { *stream << bufferCase.name; }

class ReplyBuffer : public testing::TestWithParam<BufferCase> {
 protected:
  void Expect(const StrictHost& host) {
    std::size_t looked = 0;
    for (const Event& event : host.events) {
      if (event.call != Call::SendDotCommand && event.call != Call::SendKestleCommand) continue;
      if (!event.text.starts_with(GetParam().identifier)) continue;
      ++looked;
      EXPECT_EQ(event.before.size(), GetParam().size) << event.text;
      EXPECT_TRUE(!GetParam().isCleared || IsClear(event.before)) << event.text;
      EXPECT_EQ(event.lengthBefore, 0) << event.text;
    }
    EXPECT_GE(looked, 1U);
  }

  void Query(const Reply& reply) {
    StrictHost host;
    Prepare(host, CaseOf(GetParam().classCase));
    host.otherReply = reply;
    host.replies = {{"1.1", {}}};
    host.Query({CaseOf(GetParam().classCase).className});
    Expect(host);
  }
};

TEST_P(ReplyBuffer, IsAsLargeAndAsClearAsItsReaderSays) {
  Query({.bytes = {18, 3, 1}, .fill = 0xEE});
}

TEST_P(ReplyBuffer, IsClearBehindAFailedSendThatWroteOverIt) {
  Query({.bytes = {1}, .isCarriedOut = false, .fill = 0xEE});
}

TEST_P(ReplyBuffer, IsClearBehindAnEmptyReplyThatWroteOverIt) { Query({.fill = 0xEE}); }

constexpr BufferCase kCases[] = {
    {"Clock", "ComputerSystem", "4.4.1", 2048, false},
    {"Interface", "IPEndpoint", "4.9.1.1.255", 256, true},
    {"SecondInterface", "IPEndpoint", "4.9.1.2.255", 256, true},
    {"DhcpValues", "IPEndpoint", "4.9.1.1.16", 256, true},
    {"SecondDhcpValues", "IPEndpoint", "4.9.1.2.16", 256, true},
    {"NetworkSummary", "IPEndpoint2", "4.9.3", 256, true},
    {"Dialout", "Dialout", "4.1.3", 350, true},
    {"Dialin", "Dialin", "4.1.4", 350, true},
    {"SerialPort", "SerialPort", "4.1.2", 350, true},
    {"Alerts", "Alerts", "4.2.1", 350, true},
    {"Sensors", "OrloSensor", "2.", 256, false},
    {"KestleVoltage", "TavitSensor", "166", 255, true},
    {"KestleFans", "TavitSensor", "162", 255, true},
    {"KestleTemperatures", "TavitSensor", "164", 255, true},
};

INSTANTIATE_TEST_SUITE_P(Of, ReplyBuffer, testing::ValuesIn(kCases),
                         [](const testing::TestParamInfo<BufferCase>& each) {
                           return std::string(each.param.name);
                         });

const Event* SendOf(const StrictHost& host, const std::string& identifier) {
  for (const Event* const event : host.All(Call::SendDotCommand)) {
    if (event->text == identifier) return event;
  }
  return nullptr;
}

TEST_F(OneSP, HasTheWholeClockReplyClearedBeforeTheTimeZoneIsAskedFor) {
  host.replies["4.4.1"] = {.bytes = {9, 3, 7, 0, 14, 5, 9}, .fill = 0xEE};
  Query("ComputerSystem");
  const Event* const clock = SendOf(host, "4.4.1");
  const Event* const timeZone = SendOf(host, "4.4.2");
  ASSERT_NE(clock, nullptr);
  ASSERT_NE(timeZone, nullptr);
  EXPECT_EQ(clock->before.size(), 2048U);
  EXPECT_FALSE(IsClear(clock->after));
  EXPECT_EQ(timeZone->before, Bytes(2048, 0));
}

TEST_F(OneSP, HasItsTimeZoneReadOverWhatTheAuthorityLevelsLeft) {
  for (const bool isCarriedOut : {true, false}) {
    host.events.clear();
    host.replies["4.1.4.1.9"] = {.bytes = {1, 2}, .isCarriedOut = isCarriedOut, .fill = 0xEE};
    Query("Dialin");
    const Event* const authority = SendOf(host, "4.1.4.1.9");
    const Event* const timeZone = SendOf(host, "4.4.2");
    ASSERT_NE(authority, nullptr);
    ASSERT_NE(timeZone, nullptr);
    EXPECT_EQ(timeZone->before.size(), 350U);
    EXPECT_FALSE(IsClear(timeZone->before));
    EXPECT_EQ(timeZone->before, authority->after);
  }
}

TEST_F(OneSP, IsTestedWith4096Bytes) {
  Query("Alerts");
  EXPECT_EQ(SendOf(host, "1.1")->before.size(), 4096U);
}

// The length is one number for both: a driver that does not tell the second
// leaves the first.
TEST_F(OneSP, HasTheClocksLengthStandForATimeZoneWithout) {
  host.replies["4.4.2"] = {.tellsLength = false};
  Query("ComputerSystem");
  EXPECT_EQ(SendOf(host, "4.4.1")->lengthBefore, 0);
  EXPECT_EQ(SendOf(host, "4.4.2")->lengthBefore, 7);
  EXPECT_EQ(host.CountLines("Command to read SP timezone failed."), 0U);
  EXPECT_EQ(host.CountLines("SPtime = 2009-3-1 14:5:9.0 0"), 1U);
}

// Which lines tell of commands that brought nothing, and how many.
struct NoDataCase {
  const char* name;
  const char* classCase;
  const char* line;
  std::size_t lines;
  std::size_t instances;
};

void PrintTo(const NoDataCase& noDataCase, std::ostream* stream) { *stream << noDataCase.name; }

class NoData : public testing::TestWithParam<NoDataCase> {
 protected:
  void Query(const Reply& reply) {
    StrictHost host;
    Prepare(host, CaseOf(GetParam().classCase));
    host.otherReply = reply;
    for (auto& [command, scripted] : host.replies) scripted = reply;
    host.replies["1.1"] = {};
    host.Query({CaseOf(GetParam().classCase).className});
    std::size_t lines = 0;
    for (const std::string& line : host.Lines()) lines += line.starts_with(GetParam().line);
    EXPECT_EQ(lines, GetParam().lines);
    EXPECT_EQ(host.Count(Call::Commit), GetParam().instances);
  }
};

TEST_P(NoData, CameFromADriverThatDoesNotTellTheLength) {
  Query({.bytes = {18, 3, 1}, .tellsLength = false, .fill = 0xEE});
}
TEST_P(NoData, CameFromADriverThatWritesAReplyAndFails) {
  Query({.bytes = {18, 3, 1}, .isCarriedOut = false});
}
TEST_P(NoData, CameWithAnEmptyReply) { Query({.fill = 0xEE}); }

constexpr NoDataCase kNoData[] = {
    {"ComputerSystem", "ComputerSystem", "Command to read SP clock failed.", 2, 2},
    {"Interfaces", "IPEndpoint", "No data retrieved for ", 40, 4},
    {"NetworkSummary", "IPEndpoint2", "No data retrieved for ", 14, 2},
    {"Dialout", "Dialout", "No data retrieved for Dial out settings.", 4, 0},
    {"Dialin", "Dialin", "No data retrieved for ", 16, 4},
    {"SerialPort", "SerialPort", "No data retrieved for Serial Port info.", 4, 0},
    {"Alerts", "Alerts", "No data retrieved for Dialout Alerts.", 2, 0},
    {"OrloSensor", "OrloSensor", "No data retrieved for ", 84, 0},
    {"TavitSensor", "TavitSensor", "No data retrieved for Kestle ", 3, 0},
};

INSTANTIATE_TEST_SUITE_P(Of, NoData, testing::ValuesIn(kNoData),
                         [](const testing::TestParamInfo<NoDataCase>& each) {
                           return std::string(each.param.name);
                         });

}  // namespace
}  // namespace strake::strict
