#include "platform/server/Capture.h"

#include <chrono>
#include <string_view>

namespace strake::platform {
namespace {

// Takes a text's parts from its front; a part that is not there fails once and
// for all.
class TimeReader {
 public:
  explicit TimeReader(std::string_view text) : fRest(text) {}

  // Exactly so many digits; -1 when they are not there.
  int Digits(std::size_t count) {
    int number = 0;
    for (std::size_t i = 0; i < count; ++i) {
      if (!IsDigit()) {
        fFailed = true;
        return -1;
      }
      number = number * 10 + (fRest.front() - '0');
      fRest.remove_prefix(1);
    }
    return number;
  }

  bool TakeOneOf(std::string_view characters) {
    if (fRest.empty() || characters.find(fRest.front()) == std::string_view::npos) {
      return false;
    }
    fRest.remove_prefix(1);
    return true;
  }

  void Expect(std::string_view characters) { fFailed = !TakeOneOf(characters) || fFailed; }

  void Fraction() {
    if (TakeOneOf(".")) {
      fFailed = fFailed || !IsDigit();
      while (IsDigit()) {
        fRest.remove_prefix(1);
      }
    }
  }

  [[nodiscard]] bool IsDone() const { return !fFailed && fRest.empty(); }

 private:
  [[nodiscard]] bool IsDigit() const {
    return !fRest.empty() && fRest.front() >= '0' && fRest.front() <= '9';
  }

  std::string_view fRest;
  bool fFailed = false;
};

// RFC 3339, second 60 included: "2026-03-01T09:41:27Z", "...27.5+01:00".
bool IsDateTime(std::string_view text) {
  TimeReader reader(text);
  const std::chrono::year year(reader.Digits(4));
  reader.Expect("-");
  const int month = reader.Digits(2);
  reader.Expect("-");
  const int day = reader.Digits(2);
  reader.Expect("Tt");
  const int hour = reader.Digits(2);
  reader.Expect(":");
  const int minute = reader.Digits(2);
  reader.Expect(":");
  const int second = reader.Digits(2);
  reader.Fraction();
  int offsetHour = 0;
  int offsetMinute = 0;
  if (!reader.TakeOneOf("Zz")) {
    reader.Expect("+-");
    offsetHour = reader.Digits(2);
    reader.Expect(":");
    offsetMinute = reader.Digits(2);
  }
  return reader.IsDone() && hour < 24 && minute < 60 && second <= 60 && offsetHour < 24 &&
         offsetMinute < 60 &&
         std::chrono::year_month_day(year, std::chrono::month(static_cast<unsigned int>(month)),
                                     std::chrono::day(static_cast<unsigned int>(day)))
             .ok();
}

}  // namespace

void CheckCapture(const json::Field& field) {
  field.AllowKeys({"source", "at", "notes"});
  if (const auto source = field.Find("source")) {
    static_cast<void>(source->Text());
  }
  if (const auto at = field.Find("at"); at && !IsDateTime(at->Text())) {
    at->Refuse("a date-time such as 2026-03-01T09:41:27Z");
  }
  if (const auto notes = field.Find("notes")) {
    notes->ForEachItem([](const json::Field& note) { static_cast<void>(note.Text()); });
  }
}

}  // namespace strake::platform
