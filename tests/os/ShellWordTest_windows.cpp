#include "os/ShellWord.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

TEST(SystemsShellWord, IsInDoubleQuotesWhereAShellWouldChangeIt) {
  const struct {
    const char* word;
    const char* expected;
  } cases[] = {
      {"rack7.server.json", "rack7.server.json"},
      {R"(C:\srv\a_b-c,d+e.json)", R"(C:\srv\a_b-c,d+e.json)"},
      {R"(\\host\share/x)", R"(\\host\share/x)"},
      {"", R"("")"},
      {"two words", R"("two words")"},
      {"it's", R"("it's")"},
      {R"(C:\two words\)", R"("C:\two words\\")"},
      {R"(a "b")", R"("a \"b\"")"},
      {"\xC3\xBC&", "\"\xC3\xBC&\""},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(os::ShellWord(one.word), one.expected);
  }
}

}  // namespace
}  // namespace strake::tests
