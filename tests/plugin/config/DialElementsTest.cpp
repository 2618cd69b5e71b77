// Elements at the edges of their form, case by case, in a login entry: a text,
// a plain element and a text.
#include "tests/plugin/config/DialScenario.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

// The lines and the values of the three elements.
Lines ElementLines(const std::string& reply) {
  Scenario scenario = Scenario::Orlo();
  scenario.Component("4.1.4.1.255", 1).Answer("4.1.4.1.255", reply).Run({kDialin});
  Lines lines;
  for (const std::string& line : scenario.Record().Beginning(
           {"log 4 [", "log 3 LoginID", "log 3 LoginFlags", "log 3 DialBackNumber"})) {
    lines.push_back(line.substr(6));
  }
  for (const char* const name : {"LoginID", "LoginFlags", "DialBackNumber"}) {
    lines.push_back(Property(scenario, 1, name));
  }
  return lines;
}

const std::string kAllowed = "Read/write permision. Dial back disabled";
const std::string kReadOnly = "Read only permission. Dial back disabled";

TEST(DialElements, AMaximumBelowTheLengthCutsTheTextAndNotTheStep) {
  // L = 10, M = 4: the next element begins 13 bytes on.
  EXPECT_EQ(
      ElementLines(Plain(1, 2, Bytes({4}) + "ABCDEFGHI") + Plain(3, 4, Bytes({1})) +
                   Text(5, 6, "x")),
      (Lines{"[LoginID] Vector ID = 1 2", "[LoginID] Data length = 10",
             "[LoginID] Max length of string = 4", "LoginID = ABCD", "[LoginFlags] Vector ID = 3 4",
             "LoginFlags = " + kReadOnly, "[DialBackNumber] Vector ID = 5 6",
             "[DialBackNumber] Data length = 3", "[DialBackNumber] Max length of string = 2",
             "DialBackNumber = x", "string ABCD", "string " + kReadOnly, "string x"}));
}

TEST(DialElements, ATextWithoutAZeroByteEndsWhereItsCopyEnds) {
  const Lines lines = ElementLines(Plain(1, 2, Bytes({3}) + "ABC") + Plain(3, 4, Bytes({0})) +
                                   Plain(5, 6, Bytes({200}) + "1234") + std::string(20, 'Z'));
  EXPECT_EQ(lines.at(3), "LoginID = ABC");
  // L counts the byte M, so the copy takes in one byte behind the element.
  EXPECT_EQ(lines.at(9), "DialBackNumber = 1234Z");
}

TEST(DialElements, ATextEndsAtItsFirstZeroByte) {
  const Lines lines = ElementLines(Plain(1, 2, Bytes({9, 'A', 0, 'B', 0})));
  EXPECT_EQ(lines.at(3), "LoginID = A");
}

TEST(DialElements, ATextOfHighBytesIsPublishedByteForByte) {
  const Lines lines = ElementLines(Text(1, 2, "\xFF\x80\xC3\xA9"));
  EXPECT_EQ(lines.at(3), "LoginID = \xFF\x80\xC3\xA9");
  EXPECT_EQ(lines.at(lines.size() - 3), "string \xFF\x80\xC3\xA9");
}

TEST(DialElements, ATextOfLengthZeroStillTellsTheByteWhereItsMaximumWouldBe) {
  // That byte is the next element's vector ID.
  const Lines lines = ElementLines(Plain(1, 2, "") + Plain(77, 4, Bytes({1})));
  EXPECT_EQ(Lines(lines.begin(), lines.begin() + 6),
            (Lines{"[LoginID] Vector ID = 1 2", "[LoginID] Data length = 0",
                   "[LoginID] Max length of string = 77",
                   "LoginID = ", "[LoginFlags] Vector ID = 77 4", "LoginFlags = " + kReadOnly}));
}

TEST(DialElements, APlainElementOfLengthZeroReadsAsZero) {
  // Not as the byte behind it, which is the next element's vector ID.
  const Lines lines = ElementLines(Text(1, 2, "") + Plain(3, 4, "") + Text(1, 6, "y"));
  EXPECT_EQ(lines.at(5), "LoginFlags = " + kAllowed);
  EXPECT_EQ(lines.at(6), "[DialBackNumber] Vector ID = 1 6");
  EXPECT_EQ(lines.at(9), "DialBackNumber = y");
}

TEST(DialElements, ATextOfOnlyItsMaximumCopiesOneByteUnlessThatIsZero) {
  const struct {
    int maximum;
    int nextVectorId;
    const char* text;
  } cases[] = {{0, 'A', ""}, {1, 'A', "A"}, {5, 'A', "A"}, {5, 0, ""}, {255, 'A', "A"}};
  for (const auto& [maximum, next, text] : cases) {
    const Lines lines =
        ElementLines(Plain(1, 2, Bytes({maximum})) + Plain(next, 4, Bytes({1})) + Text(5, 6, "z"));
    EXPECT_EQ(lines.at(3), std::string("LoginID = ") + text);
    EXPECT_EQ(lines.at(4), "[LoginFlags] Vector ID = " + std::to_string(next) + " 4");
    EXPECT_EQ(lines.at(9), "DialBackNumber = z");
  }
}

// A first element that takes `length` bytes with its header.
std::string Filler(std::size_t length) {
  return Plain(1, 2, Bytes({3}) + "top" + std::string(length - 7, '\0'));
}

TEST(DialElements, AnElementThatBeginsBefore256ReadsOnBehindIt) {
  // The last one begins at 255: its header, its lengths and its text lie beyond.
  const Lines lines = ElementLines(Filler(250) + Plain(3, 4, Bytes({1, 0})) +
                                   Plain(5, 6, Bytes({200}) + "Beyond" + Bytes({0})));
  EXPECT_EQ(Lines(lines.begin() + 4, lines.begin() + 10),
            (Lines{"[LoginFlags] Vector ID = 3 4", "LoginFlags = " + kReadOnly,
                   "[DialBackNumber] Vector ID = 5 6", "[DialBackNumber] Data length = 8",
                   "[DialBackNumber] Max length of string = 200", "DialBackNumber = Beyond"}));
}

TEST(DialElements, ATextReadsUpToTheBuffersLastByteAndNoFurther) {
  // Its characters begin at 259; 91 bytes are left of the 350.
  const std::string reply = Filler(250) + Plain(3, 4, Bytes({1, 0})) + Bytes({5, 6, 200, 200});
  ASSERT_EQ(reply.size(), 259U);
  const std::string letters(91, 'q');
  for (const char* const more : {"", "rest that never fits"}) {
    const Lines lines = ElementLines(reply + letters + more);
    EXPECT_EQ(lines.at(9), "DialBackNumber = " + letters);
  }
}

TEST(DialElements, AnElementThatWouldBeginAt256BeginsAtTheRecordsFirstByte) {
  const Lines lines =
      ElementLines(Filler(250) + Plain(3, 4, Bytes({1, 0, 0})) + Text(5, 6, "unread"));
  EXPECT_EQ(Lines(lines.begin() + 6, lines.begin() + 10),
            (Lines{"[DialBackNumber] Vector ID = 1 2", "[DialBackNumber] Data length = 247",
                   "[DialBackNumber] Max length of string = 3", "DialBackNumber = top"}));
}

TEST(DialElements, AnElementThatWouldBeginBehind256Begins256BytesEarlier) {
  // At 260, so at 4: "top" is its header and length, "E" its maximum.
  const Lines lines = ElementLines(Bytes({1, 2, 247, 3, 't', 'o', 'p', 'E', 'F', 0}) +
                                   std::string(240, '\0') + Plain(3, 4, std::string(7, '\1')));
  EXPECT_EQ(Lines(lines.begin() + 6, lines.begin() + 10),
            (Lines{"[DialBackNumber] Vector ID = 116 111", "[DialBackNumber] Data length = 112",
                   "[DialBackNumber] Max length of string = 69", "DialBackNumber = F"}));
}

}  // namespace
}  // namespace strake::tests
