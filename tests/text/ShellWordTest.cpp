#include "text/ShellWord.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

TEST(ShellWord, IsQuotedWhereAShellWouldChangeIt) {
  const struct {
    const char* word;
    const char* expected;
  } cases[] = {
      {"rack7.server.json", "rack7.server.json"},
      {"/srv/a_b-c,d+e:f=g@h", "/srv/a_b-c,d+e:f=g@h"},
      {"", "''"},
      {"two words", "'two words'"},
      {"it's", "'it'\\''s'"},
      {"$HOME", "'$HOME'"},
      {"*", "'*'"},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(text::ShellWord(one.word), one.expected);
  }
}

}  // namespace
}  // namespace strake::tests
