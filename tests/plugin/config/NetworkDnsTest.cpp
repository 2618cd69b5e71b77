// The DNS record of the summary: no vector IDs, host names copied by L alone.
#include "tests/plugin/config/NetworkScenario.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

struct Dns {
  Lines logs;
  Lines properties;
};

// What the DNS record alone brings.
Dns DnsOf(const platform::Reply& reply) {
  Scenario server = Scenario::Orlo();
  server.Answer("4.9.3.2.255", {reply}).Run({kSummaryClass});
  const Lines logs = Between(server.Record().Logs(), "3 No data retrieved for SNMPv3",
                             "3 No data retrieved for SNMP Configuration Summary");
  const Lines properties = server.Record().Properties(1);
  // Less the line in front, the four and the three of the two sends, the last.
  return {Lines(logs.begin() + 4, logs.end() - 5), Lines(properties.begin() + 5, properties.end())};
}

Dns DnsOf(const Lines& elements) { return DnsOf(Success(RecordOf(elements))); }

TEST(NetworkDns, TellsAndSetsTwelveFieldsInOrder) {
  const Dns dns = DnsOf(DnsElements());
  EXPECT_EQ(dns.logs, (Lines{
                          "3 DNS = Enabled",
                          "3 DNSIP1 = 192.0.2.53",
                          "3 DNSIP2 = 192.0.2.54",
                          "3 DNSIP3 = 0.0.0.0",
                          "4 [HostName1] Data length = 13",
                          "4 [HostName1] Max length of string = 12",
                          "3 DNSHostName1 = one.example",
                          "3 DNSHostIP1 = 198.51.100.1",
                          "4 [HostName2] Data length = 13",
                          "4 [HostName2] Max length of string = 64",
                          "3 DNSHostName2 = two.example",
                          "3 DNSHostIP2 = 198.51.100.2",
                          "4 [HostName3] Data length = 15",
                          "4 [HostName3] Max length of string = 0",
                          "3 DNSHostName3 = three.example",
                          "3 DNSHostIP3 = 198.51.100.3",
                          "4 [HostName4] Data length = 2",
                          "4 [HostName4] Max length of string = 1",
                          "3 DNSHostName4 = ",
                          "3 DNSHostIP4 = 203.0.113.255",
                      }));
  EXPECT_EQ(dns.properties, (Lines{
                                "DNS string Enabled",
                                "DNSIP1 string 192.0.2.53",
                                "DNSIP2 string 192.0.2.54",
                                "DNSIP3 string 0.0.0.0",
                                "DNSHostName1 string one.example",
                                "DNSHostIP1 string 198.51.100.1",
                                "DNSHostName2 string two.example",
                                "DNSHostIP2 string 198.51.100.2",
                                "DNSHostName3 string three.example",
                                "DNSHostIP3 string 198.51.100.3",
                                "DNSHostName4 string ",
                                "DNSHostIP4 string 203.0.113.255",
                            }));
}

TEST(NetworkDns, ReadsWhatEachElementHolds) {
  struct Case {
    std::size_t place;
    std::string element;
    std::string property;
  };
  const Case cases[] = {
      {1, Plain(1, 0, Bytes({0})), "DNS string Disabled"},
      {1, Plain(1, 0, Bytes({128})), "DNS string Enabled"},
      {1, Plain(1, 0, ""), "DNS string Disabled"},
      {2, Plain(2, 0, Bytes({10, 1})), "DNSIP1 string 10.1.0.0"},
      {4, Plain(4, 0, ""), "DNSIP3 string 0.0.0.0"},
      {12, Plain(12, 0, Bytes({255, 254, 253, 252, 251})), "DNSHostIP4 string 255.254.253.252"},
      // M says nothing of the copy.
      {5, Text(5, 0, "name", 2), "DNSHostName1 string name"},
      {5, Text(5, 0, "name", 0), "DNSHostName1 string name"},
      {5, Text(5, 0, "name", 255), "DNSHostName1 string name"},
      {5, Plain(5, 0, ""), "DNSHostName1 string "},
      // Without a closing zero: with the first byte of the next element.
      {5,
       Plain(5, 0,
             "\x01"
             "name"),
       "DNSHostName1 string name\x06"},
      {11, Plain(11, 0, "\x80\x81\xFF"), "DNSHostName4 string \x81\xFF\x0C"},
      {9, Plain(9, 0, "\x05"), "DNSHostName3 string \x0A"},
  };
  const Lines usual = DnsOf(DnsElements()).properties;
  for (const Case& c : cases) {
    SCOPED_TRACE(c.property);
    EXPECT_EQ(DnsOf(With(DnsElements(), c.place, c.element)).properties,
              With(usual, c.place, c.property));
  }
}

TEST(NetworkDns, AStringWithALengthOfZeroStillTellsTheByteAtItsMaximum) {
  const Lines logs = DnsOf(With(DnsElements(), 5, Plain(5, 0, ""))).logs;
  EXPECT_EQ(Lines(logs.begin() + 4, logs.begin() + 7),
            (Lines{"4 [HostName1] Data length = 0", "4 [HostName1] Max length of string = 6",
                   "3 DNSHostName1 = "}));
}

TEST(NetworkDns, ElementsThatRunPast255GoOnAtTheBeginningOfTheBuffer) {
  // DNS and three addresses take 25 bytes; the first host name then ends at
  // `next`, so that the address behind it lies across the end or in front.
  struct Case {
    int next;
    std::string end;
    std::string address;
    std::string name;  // of the second host, back at the beginning
  };
  const std::string first = Bytes({1, 0, 1, 1, 2, 'h', 4, 7, 8, 9, 10});
  const Case cases[] = {
      // Three of four data bytes lie in the buffer; on at 1.
      {250, Bytes({6, 0, 4, 192, 0, 2}), "192.0.2.0", "h"},
      // Only the header does; on at 4, the second element.
      {253, Bytes({6, 0, 4}), "0.0.0.0", "\x08\x09\x0A\x03"},
      // Not even L does, which is 0 then; on at 1.
      {254, Bytes({6, 0}), "0.0.0.0", "h"},
      // Nor the second header byte; on at 2.
      {255, Bytes({6}), "0.0.0.0", "\x04\x07"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.next);
    std::string record = first + Bytes({3, 0, 4, 0, 0, 0, 0, 4, 0, 4, 0, 0, 0, 0});
    record += Plain(5, 0, std::string(static_cast<std::size_t>(c.next) - record.size() - 3, 'n'));
    record += c.end;
    const Lines properties = DnsOf(Success(record)).properties;
    EXPECT_EQ(properties.at(5), "DNSHostIP1 string " + c.address);
    EXPECT_EQ(properties.at(6), "DNSHostName2 string " + c.name);
  }
}

TEST(NetworkDns, OneLongElementLeadsBackIntoItself) {
  // 3 + 253 bytes: every element is the first one.
  const Dns dns = DnsOf(Success(Plain(1, 0, std::string(253, 'a'))));
  EXPECT_EQ(dns.properties, (Lines{
                                "DNS string Enabled",
                                "DNSIP1 string 97.97.97.97",
                                "DNSIP2 string 97.97.97.97",
                                "DNSIP3 string 97.97.97.97",
                                "DNSHostName1 string " + std::string(252, 'a'),
                                "DNSHostIP1 string 97.97.97.97",
                                "DNSHostName2 string " + std::string(252, 'a'),
                                "DNSHostIP2 string 97.97.97.97",
                                "DNSHostName3 string " + std::string(252, 'a'),
                                "DNSHostIP3 string 97.97.97.97",
                                "DNSHostName4 string " + std::string(252, 'a'),
                                "DNSHostIP4 string 97.97.97.97",
                            }));
}

TEST(NetworkDns, AReplyOfOneByteReadsTheZerosOfTheClearedBuffer) {
  for (const std::string& property : DnsOf(Success("\xFF")).properties) {
    SCOPED_TRACE(property);
    EXPECT_TRUE(property == "DNS string Disabled" || property.ends_with("IP1 string 0.0.0.0") ||
                property.ends_with("IP2 string 0.0.0.0") ||
                property.ends_with("IP3 string 0.0.0.0") ||
                property.ends_with("IP4 string 0.0.0.0") ||
                (property.starts_with("DNSHostName") && property.ends_with(" string ")));
  }
}

}  // namespace
}  // namespace strake::tests
