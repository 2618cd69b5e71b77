// The SNMP community record of the summary: twelve texts, addresses too.
#include "tests/plugin/config/NetworkScenario.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

struct Community {
  Lines logs;
  Lines properties;
};

// What the community record alone brings.
Community CommunityOf(const std::string& record) {
  Scenario server = Scenario::Orlo();
  server.Answer("4.9.3.1.4.255", record).Run({kSummaryClass});
  const Lines logs =
      Between(server.Record().Logs(), "3 No data retrieved for DNS Configuration Summary",
              "4 TStrakePluginCallbacks::tcpipcommands completed.");
  const Lines properties = server.Record().Properties(1);
  return {Lines(logs.begin() + 4, logs.end() - 1), Lines(properties.begin() + 5, properties.end())};
}

TEST(NetworkCommunity, TellsAndSetsTwelveTextsInOrder) {
  struct Row {
    const char* name;
    int length, maximum;
    const char* text;
  };
  const Row rows[] = {
      {"Community1Name", 8, 7, "public"},
      {"Community1IP1", 13, 12, "192.0.2.100"},
      {"Community1IP2", 13, 12, "192.0.2.101"},
      {"Community1IP3", 9, 8, "0.0.0.0"},
      {"Community2Name", 9, 8, "private"},
      {"Community2IP1", 14, 13, "198.51.100.7"},
      {"Community2IP2", 2, 1, ""},
      {"Community2IP3", 2, 0, ""},
      {"Community3Name", 11, 3, "trap-sink"},
      {"Community3IP1", 9, 8, "1.2.3.4"},
      {"Community3IP2", 9, 15, "5.6.7.8"},
      {"Community3IP3", 12, 11, "9.10.11.12"},
  };
  Community expected;
  int place = 0;
  for (const Row& row : rows) {
    ++place;
    const std::string name = row.name;
    const std::string bracketed = "4 [" + name + "] ";
    expected.logs.push_back(bracketed + "Vector ID = " + std::to_string(place) + " " +
                            std::to_string(200 + place));
    expected.logs.push_back(bracketed + "Data length = " + std::to_string(row.length));
    expected.logs.push_back(bracketed + "Max length of string = " + std::to_string(row.maximum));
    expected.logs.push_back("3 " + name + " = " + row.text);
    expected.properties.push_back(name + " string " + row.text);
  }
  const Community community = CommunityOf(RecordOf(CommunityElements()));
  EXPECT_EQ(community.logs, expected.logs);
  EXPECT_EQ(community.properties, expected.properties);
}

TEST(NetworkCommunity, ReadsWhatEachElementHolds) {
  struct Case {
    std::size_t place;
    std::string element;
    std::string property;
  };
  const Case cases[] = {
      // M says nothing of the copy.
      {1, Text(1, 0, "secret", 2), "Community1Name string secret"},
      {1, Text(1, 0, "secret", 0), "Community1Name string secret"},
      {2, Text(2, 0, "192.0.2.1", 255), "Community1IP1 string 192.0.2.1"},
      {2, Plain(2, 0, Bytes({4, 192, 168, 0, 2})), "Community1IP1 string \xC0\xA8"},
      {3, Plain(3, 0, ""), "Community1IP2 string "},
      {5,
       Plain(5, 0,
             "\x04"
             "\x80\xFE\xFF"
             "z"),
       "Community2Name string \x80\xFE\xFFz\x06"},
      {9, Text(9, 0, std::string("one\0two", 7)), "Community3Name string one"},
      {12,
       Plain(12, 0,
             "\x01"
             "last"),
       "Community3IP3 string last"},
  };
  const Lines usual = CommunityOf(RecordOf(CommunityElements())).properties;
  for (const Case& c : cases) {
    SCOPED_TRACE(c.property);
    EXPECT_EQ(CommunityOf(RecordOf(With(CommunityElements(), c.place, c.element))).properties,
              With(usual, c.place, c.property));
  }
}

TEST(NetworkCommunity, TextsThatFillTheBufferWrapToItsBeginning) {
  // Two elements of 3 + 125 bytes: the odd texts are the first, the even ones
  // the second, which ends with the buffer. The first takes in the second's ID.
  const std::string a(124, 'a');
  const std::string b(124, 'b');
  const std::string record = Plain('1', 11, "\x7D" + a) + Plain('2', 12, "\xFF" + b);
  const Community community = CommunityOf(record);
  ASSERT_EQ(community.properties.size(), 12U);
  for (std::size_t i = 0; i < 12; i += 2) {
    EXPECT_TRUE(community.properties[i].ends_with(" string " + a + "2"));
    EXPECT_TRUE(community.properties[i + 1].ends_with(" string " + b));
  }
  EXPECT_EQ(Lines(community.logs.end() - 4, community.logs.end()),
            (Lines{"4 [Community3IP3] Vector ID = 50 12", "4 [Community3IP3] Data length = 125",
                   "4 [Community3IP3] Max length of string = 255", "3 Community3IP3 = " + b}));
}

TEST(NetworkCommunity, AReplyOfOneByteReadsTheZerosOfTheClearedBuffer) {
  const Community community = CommunityOf("\xFE");
  EXPECT_EQ(Lines(community.logs.begin(), community.logs.begin() + 5),
            (Lines{"4 [Community1Name] Vector ID = 254 0", "4 [Community1Name] Data length = 0",
                   "4 [Community1Name] Max length of string = 0",
                   "3 Community1Name = ", "4 [Community1IP1] Vector ID = 0 0"}));
  for (const std::string& property : community.properties) {
    EXPECT_TRUE(property.ends_with(" string ")) << property;
  }
}

}  // namespace
}  // namespace strake::tests
