// The dial readers held beside a plain reading: replies of every length, records
// that wrap, records of any bytes.
#include "tests/plugin/config/DialScenario.h"
#include "tests/support/PlainRecords.h"

#include <gtest/gtest.h>
#include <random>

namespace strake::tests {
namespace {

struct DialRecord {
  const char* title;
  const char* className;
  const char* identifier;
  const char* record;
  std::string full;
};

std::vector<DialRecord> DialRecords() {
  return {
      {"SerialPort", kSerialPort, "4.1.2.1.255", "serial port", SerialPortReply()},
      {"Dialout", kDialout, "4.1.3.1.255", "dial-out settings", DialoutReply()},
      {"Dialin", kDialin, "4.1.4.1.255", "dial-in login", DialinReply()},
      {"Alerts", kAlerts, "4.2.1.1", "dial-out alerts", AlertReply(Bytes({1, 0, 0, 1, 1, 0, 1}))},
  };
}

std::string TitleOf(const testing::TestParamInfo<DialRecord>& info) { return info.param.title; }

// What the walk through a reply logs and sets, as the recorder writes it.
Lines Walk(const DialRecord& record, const std::string& reply, unsigned long instance) {
  constexpr std::size_t kBuffer = 350;
  PlainBytes buffer(reply.begin(), reply.end());
  buffer.resize(kBuffer);
  const PlainRecord& plain = PlainRecordNamed(record.record);
  return PlainTrail(plain, ReadPlainly(plain, buffer), instance);
}

// One query a reply; each query's lines from its first element to its last.
std::vector<Lines> Read(const DialRecord& record, const std::vector<std::string>& replies) {
  platform::ReplySequence sequence;
  for (const std::string& reply : replies) {
    sequence.push_back(Success(reply));
  }
  Scenario scenario = Scenario::Orlo();
  scenario.Component("4.1.3.1.255", 1).Component("4.1.4.1.255", 1);
  scenario.Answer(record.identifier, sequence)
      .RunAll(std::vector<Classes>(replies.size(), {record.className}));
  std::vector<Lines> queries;
  bool isInWalk = false;
  for (const std::string& line : scenario.Record().All()) {
    if (line.starts_with("query ")) {
      queries.emplace_back();
    }
    isInWalk = line.starts_with("log 4 [") ||
               (isInWalk && !line.starts_with("Commit") && !line.starts_with("log 4 "));
    if (isInWalk) {
      queries.back().push_back(line);
    }
  }
  return queries;
}

class DialWalk : public testing::TestWithParam<DialRecord> {
 protected:
  static void Compare(const std::vector<std::string>& replies) {
    const std::vector<Lines> queries = Read(GetParam(), replies);
    ASSERT_EQ(queries.size(), replies.size());
    for (std::size_t i = 0; i < replies.size(); ++i) {
      ASSERT_EQ(queries.at(i), Walk(GetParam(), replies.at(i), static_cast<unsigned long>(i + 1)))
          << "reply " << i;
    }
  }
};

TEST_P(DialWalk, ReadsRepliesOfEveryLengthFromOneTo350AsZerosBehindTheirEnd) {
  std::vector<std::string> replies;
  for (std::size_t length = 1; length <= 350; ++length) {
    // Behind the record lies what no element should reach.
    std::string reply = GetParam().full + std::string(350, '\x41');
    replies.push_back(reply.substr(0, length));
  }
  Compare(replies);
}

TEST_P(DialWalk, ReadsRecordsThatFillTheBufferAndWrap) {
  std::vector<std::string> replies;
  for (int length = 0; length < 256; ++length) {
    // Each byte is a length for somebody: all elements are this long.
    std::string reply(350, static_cast<char>(length));
    replies.push_back(reply);
    // The same, told apart by place.
    for (std::size_t i = 0; i < reply.size(); ++i) {
      if (i % static_cast<std::size_t>(length + 3) != 2) {
        reply.at(i) = static_cast<char>(1 + i % 255);
      }
    }
    replies.push_back(reply);
  }
  Compare(replies);
}

TEST_P(DialWalk, ReadsAnyBytes) {
  std::minstd_rand random;  // NOLINT(cert-msc32-c,cert-msc51-cpp): the same bytes every time
  std::vector<std::string> replies;
  for (int round = 0; round < 300; ++round) {
    // From short elements to long ones.
    const unsigned int range = round % 3 == 0 ? 256 : round % 3 == 1 ? 24 : 80;
    std::string reply(1 + random() % 400, '\0');
    for (char& byte : reply) {
      byte = static_cast<char>(random() / 7 % range);
    }
    replies.push_back(reply);
  }
  Compare(replies);
}

INSTANTIATE_TEST_SUITE_P(Record, DialWalk, testing::ValuesIn(DialRecords()), TitleOf);

}  // namespace
}  // namespace strake::tests
