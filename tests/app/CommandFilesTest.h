// Three outputs that are there before the command runs.
#pragma once

#include "tests/app/Command.h"
#include "tests/support/TemporaryFolder.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace strake::tests {

inline bool IsOneLine(const std::string& text) {
  return !text.empty() && text.find('\n') == text.size() - 1;
}

class CommandFilesTest : public testing::Test {
 protected:
  CommandFilesTest() {
    for (const std::string name : {"report", "trace", "log"}) {
      fOutputs.push_back(fFolder.Write(name, "old " + name));
    }
  }

  // "strake collect" with all three outputs.
  [[nodiscard]] std::vector<std::string> Collecting(std::vector<std::string> words) const {
    words.insert(words.begin(), {"collect", "--output", fOutputs[0], "--trace", fOutputs[1],
                                 "--log", fOutputs[2]});
    return words;
  }
  [[nodiscard]] Outcome Collect(std::vector<std::string> words) const {
    return Strake(Collecting(std::move(words)));
  }

  void ExpectUntouched(const std::set<std::string>& more = {}) const {
    std::set<std::string> names = {"report", "trace", "log"};
    names.insert(more.begin(), more.end());
    EXPECT_EQ(fFolder.Names(), names);
    for (const std::string& output : fOutputs) {
      EXPECT_EQ(ReadFile(output), "old " + std::filesystem::path(output).filename().string());
    }
  }

  // One line on standard error that begins so, nothing else, no file touched.
  void ExpectEnd(const Outcome& outcome, int status, const std::string& beginning,
                 const std::set<std::string>& more = {}) const {
    EXPECT_EQ(outcome.status, status);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err.substr(0, beginning.size()), beginning);
    EXPECT_TRUE(IsOneLine(outcome.err)) << outcome.err;
    ExpectUntouched(more);
  }

  TemporaryFolder fFolder;
  std::vector<std::string> fOutputs;
};

}  // namespace strake::tests
