// Servers that answer every command with bytes that are not to be believed. The
// sanitizers and valgrind tell whether anything was read outside a buffer.
#include "tests/support/Scenario.h"
#include "tests/support/WholeCollection.h"

#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace strake::tests {
namespace {

const std::vector<Classes> kAllQueries = WholeCollectionQueries();

// Every identifier that the plug-in sends, for instance numbers 1 to 3.
std::vector<std::string> AllIdentifiers() {
  std::vector<std::string> all = {"4.4.1",         "4.4.2",     "4.9.3.1.1", "4.9.3.1.2",
                                  "4.9.3.1.3",     "4.9.3.1.5", "4.9.3.1.6", "4.9.3.2.255",
                                  "4.9.3.1.4.255", "4.2.1.1"};
  for (int n = 1; n <= 3; ++n) {
    const std::string instance = std::to_string(n);
    for (const std::string before : {"4.9.1.", "4.1.2.", "4.1.3.", "4.1.4."}) {
      all.push_back(before + instance + ".255");
    }
    all.push_back("4.1.4." + instance + ".9");
    all.push_back("4.1.4." + instance + ".3");
    for (int value = 1; value <= 9; ++value) {
      all.push_back("4.9.1." + instance + ".16." + std::to_string(value));
    }
  }
  for (int i = 1; i <= 20; ++i) {
    for (const std::string before : {"2.2.1.", "2.2.3.", "2.1.1.", "2.1.2.", "2.1.4.", "2.1.5."}) {
      all.push_back(before + std::to_string(i));
    }
    all.push_back("2.3." + std::to_string(i));
  }
  return all;
}

// One whole collection on both kinds of server with one reply for everything.
void CollectEverything(const std::string& bytes, int length, bool succeeds) {
  const platform::Reply reply{bytes, length, succeeds};
  Scenario orlo = Scenario::Orlo(1);
  orlo.Component("4.9.1.1.255", 2).Component("4.1.3.1.255", 3).Component("4.1.4.1.255", 2);
  for (const std::string& identifier : AllIdentifiers()) {
    orlo.Answer(identifier, {reply});
  }
  orlo.RunAll(kAllQueries);
  EXPECT_EQ(orlo.Record().Beginning({"query_end"}), Lines(kAllQueries.size(), "query_end"));
  for (const std::string mtm : {"5120", "5123", "5125", "5126"}) {
    Scenario tavit = Scenario::Tavit(mtm);
    for (const int code : {0xA2, 0xA4, 0xA6}) {
      tavit.Kestle(code, reply);
    }
    tavit.RunAll(kAllQueries);
    EXPECT_EQ(tavit.Record().Beginning({"query_end"}), Lines(kAllQueries.size(), "query_end"));
  }
}

std::string Ramp(std::size_t size) {
  std::string bytes;
  for (std::size_t i = 0; i < size; ++i) {
    bytes.push_back(static_cast<char>(i));
  }
  return bytes;
}

TEST(HostileServer, RepliesOfOneByteOverAndOverAreCollected) {
  for (const int byte : {0x00, 0xFF, 0x01, 0x7F, 0x80, 0xFD}) {
    for (const std::size_t size : {1U, 2U, 255U, 256U, 350U, 5000U}) {
      const std::string bytes(size, static_cast<char>(byte));
      CollectEverything(bytes, static_cast<int>(size), true);
    }
  }
}

TEST(HostileServer, ACountingRampIsCollected) {
  for (const std::size_t size : {1U, 3U, 16U, 18U, 255U, 256U, 350U, 5000U}) {
    CollectEverything(Ramp(size), static_cast<int>(size), true);
  }
}

TEST(HostileServer, LengthsThatDisagreeWithTheBytesAreCollected) {
  constexpr int kLengths[] = {-1,
                              1,
                              255,
                              256,
                              257,
                              350,
                              351,
                              65536,
                              std::numeric_limits<int>::max(),
                              std::numeric_limits<int>::min()};
  for (const int length : kLengths) {
    for (const std::size_t size : {0U, 1U, 7U, 300U}) {
      CollectEverything(Ramp(size), length, true);
      CollectEverything(Ramp(size), length, false);
    }
  }
}

TEST(HostileServer, RandomRepliesAreCollected) {
  constexpr unsigned int kSeed = 20260101;
  std::mt19937 random(kSeed);
  for (int round = 0; round < 200; ++round) {
    std::string bytes(random() % 400, '\0');
    for (char& byte : bytes) {
      byte = static_cast<char>(random());
    }
    SCOPED_TRACE("seed " + std::to_string(kSeed) + ", round " + std::to_string(round));
    CollectEverything(bytes, static_cast<int>(bytes.size()), true);
  }
}

TEST(HostileServer, TextOfTheSpIsNeverAFormatString) {
  const std::string evil = "%n%n%s%x%p\x1b[2J\x07\xff";
  Scenario scenario = Scenario::Orlo();
  scenario.Answer("4.9.3.1.1", evil).Answer("4.9.3.1.2", evil + std::string(1, '\0') + "hidden");
  scenario.server.host.machineTypeModel.text = evil;
  scenario.server.host.systemName.text = evil;
  scenario.Run(Classes{"VELKSG_ServProc_IPProtocolEndpoint2"});
  EXPECT_EQ(scenario.Record().Properties(1),
            (Lines{"CreationClassName string VELKSG_ServProc_IPProtocolEndpoint2",
                   "SourceNode uint8 1", "Name string " + evil + "-Node1",
                   "SystemCreationClassName string CIM_ComputerSystem", "SystemName string " + evil,
                   "SystemLocation string " + evil, "SystemContact string " + evil}));
  EXPECT_EQ(scenario.Record().Beginning({"log 3 System"}),
            (Lines{"log 3 SystemLocation = " + evil, "log 3 SystemContact = " + evil}));
}

TEST(HostileServer, ACountThatTheSpDoesNotKeepToIsTakenAsItComes) {
  // The component count says three, the SP answers for the second only.
  Scenario scenario = Scenario::Orlo();
  scenario.Component("4.1.3.1.255", 3).Answer("4.1.3.2.255", Bytes({1, 2, 1, 1}));
  scenario.Run(Classes{"VELKSG_ServProc_DialProtocolEndpoint1"});
  EXPECT_EQ(scenario.Record().Beginning({"log 3 No data", "Commit"}),
            (Lines{"log 3 No data retrieved for Dial out settings.", "Commit 1",
                   "log 3 No data retrieved for Dial out settings."}));
}

TEST(HostileServer, ATotalThatChangesBetweenTwoRepliesIsTakenAsItComes) {
  // The same sensor answers, then brings nothing, then answers again.
  Scenario changing = Scenario::Orlo();
  changing.Answer("2.2.1.1", {Success(Bytes({1, 0})), Success(""), Success(Bytes({2, 0}))});
  const Classes sensors = {"VELKSG_SP_NumericSensor"};
  changing.RunAll({sensors, sensors, sensors});
  EXPECT_EQ(changing.Record().Beginning({"log 3 Planar Voltage +5v = "}),
            (Lines{"log 3 Planar Voltage +5v = 1", "log 3 Planar Voltage +5v = 2"}));
  // A fan list whose length byte tells five fans, then eight, then six.
  Scenario fans = Scenario::Tavit("5120");
  const auto list = [](int length) {
    std::string bytes = Ramp(22);
    bytes.front() = static_cast<char>(length);
    return Success(bytes);
  };
  fans.server.sp.kestleCommands[0xA2] = {list(16), list(22), list(18)};
  fans.RunAll({sensors, sensors, sensors});
  EXPECT_EQ(fans.Record().Beginning({"log 3 Num_fans", "Commit"}),
            (Lines{"log 3 Num_fans calculated = 5",
                   "Commit 1",
                   "Commit 2",
                   "Commit 3",
                   "Commit 4",
                   "Commit 5",
                   "log 3 Num_fans calculated = 8",
                   "Commit 6",
                   "Commit 7",
                   "Commit 8",
                   "Commit 9",
                   "Commit 10",
                   "Commit 11",
                   "Commit 12",
                   "Commit 13",
                   "log 3 Num_fans calculated = 6",
                   "Commit 14",
                   "Commit 15",
                   "Commit 16",
                   "Commit 17",
                   "Commit 18",
                   "Commit 19"}));
}

}  // namespace
}  // namespace strake::tests
