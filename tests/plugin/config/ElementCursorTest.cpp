// The cursor: eight-bit starts, and everything else where it lies.
#include "plugin/config/ElementCursor.h"
#include "tests/support/Scenario.h"

#include <gtest/gtest.h>
#include <numeric>
#include <string>
#include <vector>

namespace strake::tests {
namespace {

using Buffer = std::vector<unsigned char>;

// Buffers as the readers have them: the record and zeros behind it.
Buffer Filled(const std::string& record, std::size_t size = 256) {
  Buffer buffer(record.begin(), record.end());
  buffer.resize(size);
  return buffer;
}

// Byte i is i (less 256 beyond it), so that a vector ID tells where it stands.
Buffer Counting(std::size_t size) {
  Buffer buffer(size);
  std::iota(buffer.begin(), buffer.end(), static_cast<unsigned char>(0));
  return buffer;
}

// A cursor that the first element has led to `start`: 0, or 3 and more.
ElementCursor CursorAt(Buffer& buffer, int start) {
  ElementCursor element{ByteView(buffer)};
  if (start != 0) {
    buffer[2] = static_cast<unsigned char>(start - 3);
    element.Advance();
  }
  return element;
}

std::string Raw(ByteView view) {
  std::string bytes;
  for (std::size_t i = 0; i < view.Size(); ++i) {
    bytes.push_back(static_cast<char>(view[i]));
  }
  return bytes;
}

TEST(ElementCursor, ReadsTheHeaderOfTheFirstElement) {
  const Buffer buffer = Filled(Plain(200, 129, "\x07xyz"));
  const ElementCursor element{ByteView(buffer)};
  EXPECT_EQ(element.VectorId(), 200);
  EXPECT_EQ(element.Header(), 129);
  EXPECT_EQ(element.DataLength(), 4);
  EXPECT_EQ(element.MaximumLength(), 7);
  EXPECT_EQ(Raw(element.Data()), "\x07xyz");
}

TEST(ElementCursor, TheNextElementStartsThreeAndTheLengthFurtherInEightBits) {
  // Every length from every start whose header lies in the buffer.
  for (int start = 0; start <= 253; start += start == 0 ? 3 : 1) {
    for (int length = 0; length <= 255; ++length) {
      Buffer buffer = Counting(256);
      ElementCursor element = CursorAt(buffer, start);
      buffer[static_cast<std::size_t>(start) + 2] = static_cast<unsigned char>(length);
      element.Advance();
      const int next = (start + 3 + length) % 256;
      ASSERT_EQ(element.VectorId(), buffer[static_cast<std::size_t>(next)])
          << "from " << start << " by " << length;
    }
  }
}

TEST(ElementCursor, WalksACountingBufferByTheLengthsThatItFinds) {
  const Buffer buffer = Counting(256);
  ElementCursor element{ByteView(buffer)};
  // Each start is twice the one before and 5 more, less 256 from there on.
  for (const int start : {0, 5, 15, 35, 75, 155, 59, 123, 251, 251, 251}) {
    EXPECT_EQ(element.VectorId(), start);
    element.Advance();
  }
}

TEST(ElementCursor, OnlyTheStartWrapsAndNotTheBytesBehindIt) {
  struct Case {
    int start;
    std::size_t size;
    int header, length, maximum;
    std::size_t data;
  };
  // Byte i is i: 256 reads as 0, 257 as 1, where the buffer has them.
  const Case cases[] = {
      {252, 256, 253, 254, 255, 1}, {253, 256, 254, 255, 0, 0},  {254, 256, 255, 0, 0, 0},
      {255, 256, 0, 0, 0, 0},       {253, 350, 254, 255, 0, 94}, {254, 350, 255, 0, 1, 0},
      {255, 350, 0, 1, 2, 1},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.start);
    Buffer buffer = Counting(c.size);
    const ElementCursor element = CursorAt(buffer, c.start);
    EXPECT_EQ(element.VectorId(), c.start);
    EXPECT_EQ(element.Header(), c.header);
    EXPECT_EQ(element.DataLength(), c.length);
    EXPECT_EQ(element.MaximumLength(), c.maximum);
    EXPECT_EQ(element.Data().Size(), c.data);
  }
}

TEST(ElementCursor, ALengthByteBehindTheBufferIsZeroAndTheWalkGoesOnThreeBytesFurther) {
  for (const int start : {254, 255}) {
    Buffer buffer = Counting(256);
    ElementCursor element = CursorAt(buffer, start);
    EXPECT_EQ(element.DataLength(), 0);
    element.Advance();
    EXPECT_EQ(element.VectorId(), buffer[static_cast<std::size_t>(start + 3 - 256)]);
  }
}

TEST(ElementCursor, CutsAStringByItsLengthAndWhereAskedByItsMaximum) {
  struct Case {
    const char* what;
    std::string record;
    std::string characters, bounded;
  };
  const Case cases[] = {
      {"as SPs write it", Text(1, 2, "abc"), std::string("abc\0N", 5), std::string("abc\0", 4)},
      {"M < L", Text(1, 2, "abc", 2), std::string("abc\0N", 5), "ab"},
      {"M > L", Text(1, 2, "abc", 99), std::string("abc\0N", 5), std::string("abc\0N", 5)},
      {"M = L", Text(1, 2, "abc", 5), std::string("abc\0N", 5), std::string("abc\0N", 5)},
      {"M = 0", Text(1, 2, "abc", 0), std::string("abc\0N", 5), ""},
      {"no closing zero",
       Plain(1, 2,
             "\x63"
             "abc"),
       "abcN", "abcN"},
      {"only M", Plain(1, 2, "\x05"), "N", "N"},
      {"L = 0, M is the next vector ID", Plain(1, 2, ""), "", ""},
      {"high-bit M and bytes", Plain(1, 2, "\xFF\x80\xFE"), "\x80\xFEN", "\x80\xFEN"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    const Buffer buffer = Filled(c.record + "NEXT");
    const ElementCursor element{ByteView(buffer)};
    EXPECT_EQ(Raw(element.Characters()), c.characters);
    EXPECT_EQ(Raw(element.BoundedCharacters()), c.bounded);
  }
}

TEST(ElementCursor, DataEndsWithTheBufferWhateverTheLengthSays) {
  for (const std::size_t size : {std::size_t{256}, std::size_t{350}}) {
    Buffer buffer(size, 'x');
    buffer[2] = 249;
    buffer[254] = 255;
    buffer[255] = 255;
    ElementCursor element{ByteView(buffer)};
    EXPECT_EQ(element.Data().Size(), 249U);
    EXPECT_EQ(element.Characters().Size(), 249U);
    element.Advance();  // to 252, where L is 255 and M too
    EXPECT_EQ(element.DataLength(), 255);
    EXPECT_EQ(element.MaximumLength(), 255);
    EXPECT_EQ(element.Data().Size(), size - 255);
    EXPECT_EQ(element.Characters().Size(), size - 256);
    EXPECT_EQ(element.BoundedCharacters().Size(), size - 256);
  }
}

TEST(ElementCursor, AnEmptyBufferIsAllZeros) {
  ElementCursor element{ByteView()};
  for (int i = 0; i < 100; ++i) {
    EXPECT_EQ(element.VectorId(), 0);
    EXPECT_EQ(element.Header(), 0);
    EXPECT_EQ(element.DataLength(), 0);
    EXPECT_EQ(element.MaximumLength(), 0);
    EXPECT_EQ(element.Data().Size(), 0U);
    EXPECT_EQ(element.Characters().Text(), "");
    element.Advance();
  }
}

}  // namespace
}  // namespace strake::tests
