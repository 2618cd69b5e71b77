#include "replay/Replacements.h"

#include <algorithm>
#include <cctype>
#include <gtest/gtest.h>
#include <string>

namespace strake::tests {
namespace {

using replay::Replacements;

// Every letter and digit as "a", "A" or "0".
std::string FormOf(std::string text) {
  for (char& character : text) {
    const auto byte = static_cast<unsigned char>(character);
    if (std::isdigit(byte) != 0) character = '0';
    if (std::isupper(byte) != 0) character = 'A';
    if (std::islower(byte) != 0) character = 'a';
  }
  return text;
}

TEST(Replacements, KeepTheFormOfATextAndNoneOfItsLettersAndDigits) {
  for (const std::string text :
       {"a", "7", "SRV1", "orlo-a.example.com", "Night operators, 555-0100", "AT&F0", "10.0.0.255",
        "0.0.0.0", "1.2.3.4.5", "300.1.1.1", "01.2.3.4", "two  blanks", "tab\tand\nline"}) {
    for (std::uint64_t key = 0; key < 20; ++key) {
      const std::string replaced = Replacements(key).OfText(text);
      EXPECT_EQ(FormOf(replaced), FormOf(text)) << text;
      if (text == "10.0.0.255") continue;  // an address keeps its zeros
      for (std::size_t i = 0; i < text.size(); ++i) {
        EXPECT_TRUE(replaced.at(i) != text.at(i) || std::isalnum(text.at(i)) == 0)
            << text << " -> " << replaced;
      }
    }
  }
}

TEST(Replacements, AreTheSameForAWordWhereverItStands) {
  const Replacements replacements(3);
  const std::string host = replacements.OfText("atlas7");
  const std::string domain = replacements.OfText("example.com");
  EXPECT_EQ(replacements.OfText("atlas7.example.com"), host + "." + domain);
  EXPECT_EQ(replacements.OfText("atlas7@example.com"), host + "@" + domain);
  std::string capitals = host;
  std::ranges::transform(capitals, capitals.begin(),
                         [](unsigned char letter) { return std::toupper(letter); });
  EXPECT_EQ(replacements.OfText("ATLAS7"), capitals);
  EXPECT_NE(replacements.OfText("atlas8").substr(0, 5), host.substr(0, 5));
  EXPECT_NE(Replacements(4).OfText("atlas7"), host);
}

TEST(Replacements, OfMarksAloneAreMarks) {
  for (const std::string text : {"****", "+++", "--", "!?!?!?"}) {
    const std::string replaced = Replacements(1).OfText(text);
    EXPECT_NE(replaced, text);
    EXPECT_EQ(replaced.size(), text.size());
    EXPECT_TRUE(std::ranges::all_of(
        replaced, [](unsigned char character) { return std::ispunct(character) != 0; }));
  }
  EXPECT_EQ(Replacements(1).OfText(""), "");
  EXPECT_EQ(Replacements(1).OfText("    "), "    ");
}

TEST(Replacements, OfOtherScriptsStayUtf8OfTheSameLength) {
  const std::string text =
      "R\xC3\xBC"
      "ckwand \xE6\x97\xA5\xED\x95\x9C \xF0\x9F\x96\xA5";
  const std::string replaced = Replacements(1).OfText(text);
  EXPECT_EQ(replaced.size(), text.size());
  EXPECT_EQ(replaced.substr(1, 1), "\xC3");
  EXPECT_NE(replaced.substr(1, 2), text.substr(1, 2));
  EXPECT_NE(replaced.substr(10, 3), text.substr(10, 3));
  EXPECT_EQ(replaced.substr(10, 2), text.substr(10, 2));
}

TEST(Replacements, OfAddressesKeepNetworksAndDigits) {
  const Replacements replacements(5);
  const auto of = [&](const std::string& bytes) { return replacements.OfAddress(bytes); };
  const std::string one = of("\xC0\x63\x02\x15");
  EXPECT_EQ(of("\xC0\x63\x02\x16").substr(0, 3), one.substr(0, 3));
  EXPECT_NE(of("\xC0\x63\x02\x16"), one);
  EXPECT_GE(static_cast<unsigned char>(one.at(0)), 100);
  EXPECT_LT(static_cast<unsigned char>(one.at(1)), 100);
  EXPECT_GE(static_cast<unsigned char>(one.at(1)), 10);
  EXPECT_LT(static_cast<unsigned char>(one.at(2)), 10);
  EXPECT_NE(one.at(0), '\xC0');
  // As it is written in a text.
  std::string text;
  for (const char byte : one) {
    text += (text.empty() ? "" : ".") + std::to_string(static_cast<unsigned char>(byte));
  }
  EXPECT_EQ(replacements.OfText("192.99.2.21"), text);
  EXPECT_EQ(replacements.OfText("at 192.99.2.21, port"),
            replacements.OfText("at ") + text + replacements.OfText(", port"));
  // An address each of its own.
  for (int last = 100; last < 255; ++last) {
    const char byte = static_cast<char>(last);
    EXPECT_NE(of(std::string("\xC0\x63\x02") + byte), of(std::string("\xC0\x63\x02\xFF", 4)));
  }
}

TEST(Replacements, HoldNoOriginal) {
  // Nearly every number of four digits is somebody's.
  Replacements replacements(1);
  for (int number = 0; number < 9000; ++number) {
    replacements.Avoid(std::to_string(1000 + number));
  }
  for (const std::string number : {"1234", "5550100", "12345678"}) {
    const std::string replaced = replacements.OfText(number);
    EXPECT_EQ(replaced.size(), number.size());
    for (std::size_t i = 0; i + 4 <= replaced.size(); ++i) {
      const std::string four = replaced.substr(i, 4);
      EXPECT_TRUE(four.front() == '0' || four == "****") << replaced;
    }
    EXPECT_EQ(replacements.OfText(number), replaced);
  }
}

}  // namespace
}  // namespace strake::tests
