// Patterns of names.
#include "text/Glob.h"

#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

namespace strake::tests {
namespace {

using text::MatchesGlob;

TEST(Glob, FitsTheWholeText) {
  struct Case {
    std::string pattern;
    std::string text;
    bool matches;
  };
  const std::vector<Case> cases = {
      {"", "", true},
      {"", "a", false},
      {"a", "", false},
      {"*", "", true},
      {"**", "", true},
      {"?", "", false},
      {"*?", "", false},
      {"*", "anything at all", true},
      {"Fan 01 speed", "Fan 01 speed", true},
      {"Fan 01 speed", "Fan 01 speed ", false},
      {"Fan 01", "Fan 01 speed", false},
      {"01 speed", "Fan 01 speed", false},
      {"Fan*", "Fan 01 speed", true},
      {"*speed", "Fan 01 speed", true},
      {"*01*", "Fan 01 speed", true},
      {"*02*", "Fan 01 speed", false},
      {"Fan ?? speed", "Fan 01 speed", true},
      {"Fan ? speed", "Fan 01 speed", false},
      {"*a*b*c*", "xxaxxbxxcxx", true},
      {"*a*b*c*", "xxaxxcxxbxx", false},
      {"a*a", "a", false},
      {"a*a", "aa", true},
      {"*ab", "aab", true},
      {"*ab", "abab", true},
      {"*ab?", "ababab", false},
      {"a**b", "ab", true},
      {"?*?", "ab", true},
      {"?*?", "a", false},
      {"a*", "A", true},
      {"FAN*", "fan 01", true},
      {"fan*", "FAN 01", true},
      // Only letters have two cases: '@' and '`', '[' and '{' are 32 apart as well.
      {"@", "`", false},
      {"[", "{", false},
      {"[ab]", "a", false},
      {"[ab]", "[ab]", true},
      {"\\*", "*", false},
      {"\\*", "\\x", true},
      {"+3.3v", "+3X3v", false},
      // A "?" is one byte, and no letter beyond ASCII has another case.
      {"?", "\xC3\xA4", false},
      {"??", "\xC3\xA4", true},
      {"\xC3\x84", "\xC3\xA4", false},
      {std::string("a?b"), std::string("a\0b", 3), true},
  };
  for (const Case& one : cases) {
    EXPECT_EQ(MatchesGlob(one.pattern, one.text), one.matches)
        << '"' << one.pattern << "\" \"" << one.text << '"';
  }
}

// By its meaning: slow, and plain.
bool Means(std::string_view pattern, std::string_view text) {
  if (pattern.empty()) {
    return text.empty();
  }
  if (pattern.front() == '*') {
    return Means(pattern.substr(1), text) || (!text.empty() && Means(pattern, text.substr(1)));
  }
  return !text.empty() && (pattern.front() == '?' || pattern.front() == text.front()) &&
         Means(pattern.substr(1), text.substr(1));
}

std::string RandomText(std::mt19937& random, std::string_view characters, std::size_t longest) {
  std::string text(random() % (longest + 1), ' ');
  for (char& character : text) {
    character = characters[random() % characters.size()];
  }
  return text;
}

TEST(Glob, MeansTheSameAsWithoutShortcuts) {
  std::mt19937 random(12);
  int matches = 0;
  for (int round = 0; round < 20000; ++round) {
    const std::string pattern = RandomText(random, "ab*?", 7);
    const std::string text = RandomText(random, "ab", 8);
    const bool expected = Means(pattern, text);
    ASSERT_EQ(MatchesGlob(pattern, text), expected) << pattern << ' ' << text;
    matches += expected ? 1 : 0;
  }
  EXPECT_GT(matches, 2000);
}

// With a way back to every star these would take longer than anybody waits:
// they end because there is one way back alone.
TEST(Glob, EndsWithManyStars) {
  const std::string text(2000, 'a');
  std::string pattern;
  for (int star = 0; star < 200; ++star) {
    pattern += "*a";
  }
  EXPECT_TRUE(MatchesGlob(pattern, text));
  EXPECT_FALSE(MatchesGlob(pattern + "b", text));
  EXPECT_FALSE(MatchesGlob(pattern + "*b", text));
  EXPECT_TRUE(MatchesGlob(std::string(2000, '*'), text));
  EXPECT_FALSE(MatchesGlob(std::string(2000, '*') + "b", text));
  EXPECT_TRUE(MatchesGlob(std::string(2000, '?'), text));
  EXPECT_FALSE(MatchesGlob(std::string(2001, '?'), text));
}

}  // namespace
}  // namespace strake::tests
