// A server, and files that the command may write.
#pragma once

#include "tests/app/Command.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace strake::tests {

class CommandDescriptorsTest : public testing::Test {
 protected:
  // "strake collect" of the small server.
  [[nodiscard]] std::vector<std::string> Collecting(std::vector<std::string> words) const {
    words.insert(words.begin(), {"collect", "--server", fServer});
    return words;
  }

  static Outcome Refusal(const std::string& text) { return {2, "", "strake: " + text + "\n"}; }

  TemporaryFolder fFolder;
  std::string fServer = fFolder.Write("s", kNoProcessor);
  // Absent and present.
  std::string fNew = fFolder / "new";
  std::string fOld = fFolder.Write("old", "old");
};

}  // namespace strake::tests
