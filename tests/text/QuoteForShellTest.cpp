#include "text/QuoteForShell.h"

#include <gtest/gtest.h>

namespace strake::text {
namespace {

TEST(QuoteForShell, LeavesWhatIsTheSameWithoutQuotes) {
  for (const char* const text : {"collect", "--log-level", "rack7.server.json", "../A_b", "0"}) {
    EXPECT_EQ(QuotedForShell(text), text);
    EXPECT_EQ(QuotedForFish(text), text);
  }
}

TEST(QuoteForShell, QuotesWhatAShellWouldReadOtherwise) {
  const struct {
    std::string text;
    std::string forShell;
    std::string forFish;
  } cases[] = {
      {"", "''", "''"},
      {"two words", "'two words'", "'two words'"},
      {"a:b=c", "'a:b=c'", "'a:b=c'"},
      {"$HOME `x` \"*\" ~ # ;", "'$HOME `x` \"*\" ~ # ;'", "'$HOME `x` \"*\" ~ # ;'"},
      {"it's", R"('it'\''s')", R"('it\'s')"},
      {R"(a\b)", R"('a\b')", R"('a\\b')"},
      {"a\nb", "'a\nb'", "'a\nb'"},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(QuotedForShell(one.text), one.forShell);
    EXPECT_EQ(QuotedForFish(one.text), one.forFish);
  }
}

TEST(QuoteForShell, PutsBackslashesBeforeTheNamedCharacters) {
  EXPECT_EQ(WithBackslashes("a [b]: \\", "[]\\"), "a \\[b\\]: \\\\");
  EXPECT_EQ(WithBackslashes("a [b]", ""), "a [b]");
}

}  // namespace
}  // namespace strake::text
