// The walk of element records beside a plain one, on 20,000 random buffers. The
// walk's fuzzer holds it beside the same one for as long as it runs.
#include "plugin/config/Records.h"
#include "tests/plugin/config/RandomRecords.h"
#include "tests/plugin/config/RecordWalk.h"
#include "tests/support/PlainRecords.h"

#include <gtest/gtest.h>
#include <set>
#include <string>
#include <vector>

namespace strake::tests {
namespace {

constexpr unsigned int kSeed = 20100615;
// Of each record.
constexpr std::size_t kBuffers = 3'000;
// The host's side of a walk takes far longer than the walk itself.
constexpr std::size_t kPublishedOneIn = 20;

// The elements by the plug-in's cursor and decoders; the starts are the plain
// reading's, which the vector IDs stand for.
std::vector<PlainElement> Walked(const RecordLayout& layout, const PlainBytes& buffer,
                                 const std::vector<PlainElement>& plain) {
  std::vector<PlainElement> elements;
  elements.reserve(plain.size());
  ElementCursor element{ByteView(buffer)};
  for (const RecordField& field : layout.fields) {
    std::string text;
    field.decode(FieldValue(element, field.form), text);
    elements.push_back({plain.at(elements.size()).start, element.VectorId(), element.Header(),
                        element.DataLength(), element.MaximumLength(), text});
    element.Advance();
  }
  return elements;
}

// How often what the buffers are for came up.
struct Tally {
  std::size_t wraps = 0, empty = 0, full = 0, cut = 0, beyond = 0;

  void Add(const std::vector<PlainElement>& elements, std::size_t size) {
    for (const PlainElement& element : elements) {
      const std::size_t end = element.start + 3 + static_cast<std::size_t>(element.length);
      wraps += end >= 256 ? 1 : 0;
      empty += element.length == 0 ? 1 : 0;
      full += element.length == 255 ? 1 : 0;
      cut += element.maximum < element.length ? 1 : 0;
      beyond += end > size ? 1 : 0;
    }
  }
};

std::string Told(std::size_t number, const PlainBytes& buffer) {
  std::string text = "buffer " + std::to_string(number) + ", bytes";
  for (const unsigned char byte : buffer) {
    text += " " + std::to_string(byte);
  }
  return text;
}

class ElementWalkOracle : public testing::TestWithParam<NamedRecord> {
 protected:
  static const PlainRecord& Plain() { return PlainRecordNamed(GetParam().name); }
};

TEST_P(ElementWalkOracle, ReadsRandomBuffersLikeAPlainReading) {
  const RecordLayout& layout = GetParam().layout;
  const PlainRecord& record = Plain();
  ASSERT_EQ(record.fields.size(), layout.fields.size());
  RandomRecords random(kSeed);
  Tally tally;
  RecordWalk walk(record.className.c_str());
  for (std::size_t number = 0; number < kBuffers; ++number) {
    const std::size_t size = number % 2 == 0 ? 256 : 350;
    const PlainBytes buffer = random.Next(record, size);
    const std::vector<PlainElement> plain = ReadPlainly(record, buffer);
    tally.Add(plain, size);
    ASSERT_TRUE(Walked(layout, buffer, plain) == plain) << Told(number, buffer);
    if (number / 2 % kPublishedOneIn == 0) {
      ASSERT_EQ(walk.Publish(layout, buffer).All(), PlainTrail(record, plain))
          << Told(number, buffer);
    }
  }
  // The buffers are worth their time.
  EXPECT_GT(tally.wraps, kBuffers / 10);
  EXPECT_GT(tally.empty, kBuffers / 10);
  EXPECT_GT(tally.full, kBuffers / 10);
  EXPECT_GT(tally.cut, kBuffers / 3);
  EXPECT_GT(tally.beyond, kBuffers / 20);
}

TEST_P(ElementWalkOracle, ReadsUniformBuffersLikeAPlainReading) {
  for (const std::size_t size : {std::size_t{256}, std::size_t{350}}) {
    for (int byte = 0; byte <= 255; ++byte) {
      const PlainBytes buffer(size, static_cast<unsigned char>(byte));
      const std::vector<PlainElement> plain = ReadPlainly(Plain(), buffer);
      ASSERT_TRUE(Walked(GetParam().layout, buffer, plain) == plain) << byte << " in " << size;
    }
  }
}

TEST(ElementWalkOracleTables, HaveEveryRecordOnce) {
  std::multiset<std::string> plain;
  for (const PlainRecord& record : PlainRecords()) {
    plain.insert(record.name);
  }
  std::multiset<std::string> real;
  for (const NamedRecord& record : AllRecords()) {
    real.emplace(record.name);
  }
  EXPECT_EQ(plain, real);
}

std::string NameOf(const testing::TestParamInfo<NamedRecord>& info) {
  std::string name(info.param.name);
  std::erase_if(name, [](char character) { return character == ' ' || character == '-'; });
  return name;
}

INSTANTIATE_TEST_SUITE_P(Record, ElementWalkOracle, testing::ValuesIn(AllRecords()), NameOf);

}  // namespace
}  // namespace strake::tests
