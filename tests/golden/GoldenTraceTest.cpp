// Whole queries, compared line by line with traces that were read through and
// kept. A printed status address is masked on both sides.
//
// Set STRAKE_UPDATE_GOLDEN to write what the plug-in does now; then read the
// difference before it is committed.
#include "platform/boundary/TraceWriter.h"
#include "platform/pluginmanager/ManagerControl.h"
#include "platform/server/ServerDescription.h"
#include "platform/session/HostSession.h"
#include "plugin/config/SharedIdentifiers.h"
#include "plugin/frame/ModuleEntry.h"
#include "tests/support/MaskAddresses.h"
#include "tests/support/Places.h"
#include "tests/support/Scenario.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace strake::tests {
namespace {

const std::filesystem::path kSource = SourceFolder();

struct GoldenCase {
  std::string name;
  std::string server;  // servers/SERVER.server.json
  std::vector<Classes> queries;

  friend std::ostream& operator<<(std::ostream& out, const GoldenCase& golden) {
    return out << golden.name;
  }
};

const std::string kComputer = "VELKSG_SP_ComputerSystem";
const std::string kSensor = "VELKSG_SP_NumericSensor";
const std::string kEndpoint = "VELKSG_ServProc_IPProtocolEndpoint";
const std::string kEndpoint2 = "VELKSG_ServProc_IPProtocolEndpoint2";
const std::string kDial1 = "VELKSG_ServProc_DialProtocolEndpoint1";
const std::string kDial2 = "VELKSG_ServProc_DialProtocolEndpoint2";
const std::string kDial3 = "VELKSG_ServProc_DialProtocolEndpoint3";
const std::string kDial4 = "VELKSG_ServProc_DialProtocolEndpoint4";
const Classes kAllEight = {kComputer, kEndpoint, kEndpoint2, kDial1,
                           kDial2,    kDial3,    kDial4,     kSensor};

// Each class alone; together where that shows which of them is read (all in
// one) and what a query leaves to the next (two queries).
const GoldenCase kCases[] = {
    {"orlo-computer-system", "demo-orlo", {{kComputer}}},
    {"orlo-sensors", "demo-orlo", {{kSensor}}},
    {"orlo-interfaces", "demo-orlo", {{kEndpoint}}},
    {"orlo-network-summary", "demo-orlo", {{kEndpoint2}}},
    {"orlo-dial-out", "demo-orlo", {{kDial1}}},
    {"orlo-dial-in", "demo-orlo", {{kDial2}}},
    {"orlo-serial-ports", "demo-orlo", {{kDial3}}},
    {"orlo-alerts", "demo-orlo", {{kDial4}}},
    {"orlo-all-in-one", "demo-orlo", {kAllEight}},
    {"orlo-two-queries", "demo-orlo", {{kEndpoint, kDial1}, {kDial1, kDial2}}},
    {"orlo-silent", "orlo-silent", {kAllEight}},
    {"tavit-nembro", "demo-tavit", {{kSensor}}},
    {"tavit-pilkar", "tavit-pilkar", {{kSensor}}},
    {"tavit-tessil", "tavit-tessil", {{kSensor}}},
    {"tavit-blade", "tavit-blade", {{kSensor}}},
    {"tavit-held", "tavit-held", {{kSensor}, {kComputer}}},
};

constexpr std::string_view kLogLine = R"({"event":"log")";

std::string TraceOf(const GoldenCase& golden) {
  Identifiers() = SharedIdentifiers{};
  std::ostringstream out;
  platform::TraceWriter trace(out);
  platform::HostSession session(
      platform::ReadServerDescription(kSource / "servers" / (golden.server + ".server.json")),
      &trace);
  session.Attach(&StrakeModuleEntry);
  session.Initialize();
  for (const Classes& classes : golden.queries) {
    session.Query(classes);
  }
  session.Deinitialize();
  session.Detach();
  return MaskAddresses(out.str());
}

std::vector<std::string> LinesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) {
    lines.push_back(line);
  }
  return lines;
}

class GoldenTrace : public testing::TestWithParam<GoldenCase> {
 protected:
  void TearDown() override { platform::SetProviderGiven(true); }
};

TEST_P(GoldenTrace, IsWhatTheQueryDoes) {
  const std::filesystem::path file =
      kSource / "tests/golden/traces" / (GetParam().name + ".trace.jsonl");
  const std::string actual = TraceOf(GetParam());
  if (std::getenv("STRAKE_UPDATE_GOLDEN") != nullptr) {
    std::ofstream(file, std::ios::binary) << actual;
  }
  std::ostringstream expected;
  expected << std::ifstream(file, std::ios::binary).rdbuf();
  const auto actualLines = LinesOf(actual);
  const auto expectedLines = LinesOf(expected.str());
  for (std::size_t i = 0; i < std::min(actualLines.size(), expectedLines.size()); ++i) {
    ASSERT_EQ(actualLines[i], expectedLines[i]) << file << ", line " << i + 1;
  }
  EXPECT_EQ(actualLines.size(), expectedLines.size());
}

// Nothing is built for a line that nobody will see; everything else is done.
TEST_P(GoldenTrace, IsTheSameButForItsLinesWhenRegistrationGaveNoProvider) {
  std::vector<std::string> expected = LinesOf(TraceOf(GetParam()));
  std::erase_if(expected, [](const std::string& line) { return line.starts_with(kLogLine); });
  platform::SetProviderGiven(false);
  EXPECT_EQ(LinesOf(TraceOf(GetParam())), expected);
}

std::string TestName(const testing::TestParamInfo<GoldenCase>& golden) {
  std::string name = golden.param.name;
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
}

INSTANTIATE_TEST_SUITE_P(Servers, GoldenTrace, testing::ValuesIn(kCases), TestName);

}  // namespace
}  // namespace strake::tests
