// Views of reply bytes: nothing is read outside of them.
#include "plugin/spaccess/ByteView.h"

#include <array>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

namespace strake::tests {
namespace {

constexpr auto kFar = std::numeric_limits<std::size_t>::max();

TEST(ByteView, ReadsZeroPastItsEnd) {
  const std::vector<unsigned char> bytes = {1, 2, 3};
  const ByteView view(bytes);
  EXPECT_EQ(view.Size(), 3U);
  EXPECT_EQ(view[0], 1);
  EXPECT_EQ(view[2], 3);
  for (const std::size_t offset : {std::size_t{3}, std::size_t{4}, std::size_t{300}, kFar}) {
    EXPECT_EQ(view[offset], 0);
  }
}

TEST(ByteView, PutsWordsTogetherInBothOrders) {
  const std::vector<unsigned char> bytes = {0x12, 0x34};
  const ByteView view(bytes);
  EXPECT_EQ(view.LittleEndian16(0), 0x3412);
  EXPECT_EQ(view.BigEndian16(0), 0x1234);
  EXPECT_EQ(view.LittleEndian16(1), 0x0034);
  EXPECT_EQ(view.BigEndian16(1), 0x3400);
}

TEST(ByteView, APartStaysWithinTheWhole) {
  const std::vector<unsigned char> bytes = {1, 2, 3, 4};
  const ByteView view(bytes);
  struct PartCase {
    std::size_t offset, count, size;
    int first;
  };
  for (const PartCase& part : {PartCase{0, 4, 4, 1}, PartCase{1, 2, 2, 2}, PartCase{3, 9, 1, 4},
                               PartCase{4, 1, 0, 0}, PartCase{9, 1, 0, 0}, PartCase{2, kFar, 2, 3},
                               PartCase{kFar, kFar, 0, 0}, PartCase{2, 0, 0, 0}}) {
    EXPECT_EQ(view.From(part.offset, part.count).Size(), part.size);
    EXPECT_EQ(view.From(part.offset, part.count)[0], part.first);
  }
}

TEST(ByteView, TextEndsAtAZeroByteOrWithTheView) {
  const std::vector<unsigned char> closed = {'a', 'b', 0, 'c'};
  const std::vector<unsigned char> open = {'a', 'b'};
  EXPECT_EQ(ByteView(closed).Text(), "ab");
  EXPECT_EQ(ByteView(open).Text(), "ab");
  EXPECT_EQ(ByteView().Text(), "");
}

TEST(ByteView, ASignIsExtendedFromTheTopBit) {
  for (int word = 0; word <= 0xFFFF; ++word) {
    ASSERT_EQ(Signed(static_cast<std::uint16_t>(word)), word < 0x8000 ? word : word - 0x10000);
  }
  for (int byte = 0; byte <= 0xFF; ++byte) {
    ASSERT_EQ(Signed(static_cast<unsigned char>(byte)), byte < 0x80 ? byte : byte - 0x100);
  }
}

TEST(ReceivedBytes, AreTheReportedLengthAtMostTheBuffer) {
  const std::array<unsigned char, 256> buffer{};
  for (int length = 0; length <= 300; ++length) {
    EXPECT_EQ(ReceivedBytes(buffer, length).Size(), length <= 256 ? length : 256);
  }
}

TEST(ReceivedBytes, OfANegativeLengthAreTheWholeBuffer) {
  const std::array<unsigned char, 256> buffer{};
  for (const int length : {-1, -2, -256, -65536, std::numeric_limits<int>::min()}) {
    EXPECT_EQ(ReceivedBytes(buffer, length).Size(), 256U);
  }
  EXPECT_EQ(ReceivedBytes(buffer, std::numeric_limits<int>::max()).Size(), 256U);
}

}  // namespace
}  // namespace strake::tests
