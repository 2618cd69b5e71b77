// The fields of an interface's record, one by one, and records that do not lie
// as they should.
#include "tests/plugin/config/NetworkScenario.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

// The lines of level 3 on the fields, as NAME = VALUE.
Lines FieldsOf(const std::string& record) {
  Scenario scenario = Scenario::Orlo();
  scenario.Answer("4.9.1.1.255", record).Run({kInterfaceClass});
  Lines fields;
  for (const std::string& line : LogsOf(scenario, "NetworkInterface")) {
    if (line.starts_with("3 ") && line != "3 instance = 1") {
      fields.push_back(line.substr(2));
    }
  }
  return fields;
}

TEST(NetworkInterfaceField, ReadsWhatItsElementHolds) {
  struct Case {
    std::size_t place;
    std::string element;
    std::string field;
  };
  const Case cases[] = {
      {1, Plain(1, 0, Bytes({1})), "LineType = Ethernet"},
      {1, Plain(1, 0, Bytes({2})), "LineType = Token Ring"},
      {1, Plain(1, 0, Bytes({3})), "LineType = PPP"},
      {1, Plain(1, 0, Bytes({0})), "LineType = None"},
      {1, Plain(1, 0, Bytes({4})), "LineType = None"},
      {1, Plain(1, 0, Bytes({129})), "LineType = None"},
      {2, Plain(2, 0, Bytes({0})), "Enabled = Disabled"},
      {2, Plain(2, 0, Bytes({128})), "Enabled = Enabled"},
      {2, Plain(2, 0, Bytes({0, 1})), "Enabled = Disabled"},
      {2, Plain(2, 0, ""), "Enabled = Disabled"},
      {3, Text(3, 0, "a-long-host-name", 6), "HostName = a-long"},
      {3, Text(3, 0, "name", 255), "HostName = name"},
      {3, Text(3, 0, "name", 0), "HostName = "},
      {3, Plain(3, 0, ""), "HostName = "},
      // Without a closing zero: with the first byte of the next element, a 4.
      {3,
       Plain(3, 0,
             "\x09"
             "abcd"),
       "HostName = abcd\x04"},
      {3,
       Plain(3, 0,
             "\x04"
             "abcd"),
       "HostName = abcd"},
      {3, Plain(3, 0, "\xFF"), "HostName = \x04"},
      {3, Text(3, 0, "\xC3\xA9\xFF\x80"), "HostName = \xC3\xA9\xFF\x80"},
      {3, Text(3, 0, std::string("one\0two", 7)), "HostName = one"},
      {4, Plain(4, 0, Bytes({255, 128, 0, 1, 9})), "HostIPAddress = 255.128.0.1"},
      {4, Plain(4, 0, Bytes({10, 1})), "HostIPAddress = 10.1.0.0"},
      {4, Plain(4, 0, ""), "HostIPAddress = 0.0.0.0"},
      {5, Plain(5, 0, Bytes({4})), "LANDataRate = 100M"},
      {5, Plain(5, 0, Bytes({6})), "LANDataRate = None"},
      {6, Plain(6, 0, Bytes({3})), "Duplex = Auto"},
      {6, Plain(6, 0, Bytes({0})), "Duplex = None"},
      {7, Plain(7, 0, Bytes({0xFF, 0x80})), "LocalAdminMACAddress = 255.128.0.0.0.0"},
      {8, Plain(8, 0, Bytes({0})), "DHCPEnabled = DHCP Disabled"},
      {8, Plain(8, 0, Bytes({1})), "DHCPEnabled = DHCP Enabled"},
      {8, Plain(8, 0, Bytes({3})), "DHCPEnabled = None"},
      {8, Plain(8, 0, ""), "DHCPEnabled = DHCP Disabled"},
      {10, Plain(10, 0, Bytes({0xFE, 0x0A, 0xB0})), "BurnedInMACAddress = FE:0A:B0:00:00:00"},
      {11, Plain(11, 0, Bytes({2})), "PPPModemCOMPort = None"},
      {13, Plain(13, 0, Bytes({255})), "NetworkMTU = 255 bytes"},
      {13, Plain(13, 0, Bytes({5, 220})), "NetworkMTU = 5 bytes"},  // 1500 in two bytes
      {13, Plain(13, 0, ""), "NetworkMTU = 0 bytes"},
      {15, Plain(15, 0, Bytes({1})), "PPPAuthenticationProtocol = PAP Only"},
      {15, Plain(15, 0, Bytes({2})), "PPPAuthenticationProtocol = CHAP Only"},
      {15, Plain(15, 0, Bytes({0})), "PPPAuthenticationProtocol = None"},
  };
  const Lines usual = FieldsOf(RecordOf(InterfaceElements()));
  for (const Case& c : cases) {
    SCOPED_TRACE(c.field);
    const Lines elements = With(InterfaceElements(), c.place, c.element);
    // The elements around it are read as ever.
    EXPECT_EQ(FieldsOf(RecordOf(elements)), With(usual, c.place, c.field));
  }
}

TEST(NetworkInterfaceField, AHostNameShorterThanItsMaximumIsStillTakenToItsLength) {
  const Lines elements = With(InterfaceElements(), 3, Plain(3, 0, "\xF0name"));
  Scenario scenario = Scenario::Orlo();
  scenario.Answer("4.9.1.1.255", RecordOf(elements)).Run({kInterfaceClass});
  EXPECT_EQ(scenario.Record().Beginning({"log 4 [HostName]", "log 3 HostName", "Set 1 HostName"}),
            (Lines{"log 4 [HostName] Vector ID = 3 0", "log 4 [HostName] Data length = 5",
                   "log 4 [HostName] Max length of string = 240", "log 3 HostName = name\x04",
                   "Set 1 HostName string name\x04"}));
}

// The first element is long enough for the second to begin where it says; what
// the second finds there stands in the table, and so does what the third finds
// at the record's beginning again.
TEST(NetworkInterfaceField, ARecordThatRunsPast255GoesOnAtItsBeginning) {
  struct Case {
    int length;
    std::string end;  // the bytes of the second element that the buffer holds
    Lines lines;
  };
  const Case cases[] = {
      {249,  // at 252, with one byte of data before the end; on at 0
       Bytes({2, 242, 1, 7}),
       {"4 [Enabled] Vector ID = 2 242", "3 Enabled = Enabled", "4 [HostName] Vector ID = 1 241",
        "4 [HostName] Data length = 249", "4 [HostName] Max length of string = 65",
        "3 HostName = " + std::string(65, 'A')}},
      {250,  // at 253, its data beyond the end; on at 2, where L stood
       Bytes({2, 242, 2}),
       {"4 [Enabled] Vector ID = 2 242", "3 Enabled = Disabled", "4 [HostName] Vector ID = 250 65",
        "4 [HostName] Data length = 65", "4 [HostName] Max length of string = 65",
        "3 HostName = " + std::string(65, 'A')}},
      {251,  // at 254, its L beyond the end reads 0; on at 1
       Bytes({2, 242}),
       {"4 [Enabled] Vector ID = 2 242", "3 Enabled = Disabled", "4 [HostName] Vector ID = 241 251",
        "4 [HostName] Data length = 65", "4 [HostName] Max length of string = 65",
        "3 HostName = " + std::string(65, 'A')}},
      {252,  // at 255, the second header byte beyond the end as well; on at 2
       Bytes({2}),
       {"4 [Enabled] Vector ID = 2 0", "3 Enabled = Disabled", "4 [HostName] Vector ID = 252 65",
        "4 [HostName] Data length = 65", "4 [HostName] Max length of string = 65",
        "3 HostName = " + std::string(65, 'A')}},
      {253,  // at 256: the first element once more
       "",
       {"4 [Enabled] Vector ID = 1 241", "3 Enabled = Enabled", "4 [HostName] Vector ID = 1 241",
        "4 [HostName] Data length = 253", "4 [HostName] Max length of string = 65",
        "3 HostName = " + std::string(65, 'A')}},
      {254,  // at 257, which is 1
       "",
       {"4 [Enabled] Vector ID = 241 254", "3 Enabled = Enabled", "4 [HostName] Vector ID = 65 65",
        "4 [HostName] Data length = 65", "4 [HostName] Max length of string = 65",
        "3 HostName = " + std::string(65, 'A')}},
      {255,  // at 258, which is 2
       "",
       {"4 [Enabled] Vector ID = 255 65", "3 Enabled = Enabled", "4 [HostName] Vector ID = 65 65",
        "4 [HostName] Data length = 65", "4 [HostName] Max length of string = 65",
        "3 HostName = " + std::string(65, 'A')}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.length);
    const std::string data(static_cast<std::size_t>(c.length), 'A');
    Scenario scenario = Scenario::Orlo();
    scenario.Answer("4.9.1.1.255", Plain(1, 241, data) + c.end).Run({kInterfaceClass});
    const Lines logs = LogsOf(scenario, "NetworkInterface");
    ASSERT_GT(logs.size(), 13U);
    EXPECT_EQ(Lines(logs.begin() + 7, logs.begin() + 13), c.lines);
  }
}

}  // namespace
}  // namespace strake::tests
