// "strake init" of a folder's files.
#pragma once

#include "tests/app/Command.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace strake::tests {

using Words = std::vector<std::string>;

inline Words With(Words words, const Words& more) {
  words.insert(words.end(), more.begin(), more.end());
  return words;
}

class CommandInitTest : public testing::Test {
 protected:
  static Outcome Init(const Words& words) { return Strake(With({"init"}, words)); }
  // Of a file that holds something.
  static Outcome Refusal(const std::string& name) {
    return {2, "",
            "strake: --output: the file " + name +
                " is there already and is not empty; name another one\n"};
  }

  TemporaryFolder fFolder;
};

}  // namespace strake::tests
