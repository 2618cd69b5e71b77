// A server to watch, whose readings change.
#pragma once

#include "tests/app/Command.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <regex>
#include <string>
#include <vector>

namespace strake::tests {

// The time of a round is the run's own.
inline std::string WithoutTimes(const std::string& text) {
  static const std::regex time(R"(\d{4}-\d\d-\d\dT\d\d:\d\d:\d\dZ)");
  return std::regex_replace(text, time, "TIME");
}

class CommandWatchTest : public testing::Test {
 protected:
  // A card with one sensor that is asked for, whose readings and silence differ
  // from round to round. In the last one the card itself is silent.
  [[nodiscard]] std::vector<std::string> Words(const std::vector<std::string>& more) const {
    const std::string server = fFolder.Write("s.server.json", R"({
        "format": "strake-server/1", "machine_type_model": "5301-AR2", "sp": {"kind": "orlo",
        "instances": [{"dot_commands": {
        "1.1": ["01", "01", "01", "01", {"succeeds": false}],
        "2.2.1.1": ["F4 01", "F4 01", "FE 01", {"succeeds": false}]}}]}})");
    std::vector<std::string> words{"watch", "--server", server,     "--interval",
                                   "1ms",   "--sensor", "*Vol*+5v", "--no-header"};
    words.insert(words.end(), more.begin(), more.end());
    return words;
  }

  TemporaryFolder fFolder;
};

}  // namespace strake::tests
