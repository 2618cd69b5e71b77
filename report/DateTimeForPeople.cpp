#include "report/DateTimeForPeople.h"

#include <algorithm>

namespace strake::report {
namespace {

constexpr std::string_view kForm = "dddddddddddddd.ddddddsddd";
constexpr int kMinutesAnHour = 60;

bool FitsForm(char form, char character) {
  switch (form) {
    case 'd':
      return character >= '0' && character <= '9';
    case 's':
      return character == '+' || character == '-';
    default:
      return character == form;
  }
}

void AppendTwoDigits(std::string& out, int number) {
  if (number < 10) {
    out += '0';
  }
  out += std::to_string(number);
}

void AppendOffset(std::string& out, std::string_view minutesText) {
  int minutes = 0;
  for (const char digit : minutesText) {
    minutes = minutes * 10 + (digit - '0');
  }
  AppendTwoDigits(out, minutes / kMinutesAnHour);
  out += ':';
  AppendTwoDigits(out, minutes % kMinutesAnHour);
}

}  // namespace

bool IsDateTime(std::string_view text) {
  return text.size() == kForm.size() &&
         std::equal(kForm.begin(), kForm.end(), text.begin(), FitsForm);
}

std::string DateTimeForPeople(std::string_view cimText) {
  if (!IsDateTime(cimText)) {
    return std::string(cimText);
  }
  std::string out;
  const auto append = [&out, cimText](std::size_t offset, std::size_t width, char end) {
    out += cimText.substr(offset, width);
    out += end;
  };
  append(0, 4, '-');
  append(4, 2, '-');
  append(6, 2, ' ');
  append(8, 2, ':');
  append(10, 2, ':');
  out += cimText.substr(12, 2);
  const std::string_view microseconds = cimText.substr(15, 6);
  if (microseconds != "000000") {
    out += '.';
    out += microseconds;
  }
  out += " UTC";
  out += cimText[21];
  AppendOffset(out, cimText.substr(22));
  return out;
}

}  // namespace strake::report
