// The one table of records and identifiers: whole, and each under its own name.
#include "plugin/config/Records.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <vector>

namespace strake::tests {
namespace {

std::string Dotted(const DotIdentifier& identifier) {
  std::string text;
  for (const unsigned char byte : identifier.Bytes()) {
    text += (text.empty() ? "" : ".") + std::to_string(byte);
  }
  return text;
}

TEST(Records, AreSevenWithTheirNumbersOfFields) {
  std::vector<std::string> rows;
  for (const NamedRecord& record : AllRecords()) {
    rows.push_back(std::string(record.name) + " " + std::to_string(record.layout.fields.size()));
  }
  EXPECT_EQ(rows,
            (std::vector<std::string>{"serial port 16", "dial-out settings 11", "dial-in login 3",
                                      "dial-out alerts 7", "network interface 15", "DNS summary 12",
                                      "SNMP communities 12"}));
}

TEST(Identifiers, HaveEachANameAndBytesOfTheirOwn) {
  std::set<std::string_view> names;
  std::set<std::string> identifiers;
  for (const NamedIdentifier& named : AllIdentifiers()) {
    EXPECT_TRUE(names.insert(named.name).second) << named.name;
    EXPECT_TRUE(identifiers.insert(Dotted(named.identifier)).second) << named.name;
  }
  EXPECT_EQ(names.size(), 3U + 5U + 2U + 7U + 9U + 13U + 13U + 16U);
}

TEST(Identifiers, BeginWithThePresenceTestAndTellWhichAreNumbered) {
  std::vector<std::string> plain;
  std::vector<std::string> numbered;
  for (const NamedIdentifier& named : AllIdentifiers()) {
    if (named.identifier.bytes[0] == 2) continue;  // the sensors have tables of their own
    (named.isNumbered ? numbered : plain).push_back(Dotted(named.identifier));
  }
  EXPECT_EQ(plain, (std::vector<std::string>{"1.1", "4.4.1", "4.4.2", "4.9.3.1.2", "4.9.3.1.1",
                                             "4.9.3.1.3", "4.9.3.1.5", "4.9.3.1.6", "4.9.3.2.255",
                                             "4.9.3.1.4.255"}));
  EXPECT_EQ(numbered, (std::vector<std::string>{
                          "4.9.1.1.255", "4.1.2.1.255", "4.1.3.1.255", "4.1.4.1.255", "4.1.4.1.9",
                          "4.1.4.1.3", "4.2.1.255", "4.9.1.1.16.1", "4.9.1.1.16.2", "4.9.1.1.16.3",
                          "4.9.1.1.16.4", "4.9.1.1.16.5", "4.9.1.1.16.6", "4.9.1.1.16.7",
                          "4.9.1.1.16.8", "4.9.1.1.16.9"}));
}

}  // namespace
}  // namespace strake::tests
