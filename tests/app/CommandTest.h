// One small server that the command collects from.
#pragma once

#include "report/Timestamp.h"
#include "tests/app/Command.h"
#include "tests/app/System.h"
#include "tests/support/TemporaryFolder.h"

#include <chrono>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <vector>

namespace strake::tests {

inline const std::string kSmallServer = R"({"format": "strake-server/1", "description": "One card",
 "sp": {"kind": "orlo", "components": {"4.1.3.1.255": 1}, "instances": [{"dot_commands": {
   "1.1": "01", "4.4.1": "0A 06 0F 00 0D 2D 1E", "4.4.2": "88 FF",
   "4.1.3.1.255": {"elements": [
     {"data": "02"}, {"text": "555-0100"}, {"text": "Pager"}, {"data": "01"}, {"text": "ID"},
     {"text": "hunter2"}, {"text": "1234"}, {"text": ""}, {"text": ""}, {"text": "ppp"},
     {"data": "01"}]}}}]}})";

inline const std::string kSystemTable = R"(rack7.server.json (orlo): One card

SP 1  answered  2010-06-15 13:45:30 UTC-02:00

Findings: none

Service processor 1

  Computer system (VELKSG_SP_ComputerSystem)
    Name   SRV1:Node1
    Clock  2010-06-15 13:45:30 UTC-02:00

1 instance, 1 query, 1 service processor
)";

// With TIME in place of a time between the two.
inline Outcome WithoutTime(Outcome outcome, std::chrono::sys_seconds from,
                           std::chrono::sys_seconds to) {
  for (auto moment = from; moment <= to; moment += std::chrono::seconds(1)) {
    const std::string text = report::Timestamp(moment);
    if (const auto at = outcome.out.find(text); at != std::string::npos) {
      outcome.out.replace(at, text.size(), "TIME");
    }
  }
  return outcome;
}

inline std::chrono::sys_seconds Now() {
  return std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
}

class CommandTest : public testing::Test {
 protected:
  // "strake collect" of the small server.
  [[nodiscard]] Outcome Collect(std::vector<std::string> words) const {
    words.insert(words.begin(), {"collect", "--server", fServer});
    return Strake(words);
  }

  // The same as JSON, its time as TIME.
  [[nodiscard]] Outcome CollectJson(std::vector<std::string> words) const {
    words.insert(words.end(), {"--format", "json"});
    const auto begin = Now();
    const Outcome outcome = Collect(words);
    return WithoutTime(outcome, begin, Now());
  }

  // The queries as the trace tells them.
  [[nodiscard]] std::string QueriesOf(std::vector<std::string> words) const {
    words.insert(words.end(), {"--trace", fFolder / "trace", "--output", NullDevice(), "--quiet"});
    EXPECT_EQ(Collect(words), (Outcome{0, "", ""}));
    std::string queries;
    std::istringstream lines(ReadFile(fFolder / "trace"));
    for (std::string line; std::getline(lines, line);) {
      if (line.find("\"event\":\"query\"") != std::string::npos) {
        queries += line.substr(line.find('[')) + "\n";
      }
    }
    return queries;
  }

  TemporaryFolder fFolder;
  std::string fServer = fFolder.Write("rack7.server.json", kSmallServer);
};

}  // namespace strake::tests
