// Replies of every length from 1 to 256, to every network command.
#include "tests/plugin/config/NetworkScenario.h"
#include "tests/support/PlainRecords.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

// Whole replies of 256 bytes; each length cuts them somewhere else.
struct Replies {
  std::string interface =
      RecordOf(With(InterfaceElements(), 3, Text(3, 243, "sp-lab-7" + std::string(165, 'h'))));
  std::string dns = RecordOf(With(DnsElements(), 5, Text(5, 105, std::string(159, 'd'))));
  std::string community =
      RecordOf(With(CommunityElements(), 1, Text(1, 201, std::string(115, 'c'))));
  std::string value;

  Replies() {
    for (int i = 0; i < 256; ++i) {
      value.push_back(static_cast<char>(255 - i));  // its only zero is the last byte
    }
  }
};

// The properties that a record sets, out of a reply as it lies in the buffer.
Lines PropertiesOf(const PlainRecord& record, const std::string& reply) {
  PlainBytes buffer(reply.begin(), reply.end());
  buffer.resize(256);
  Lines properties;
  for (const std::string& line : PlainTrail(record, ReadPlainly(record, buffer))) {
    if (line.starts_with("Set 1 ")) {
      properties.push_back(line.substr(6));
    }
  }
  return properties;
}

Lines LogsOfRecord(const PlainRecord& record, const std::string& reply) {
  PlainBytes buffer(reply.begin(), reply.end());
  buffer.resize(256);
  Lines logs;
  for (const std::string& line : PlainTrail(record, ReadPlainly(record, buffer))) {
    if (line.starts_with("log ")) {
      logs.push_back(line.substr(4));
    }
  }
  return logs;
}

std::string Address(std::size_t length) {
  switch (length) {
    case 1:
      return "255.0.0.0";
    case 2:
      return "255.254.0.0";
    case 3:
      return "255.254.253.0";
    default:
      return "255.254.253.252";
  }
}

Scenario ServerThatAnswers(const Replies& replies, std::size_t length) {
  Scenario server = Scenario::Orlo();
  server.Component(kInterfaceList, 2)
      .Answer("4.9.3.2.255", replies.dns.substr(0, length))
      .Answer("4.9.3.1.4.255", replies.community.substr(0, length));
  const std::string value = replies.value.substr(0, length);
  for (const char* const identifier :
       {"4.9.3.1.2", "4.9.3.1.1", "4.9.3.1.3", "4.9.3.1.5", "4.9.3.1.6"}) {
    server.Answer(identifier, value);
  }
  for (const std::string interface : {"4.9.1.1.", "4.9.1.2."}) {
    server.Answer(interface + "255", replies.interface.substr(0, length));
    for (int place = 1; place <= 9; ++place) {
      server.Answer(interface + "16." + std::to_string(place), value);
    }
  }
  return server;
}

TEST(NetworkReplyLength, EveryLengthIsReadToItsEndAndAsZerosBeyond) {
  const Replies replies;
  for (const std::string* const whole :
       {&replies.interface, &replies.dns, &replies.community, &replies.value}) {
    ASSERT_EQ(whole->size(), 256U);
  }
  for (std::size_t length = 1; length <= 256; ++length) {
    SCOPED_TRACE(length);
    Scenario server = ServerThatAnswers(replies, length);
    server.Run({kInterfaceClass, kSummaryClass});
    const std::string text = replies.value.substr(0, std::min<std::size_t>(length, 255));
    const std::string address = Address(length);

    const Lines summary = server.Record().Properties(1);
    EXPECT_EQ(Lines(summary.begin() + 5, summary.end()),
              Joined({{"SystemLocation string " + text, "SystemContact string " + text,
                       "Traps string Disabled", "SNMPv1 string Enabled", "SNMPv3 string Enabled"},
                      PropertiesOf(PlainRecordNamed("DNS summary"), replies.dns.substr(0, length)),
                      PropertiesOf(PlainRecordNamed("SNMP communities"),
                                   replies.community.substr(0, length))}));

    const std::string record = replies.interface.substr(0, length);
    const Lines fields = Joined({PropertiesOf(PlainRecordNamed("network interface"), record),
                                 {
                                     "DHCPHostName string " + text,
                                     "DHCPAssignedIPAddress string " + address,
                                     "DHCPAssignedGatewayAddress string " + address,
                                     "DHCPAssignedSubnetMask string " + address,
                                     "DHCPDomainName string " + text,
                                     "DHCPServer string " + address,
                                     "DHCPPrimaryDNS string " + address,
                                     "DHCPSecondaryDNS string " + address,
                                     "DHCPTertiaryDNS string " + address,
                                 }});
    for (const unsigned long instance : {2UL, 3UL}) {
      const Lines properties = server.Record().Properties(instance);
      EXPECT_EQ(Lines(properties.begin() + 6, properties.end()), fields);
    }
    const Lines logs = LogsOf(server, "NetworkInterface");
    EXPECT_EQ(Lines(logs.begin() + 5, logs.end() - 1),
              LogsOfRecord(PlainRecordNamed("network interface"), record));
    EXPECT_EQ(server.Record().Beginning({"log 3 No data"}), Lines{});
  }
}

}  // namespace
}  // namespace strake::tests
