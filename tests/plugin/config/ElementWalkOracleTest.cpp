// The walk of element records beside a plain one, on 100,000 random buffers.
#include "plugin/config/DialRecords.h"
#include "plugin/config/NetworkRecords.h"
#include "tests/plugin/config/PlainRecords.h"
#include "tests/plugin/config/RandomRecords.h"
#include "tests/plugin/config/RecordWalk.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <iostream>
#include <string>
#include <vector>

namespace strake::tests {
namespace {

constexpr unsigned int kSeed = 20100615;
constexpr std::size_t kBuffers = 100'000;
// The host's side of a walk takes far longer than the walk itself.
constexpr std::size_t kPublishedOneIn = 20;

// The plug-in's tables, in the order of the plain ones.
const std::vector<RecordLayout>& Layouts() {
  static const std::vector<RecordLayout> kLayouts = {
      kInterfaceRecord, kDnsRecord,    kCommunityRecord, kSerialPortRecord,
      kDialoutRecord,   kDialinRecord, kAlertRecord};
  return kLayouts;
}

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

std::string Told(const PlainRecord& record, std::size_t number, const PlainBytes& buffer) {
  std::string text = "seed " + std::to_string(kSeed) + ", buffer " + std::to_string(number) +
                     ", record " + record.name + ", bytes";
  for (const unsigned char byte : buffer) {
    text += " " + std::to_string(byte);
  }
  return text;
}

TEST(ElementWalkOracle, ReadsRandomBuffersLikeAPlainReading) {
  std::cout << "seed " << kSeed << ", " << kBuffers << " buffers\n";
  const std::vector<PlainRecord>& records = PlainRecords();
  ASSERT_EQ(records.size(), Layouts().size());
  RandomRecords random(kSeed);
  Tally tally;
  std::size_t number = 0;
  for (std::size_t i = 0; i < records.size(); ++i) {
    const PlainRecord& record = records[i];
    const RecordLayout& layout = Layouts()[i];
    ASSERT_EQ(record.fields.size(), layout.fields.size());
    RecordWalk walk(record.className.c_str());
    for (; number < kBuffers * (i + 1) / records.size(); ++number) {
      const std::size_t size = number % 2 == 0 ? 256 : 350;
      const PlainBytes buffer = random.Next(record, size);
      const std::vector<PlainElement> plain = ReadPlainly(record, buffer);
      tally.Add(plain, size);
      ASSERT_TRUE(Walked(layout, buffer, plain) == plain) << Told(record, number, buffer);
      if (number / 2 % kPublishedOneIn == 0) {
        ASSERT_EQ(walk.Publish(layout, buffer).All(), PlainTrail(record, plain))
            << Told(record, number, buffer);
      }
    }
  }
  EXPECT_EQ(number, kBuffers);
  // The buffers are worth their time.
  EXPECT_GT(tally.wraps, kBuffers);
  EXPECT_GT(tally.empty, kBuffers / 2);
  EXPECT_GT(tally.full, kBuffers / 10);
  EXPECT_GT(tally.cut, kBuffers);
  EXPECT_GT(tally.beyond, kBuffers / 10);
}

TEST(ElementWalkOracle, ReadsUniformBuffersLikeAPlainReading) {
  const std::vector<PlainRecord>& records = PlainRecords();
  for (std::size_t i = 0; i < records.size(); ++i) {
    for (const std::size_t size : {std::size_t{256}, std::size_t{350}}) {
      for (int byte = 0; byte <= 255; ++byte) {
        const PlainBytes buffer(size, static_cast<unsigned char>(byte));
        const std::vector<PlainElement> plain = ReadPlainly(records[i], buffer);
        ASSERT_TRUE(Walked(Layouts()[i], buffer, plain) == plain)
            << records[i].name << " " << byte << " in " << size;
      }
    }
  }
}

}  // namespace
}  // namespace strake::tests
