#include "fuzz/WalkChecks.h"

#include "fuzz/Check.h"
#include "plugin/config/Records.h"
#include "plugin/config/SpClock.h"
#include "plugin/environ/SensorDecoding.h"
#include "tests/support/PlainRecords.h"

#include <algorithm>
#include <exception>
#include <string>
#include <vector>

namespace strake::fuzz {

using tests::PlainElement;
using tests::PlainRecord;

namespace {

constexpr std::size_t kMostValueBytes = 255;
// Longer than any fixed text and any decoded number.
constexpr std::size_t kLongestFixedText = 64;

const RecordLayout& LayoutOf(const PlainRecord& record) {
  return std::ranges::find(AllRecords(), record.name, &NamedRecord::name)->layout;
}

void CheckElement(const ElementCursor& element, Bytes record, const PlainElement& plain) {
  const auto length = static_cast<std::size_t>(plain.length);
  const auto maximum = static_cast<std::size_t>(plain.maximum);
  Check(element.VectorId() == plain.vectorId, "the walk stands where the bytes say");
  Check(element.Header() == plain.header, "the second header byte follows the first");
  Check(element.DataLength() == plain.length, "the data length is the third byte");
  Check(element.MaximumLength() == plain.maximum, "the maximum is the first data byte");
  CheckView(element.Data(), record, plain.start + 3, length);
  CheckView(element.Characters(), record, plain.start + 4, length);
  CheckView(element.BoundedCharacters(), record, plain.start + 4, std::min(length, maximum));
}

// The text replaces another, holds no zero and no more bytes than the value or a
// fixed text has.
void CheckDecoder(ValueDecoder decode, ByteView value) {
  std::string text = "before \a";
  decode(value, text);
  Check(!text.starts_with("before \a") || value.Text() == text, "a decoder replaces the text");
  Check(text.find('\0') == std::string::npos, "a decoded text has no zero bytes");
  Check(text.size() <= std::max(value.Size(), kLongestFixedText),
        "a decoded text is no longer than what it was decoded from");
}

void CheckField(const RecordField& field, const ElementCursor& element, const PlainElement& plain) {
  const ByteView value = FieldValue(element, field.form);
  Check(value.Size() <= kMostValueBytes, "a value is at most 255 bytes long");
  CheckDecoder(field.decode, value);
  std::string text;
  field.decode(value, text);
  Check(text == plain.text, "a value reads as a plain reading has it");
}

bool IsByte(std::int32_t number) { return number >= 0 && number <= 0xFF; }
bool IsWord(std::int32_t number) { return number >= 0 && number <= 0xFFFF; }
bool IsSignedWord(std::int32_t number) { return number >= -0x8000 && number <= 0x7FFF; }

}  // namespace

void CheckView(ByteView view, Bytes all, std::size_t begin, std::size_t count) {
  const std::size_t size = begin < all.size() ? std::min(count, all.size() - begin) : 0;
  Check(view.Size() == size, "a view ends where its buffer or its count does");
  std::size_t firstZero = size;
  for (std::size_t i = size; i-- > 0;) {
    Check(view[i] == all[begin + i], "a view holds its buffer's bytes");
    if (view[i] == 0) firstZero = i;
  }
  Check(view[size] == 0 && view[size + 65536] == 0, "past its end a view reads as zero");
  Check(view.Text().size() == firstZero, "a text ends before the first zero byte");
}

void CheckWalk(Bytes record, std::size_t number) {
  // Three bytes a step or more: it has come round by then, or stands.
  constexpr int kSteps = 100;
  const PlainRecord& plain = tests::PlainRecords().at(number % tests::PlainRecords().size());
  const std::vector<PlainElement> elements = tests::ReadPlainly(plain, record);
  ElementCursor element{ByteView(record)};
  std::size_t start = 0;
  const auto advance = [&] {
    element.Advance();
    start = tests::PlainNext(record, start);
  };
  for (std::size_t i = 0; i < elements.size(); ++i) {
    CheckElement(element, record, elements[i]);
    CheckField(LayoutOf(plain).fields[i], element, elements[i]);
    advance();
  }
  for (int step = 0; step < kSteps; ++step) {
    const std::size_t vectorId = start < record.size() ? record[start] : 0;
    Check(element.VectorId() == vectorId, "the position stays below 256");
    advance();
  }
}

void CheckDecoders(ByteView value) {
  for (const NamedRecord& named : AllRecords()) {
    for (const RecordField& field : named.layout.fields) CheckDecoder(field.decode, value);
  }
}

void CheckSensors(ByteView reply, std::size_t firstByte, std::size_t number) {
  Check(IsSignedWord(DecodeOrloVoltage(reply)), "a voltage is a signed word");
  Check(IsWord(DecodeOrloTemperature(reply)), "a temperature is a word");
  Check(IsByte(DecodeOrloFan(reply)), "a fan's percentage is a byte");
  Check(IsSignedWord(DecodeKestleVoltage(reply, firstByte, number)), "a voltage is a signed word");
  Check(IsByte(DecodeKestleTemperature(reply, firstByte, number)), "a temperature is a byte");
  const unsigned char length = KestleReturnLength(reply);
  for (const TavitFamily& family : kTavitFamilies) {
    if (!family.fans || !IsExpectedFanLength(*family.fans, length)) continue;
    const KestleFanLayout& layout = *family.fans;
    const std::size_t fans = layout.fans != 0 ? layout.fans : KestleFansByLength(length);
    Check(fans <= std::size(kKestleFanNames), "an expected length has room for known fans");
    Check(layout.firstByte + 2 * fans <= length, "the fans lie within the expected length");
  }
}

void CheckTimes(ByteView clock, ByteView timeZone) {
  const SpTime time = DecodeSpTime(clock);
  Check(time.year >= 2000 && time.year <= 2255, "an SP counts years from 2000 in a byte");
  NVELKZEV20::TCIMDateTime dateTime;
  const std::string before = dateTime.ToString();
  try {
    SetDateTime(dateTime, time, DecodeUtcOffset(timeZone));
    Check(time.month >= 1 && time.month <= 12 && time.day >= 1 && time.day <= 31,
          "the host accepts only dates");
  } catch (const std::exception&) {
    Check(dateTime.ToString() == before, "a refused time changes nothing");
  }
  Check(dateTime.ToString().size() == 25, "a date-time has 25 characters");
}

}  // namespace strake::fuzz
