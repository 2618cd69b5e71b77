// What the DHCP server assigned to an interface: nine commands, nine values.
#include "plugin/config/SharedIdentifiers.h"
#include "tests/plugin/config/NetworkScenario.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

struct Value {
  const char* property;
  bool isText;
};

// In the order of their commands' last bytes, 1 to 9.
constexpr Value kValues[] = {
    {"DHCPHostName", true},
    {"DHCPAssignedIPAddress", false},
    {"DHCPAssignedGatewayAddress", false},
    {"DHCPAssignedSubnetMask", false},
    {"DHCPDomainName", true},
    {"DHCPServer", false},
    {"DHCPPrimaryDNS", false},
    {"DHCPSecondaryDNS", false},
    {"DHCPTertiaryDNS", false},
};

std::string Command(std::size_t place, int interface = 1) {
  return "4.9.1." + std::to_string(interface) + ".16." + std::to_string(place + 1);
}

// What follows the keys and the number of the first interface.
Lines DhcpProperties(const Scenario& scenario) {
  const Lines properties = scenario.Record().Properties(1);
  return {properties.begin() + 6, properties.end()};
}

// One value's reply, alone: its line of level 3 and its property.
struct Outcome {
  Lines lines;
  Lines properties;
};

Outcome OutcomeOf(std::size_t place, const platform::Reply& reply) {
  Scenario scenario = Scenario::Orlo();
  scenario.Answer(Command(place), {reply}).Run({kInterfaceClass});
  return {scenario.Record().Beginning({std::string("log 3 ") + kValues[place].property}),
          DhcpProperties(scenario)};
}

TEST(DhcpValues, ReadsNineValuesInOrderAndTellsAddressesAsTheirRawBytes) {
  Scenario scenario = Scenario::Orlo();
  scenario.Answer("4.9.1.1.16.1", "sp-lab-7")
      .Answer("4.9.1.1.16.2", "AB\x01\x02")
      .Answer("4.9.1.1.16.3", Bytes({0xC0, 0xA8, 0, 1}))
      .Answer("4.9.1.1.16.4", Bytes({255, 255, 255, 0}))
      .Answer("4.9.1.1.16.5", "lab.example")
      .Answer("4.9.1.1.16.6", Bytes({0, 65, 66, 67}))
      .Answer("4.9.1.1.16.7", "PQRSTUV")
      .Answer("4.9.1.1.16.8", Bytes({10, 1}))
      .Answer("4.9.1.1.16.9", Bytes({9}))
      .Run({kInterfaceClass});
  EXPECT_EQ(LogsOf(scenario, "IndividualDHCPValues"),
            Joined({{"4 TStrakePluginCallbacks::IndividualDHCPValues entered."},
                    SentLines("4.9.1.1.16.1", 8),
                    {"3 DHCPHostName = sp-lab-7"},
                    SentLines("4.9.1.1.16.2", 4),
                    {"3 DHCPAssignedIPAddress = AB\x01\x02"},
                    SentLines("4.9.1.1.16.3", 4),
                    {"3 DHCPAssignedGatewayAddress = \xC0\xA8"},
                    SentLines("4.9.1.1.16.4", 4),
                    {"3 DHCPAssignedSubnetMask = \xFF\xFF\xFF"},
                    SentLines("4.9.1.1.16.5", 11),
                    {"3 DHCPDomainName = lab.example"},
                    SentLines("4.9.1.1.16.6", 4),
                    {"3 DHCPServer = "},
                    SentLines("4.9.1.1.16.7", 7),
                    {"3 DHCPPrimaryDNS = PQRSTUV"},
                    SentLines("4.9.1.1.16.8", 2),
                    {"3 DHCPSecondaryDNS = \x0A\x01"},
                    SentLines("4.9.1.1.16.9", 1),
                    {"3 DHCPTertiaryDNS = \x09",
                     "4 TStrakePluginCallbacks::IndividualDHCPValues completed."}}));
  EXPECT_EQ(DhcpProperties(scenario), (Lines{
                                          "DHCPHostName string sp-lab-7",
                                          "DHCPAssignedIPAddress string 65.66.1.2",
                                          "DHCPAssignedGatewayAddress string 192.168.0.1",
                                          "DHCPAssignedSubnetMask string 255.255.255.0",
                                          "DHCPDomainName string lab.example",
                                          "DHCPServer string 0.65.66.67",
                                          "DHCPPrimaryDNS string 80.81.82.83",
                                          "DHCPSecondaryDNS string 10.1.0.0",
                                          "DHCPTertiaryDNS string 9.0.0.0",
                                      }));
}

TEST(DhcpValues, EveryCommandIsOfClassTwoAndOffers256Bytes) {
  Scenario scenario = Scenario::Orlo();
  scenario.Run({kInterfaceClass});
  Lines expected;
  for (std::size_t place = 0; place < 9; ++place) {
    expected.push_back("dot 2 " + Command(place) + " sp 0 size 256 -> false 0 ");
  }
  EXPECT_EQ(scenario.Record().Beginning({"dot 2 4.9.1.1.16."}), expected);
}

TEST(DhcpValues, WithoutAnyDataTellsEachValueAndItsInstance) {
  Scenario scenario = Scenario::Orlo();
  scenario.Run({kInterfaceClass});
  Lines expected = {"4 TStrakePluginCallbacks::IndividualDHCPValues entered."};
  for (std::size_t place = 0; place < 9; ++place) {
    expected = Joined(
        {expected,
         FailedLines(Command(place)),
         {std::string("3 No data retrieved for ") + kValues[place].property + " Instance #1"}});
  }
  expected.emplace_back("4 TStrakePluginCallbacks::IndividualDHCPValues completed.");
  EXPECT_EQ(LogsOf(scenario, "IndividualDHCPValues"), expected);
  EXPECT_EQ(DhcpProperties(scenario), Lines{});
}

TEST(DhcpValues, AValueWithoutDataIsSkippedAndStopsNoOther) {
  Scenario whole = NetworkServer();
  whole.Run({kInterfaceClass});
  const platform::Reply missing[] = {Failure(), Failure("10.0", 4), Success(""),
                                     Reported("10.0", 0)};
  for (std::size_t place = 0; place < 9; ++place) {
    for (const platform::Reply& reply : missing) {
      Scenario scenario = NetworkServer();
      scenario.Answer(Command(place), {reply}).Run({kInterfaceClass});
      const std::string property = kValues[place].property;
      Lines expected = DhcpProperties(whole);
      std::erase_if(expected,
                    [&](const std::string& line) { return line.starts_with(property + " "); });
      EXPECT_EQ(DhcpProperties(scenario), expected);
      EXPECT_EQ(scenario.Record().Beginning({"log 3 No data"}),
                (Lines{"log 3 No data retrieved for " + property + " Instance #1"}));
      EXPECT_EQ(Commands(scenario), Commands(whole));
    }
  }
}

TEST(DhcpValues, NamesTheInstanceInTheLineOnMissingData) {
  Scenario scenario = NetworkServer();
  scenario.Answer("4.9.1.2.16.6", {Failure()}).Run({kInterfaceClass});
  EXPECT_EQ(scenario.Record().Beginning({"log 3 No data"}),
            (Lines{"log 3 No data retrieved for DHCPServer Instance #2"}));
}

TEST(DhcpValues, AValueIsTheReplyToItsLengthAndZerosBeyond) {
  struct Case {
    platform::Reply reply;
    std::string text, address;
  };
  const Case cases[] = {
      {Success("A"), "A", "65.0.0.0"},
      {Success("ABCDEF"), "ABCDEF", "65.66.67.68"},
      {Success(std::string("A\0BC", 4)), "A", "65.0.66.67"},
      {Success(std::string("\0ABC", 4)), "", "0.65.66.67"},
      {Success("\x80\xFF\xFE\x81"), "\x80\xFF\xFE\x81", "128.255.254.129"},
      // Bytes past the reported length do not count.
      {Reported("ABCDEF", 2), "AB", "65.66.0.0"},
      {Reported("ABCDEF", 1), "A", "65.0.0.0"},
      {Reported("AB", 4), "AB", "65.66.0.0"},
      {Reported("ABCDEF", 257), "ABCDEF", "65.66.67.68"},
      {Reported("ABCDEF", -1), "ABCDEF", "65.66.67.68"},
      {Success(std::string(255, 'A')), std::string(255, 'A'), "65.65.65.65"},
      {Success(std::string(256, 'A')), std::string(256, 'A'), "65.65.65.65"},
      {Success(std::string(1000, 'A')), std::string(256, 'A'), "65.65.65.65"},
  };
  for (const Case& c : cases) {
    for (std::size_t place = 0; place < 9; ++place) {
      const std::string property = kValues[place].property;
      const Outcome outcome = OutcomeOf(place, c.reply);
      EXPECT_EQ(outcome.lines, (Lines{"log 3 " + property + " = " + c.text}));
      EXPECT_EQ(outcome.properties,
                (Lines{property + " string " + (kValues[place].isText ? c.text : c.address)}));
    }
  }
}

TEST(DhcpValues, AReplyComesInOverNothingOfTheOneBefore) {
  Scenario scenario = Scenario::Orlo();
  scenario.Answer("4.9.1.1.16.1", std::string(256, 'x'))
      .Answer("4.9.1.1.16.2", {Reported(Bytes({10}), 4)})
      .Answer("4.9.1.1.16.5", {Reported("ab", 256)})
      .Run({kInterfaceClass});
  EXPECT_EQ(DhcpProperties(scenario),
            (Lines{"DHCPHostName string " + std::string(256, 'x'),
                   "DHCPAssignedIPAddress string 10.0.0.0", "DHCPDomainName string ab"}));
}

TEST(DhcpValues, ReadingTheSecondInterfaceLeavesTheFourthByteOfAllNineIdentifiersAtTwo) {
  Scenario scenario = NetworkServer();
  scenario.Run({kInterfaceClass});
  unsigned char place = 0;
  for (DotIdentifier& identifier : Identifiers().dhcpValues) {
    ++place;
    const std::span<const unsigned char> bytes = identifier.Bytes();
    EXPECT_EQ(std::vector<int>(bytes.begin(), bytes.end()),
              (std::vector<int>{4, 9, 1, 2, 16, place}));
  }
}

}  // namespace
}  // namespace strake::tests
