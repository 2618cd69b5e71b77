// The host's values, each known by its address while it lives, and date-times.
#include "plugin/host/TCIMSchemaHelper.h"
#include "tests/strict/StrictHost.h"

#include <array>
#include <cstdio>

namespace strake::strict {
namespace {

using LiveTable = std::map<const NVELKZEV20::TCIMValue*, HeldValue>;

// Never destroyed: values may outlive every static object.
LiveTable& Table() {
  static auto& table = *new LiveTable;
  return table;
}

// While a value is rendered, the host's own call is not recorded.
bool isRendering = false;

std::string Render(const NVELKZEV20::TCIMDateTime& dateTime) {
  isRendering = true;
  std::string text = dateTime.ToString();
  isRendering = false;
  return text;
}

}  // namespace

const LiveTable& LiveValues() { return Table(); }

HeldValue Held(const NVELKZEV20::TCIMValue& value) { return Table().at(&value); }

HeldMap Held(const NVELKZEV20::TNameToValueMap& map) {
  HeldMap held;
  for (const auto& [name, value] : map) {
    const HeldValue& content = Table().at(&value);
    held[name] = {content.made, content.text};
  }
  return held;
}

}  // namespace strake::strict

namespace NVELKZEV20 {

using strake::strict::Call;
using strake::strict::HeldValue;
using strake::strict::Made;
using strake::strict::StrictHost;
using strake::strict::Table;

TCIMValue::TCIMValue() { Table()[this] = {}; }
TCIMValue::TCIMValue(const TCIMValue& other) {
  HeldValue held = Table().at(&other);
  held.isCopy = true;
  Table()[this] = held;
}
TCIMValue::TCIMValue(const std::string& text) { Table()[this] = {Made::FromText, text}; }
TCIMValue::TCIMValue(const char* text) { Table()[this] = {Made::FromCString, text}; }
TCIMValue::TCIMValue(int number) { Table()[this] = {Made::FromInt, std::to_string(number)}; }
TCIMValue::TCIMValue(unsigned short number) {
  Table()[this] = {Made::FromShort, std::to_string(number)};
}
TCIMValue::TCIMValue(unsigned char number) {
  Table()[this] = {Made::FromByte, std::to_string(number)};
}
TCIMValue::TCIMValue(const TCIMDateTime& dateTime) {
  Table()[this] = {Made::FromDateTime, strake::strict::Render(dateTime)};
}
TCIMValue& TCIMValue::operator=(const TCIMValue& other) {
  HeldValue held = Table().at(&other);
  held.isCopy = true;
  Table().at(this) = held;
  return *this;
}
TCIMValue::~TCIMValue() { Table().erase(this); }

TCIMDateTime::TCIMDateTime()
    : fDay(0),
      fMicroseconds(0),
      fYear(0),
      fMonth(0),
      fHour(0),
      fMinute(0),
      fSecond(0),
      fUtcOffset(0) {}
TCIMDateTime::TCIMDateTime(const TCIMDateTime& other) = default;
TCIMDateTime& TCIMDateTime::operator=(const TCIMDateTime& other) = default;
TCIMDateTime::~TCIMDateTime() = default;

void TCIMDateTime::Set(unsigned short year, unsigned short month, unsigned int day,
                       unsigned short hour, unsigned short minute, unsigned short second,
                       unsigned int microseconds, short utcOffset) {
  TCIMDateTime made;
  made.fYear = year;
  made.fMonth = month;
  made.fDay = day;
  made.fHour = hour;
  made.fMinute = minute;
  made.fSecond = second;
  made.fMicroseconds = microseconds;
  made.fUtcOffset = utcOffset;
  StrictHost::Current().Record({.call = Call::DateTimeSet, .text = strake::strict::Render(made)});
  *this = made;
}

std::string TCIMDateTime::ToString() const {
  std::array<char, 80> text{};
  std::snprintf(text.data(), text.size(), "%u-%u-%u %u:%u:%u.%u %d", fYear, fMonth, fDay, fHour,
                fMinute, fSecond, fMicroseconds, fUtcOffset);
  if (!strake::strict::isRendering) {
    StrictHost::Current().Record({.call = Call::DateTimeToString, .text = text.data()});
  }
  return text.data();
}

}  // namespace NVELKZEV20
