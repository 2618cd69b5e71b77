// The SNMP and DNS summary of an SP: its seven commands, each on its own.
#include "tests/plugin/config/NetworkScenario.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace strake::tests {
namespace {

const Lines& Identity() {
  static const Lines kIdentity = {
      "CreationClassName string VELKSG_ServProc_IPProtocolEndpoint2",
      "SourceNode uint8 1",
      "Name string 9999-AC1-Node1",
      "SystemCreationClassName string CIM_ComputerSystem",
      "SystemName string SRV1",
  };
  return kIdentity;
}

struct Command {
  const char* identifier;
  const char* name;    // in the line on missing data
  const char* prefix;  // of its properties and of their lines
};

constexpr Command kCommands[] = {
    {"4.9.3.1.2", "SystemLocation", "SystemLocation"},
    {"4.9.3.1.1", "SystemContact", "SystemContact"},
    {"4.9.3.1.3", "Traps", "Traps"},
    {"4.9.3.1.5", "SNMPv1", "SNMPv1"},
    {"4.9.3.1.6", "SNMPv3", "SNMPv3"},
    {"4.9.3.2.255", "DNS Configuration Summary", "DNS"},
    {"4.9.3.1.4.255", "SNMP Configuration Summary", "Community"},
};

Lines SummaryOf(Scenario& server) { return server.Run({kSummaryClass}).Record().Properties(1); }

// The first reply that this server gives to a command.
int LengthOf(const Scenario& server, const char* identifier) {
  return server.server.sp.instances.at(0).at(Id(identifier)).front().length;
}

TEST(NetworkSummary, TellsAndSetsTheFiveValuesInOrder) {
  Scenario server = NetworkServer();
  const Lines properties = SummaryOf(server);
  ASSERT_EQ(properties.size(), 34U);
  EXPECT_EQ(Lines(properties.begin(), properties.begin() + 10),
            Joined({Identity(),
                    {"SystemLocation string Rack 4, row B", "SystemContact string lab@example.org",
                     "Traps string Enabled", "SNMPv1 string Disabled", "SNMPv3 string Enabled"}}));
  const Lines logs = LogsOf(server, "tcpipcommands");
  EXPECT_EQ(Lines(logs.begin(), logs.begin() + 24),
            Joined({{"4 TStrakePluginCallbacks::tcpipcommands entered."},
                    SentLines("4.9.3.1.2", 13),
                    {"3 SystemLocation = Rack 4, row B"},
                    SentLines("4.9.3.1.1", 15),
                    {"3 SystemContact = lab@example.org"},
                    SentLines("4.9.3.1.3", 1),
                    {"3 Traps = Enabled"},
                    SentLines("4.9.3.1.5", 1),
                    {"3 SNMPv1 = Disabled"},
                    SentLines("4.9.3.1.6", 1),
                    {"3 SNMPv3 = Enabled"},
                    SentLines("4.9.3.2.255", LengthOf(server, "4.9.3.2.255"))}));
  EXPECT_EQ(logs.back(), "4 TStrakePluginCallbacks::tcpipcommands completed.");
}

TEST(NetworkSummary, LogsEachValueBeforeItSetsIt) {
  Scenario server = NetworkServer();
  SummaryOf(server);
  const Lines& all = server.Record().All();
  for (const std::string field : {"SystemLocation", "SystemContact", "Traps", "SNMPv1", "SNMPv3",
                                  "DNS", "DNSHostIP4", "Community1Name", "Community3IP3"}) {
    const auto set = std::find_if(all.begin(), all.end(), [&](const std::string& line) {
      return line.starts_with("Set 1 " + field + " ");
    });
    ASSERT_NE(set, all.end());
    EXPECT_TRUE((set - 1)->starts_with("log 3 " + field + " = ")) << *(set - 1);
  }
}

TEST(NetworkSummary, EveryCommandIsOfClassTwoAndOffers256Bytes) {
  Scenario server = Scenario::Orlo();
  SummaryOf(server);
  Lines expected;
  for (const Command& command : kCommands) {
    expected.push_back(std::string("dot 2 ") + command.identifier + " sp 0 size 256 -> false 0 ");
  }
  EXPECT_EQ(server.Record().Beginning({"dot 2 4."}), expected);
}

TEST(NetworkSummary, WithoutAnyDataItIsPublishedWithItsKeys) {
  Scenario server = Scenario::Orlo();
  EXPECT_EQ(SummaryOf(server), Identity());
  Lines expected = {"4 TStrakePluginCallbacks::tcpipcommands entered."};
  for (const Command& command : kCommands) {
    expected = Joined({expected,
                       FailedLines(command.identifier),
                       {std::string("3 No data retrieved for ") + command.name}});
  }
  expected.emplace_back("4 TStrakePluginCallbacks::tcpipcommands completed.");
  EXPECT_EQ(LogsOf(server, "tcpipcommands"), expected);
  EXPECT_EQ(server.Record().Beginning({"Commit"}), (Lines{"Commit 1"}));
}

TEST(NetworkSummary, ACommandWithoutDataCostsOnlyItsOwnProperties) {
  Scenario whole = NetworkServer();
  const Lines usual = SummaryOf(whole);
  const Lines commands = Commands(whole);
  for (const Command& command : kCommands) {
    const std::string bytes =
        whole.server.sp.instances.at(0).at(Id(command.identifier)).front().bytes;
    struct Case {
      const char* what;
      platform::Reply reply;
      Lines sent;
    };
    const Case cases[] = {
        {"failed", Failure(), FailedLines(command.identifier)},
        {"failed with bytes", Failure(bytes, 7), FailedLines(command.identifier, 7)},
        {"empty", Success(""), SentLines(command.identifier, 0)},
        {"a length of 0", Reported(bytes, 0), SentLines(command.identifier, 0)},
    };
    for (const Case& c : cases) {
      SCOPED_TRACE(std::string(command.name) + " " + c.what);
      Scenario server = NetworkServer();
      server.Answer(command.identifier, {c.reply});
      Lines expected = usual;
      std::erase_if(expected, [&](const std::string& property) {
        return property.starts_with(command.prefix);
      });
      EXPECT_EQ(SummaryOf(server), expected);
      EXPECT_EQ(Commands(server), commands);
      const Lines logs = LogsOf(server, "tcpipcommands");
      const Lines missing =
          Joined({c.sent, {std::string("3 No data retrieved for ") + command.name}});
      EXPECT_NE(std::search(logs.begin(), logs.end(), missing.begin(), missing.end()), logs.end());
      EXPECT_EQ(std::count_if(logs.begin(), logs.end(),
                              [](const std::string& line) {
                                return line.starts_with("3 No data retrieved for ");
                              }),
                1);
    }
  }
}

TEST(NetworkSummary, TrapsAreEnabledByAZeroAndTheSnmpVersionsByAnythingElse) {
  // One query a value: a command's replies come one after the other.
  platform::ReplySequence replies;
  for (int byte = 0; byte <= 255; ++byte) {
    replies.push_back(Success(Bytes({byte, 1, 0})));
  }
  Scenario server = Scenario::Orlo();
  server.Answer("4.9.3.1.3", replies).Answer("4.9.3.1.5", replies).Answer("4.9.3.1.6", replies);
  server.RunAll(std::vector<Classes>(256, {kSummaryClass}));
  for (unsigned long byte = 0; byte <= 255; ++byte) {
    const Lines properties = server.Record().Properties(byte + 1);
    const std::string traps = byte == 0 ? "Enabled" : "Disabled";
    const std::string versions = byte == 0 ? "Disabled" : "Enabled";
    EXPECT_EQ(
        Lines(properties.begin() + 5, properties.end()),
        (Lines{"Traps string " + traps, "SNMPv1 string " + versions, "SNMPv3 string " + versions}))
        << byte;
  }
}

TEST(NetworkSummary, ATextIsTheReplyToItsLengthOrItsFirstZeroByte) {
  struct Case {
    platform::Reply reply;
    std::string text;
  };
  const Case cases[] = {
      {Success("abc"), "abc"},
      {Success(std::string("abc\0def", 7)), "abc"},
      {Success(std::string("\0abc", 4)), ""},
      {Success("\x80\xFF\x01"), "\x80\xFF\x01"},
      {Reported("abcdef", 3), "abc"},
      {Reported("abc", 200), "abc"},
      {Reported("abc", -1), "abc"},
      {Success(std::string(255, 'x')), std::string(255, 'x')},
      {Success(std::string(256, 'x')), std::string(256, 'x')},
      {Success(std::string(300, 'x')), std::string(256, 'x')},
  };
  for (const Case& c : cases) {
    Scenario server = Scenario::Orlo();
    // The second reply comes in over nothing of the first.
    server.Answer("4.9.3.1.2", std::string(256, 'y')).Answer("4.9.3.1.1", {c.reply});
    EXPECT_EQ(SummaryOf(server), Joined({Identity(),
                                         {"SystemLocation string " + std::string(256, 'y'),
                                          "SystemContact string " + c.text}}));
    EXPECT_EQ(server.Record().Beginning({"log 3 SystemContact"}),
              (Lines{"log 3 SystemContact = " + c.text}));
  }
}

}  // namespace
}  // namespace strake::tests
