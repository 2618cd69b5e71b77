#include "report/NominalVoltage.h"

#include <algorithm>
#include <charconv>
#include <system_error>

namespace strake::report {
namespace {

constexpr std::string_view kBlank = " ";
constexpr double kWhole = 100;

// A word of a sensor's name that begins as a number.
struct Number {
  double value = 0;
  bool hasSign = false;
  std::string_view rest;  // behind the number: "v"
};

std::optional<Number> ParseNumber(std::string_view word) {
  Number number;
  number.hasSign = word.starts_with('+') || word.starts_with('-');
  const bool isNegative = word.starts_with('-');
  word.remove_prefix(number.hasSign ? 1 : 0);
  if (word.empty() || word.front() < '0' || word.front() > '9') {
    return std::nullopt;
  }
  const char* const end = word.data() + word.size();
  const auto [stop, error] =
      std::from_chars(word.data(), end, number.value, std::chars_format::fixed);
  if (error != std::errc()) {
    return std::nullopt;
  }
  number.value = isNegative ? -number.value : number.value;
  number.rest = word.substr(static_cast<std::size_t>(stop - word.data()));
  return number;
}

// The next word of the text, which is moved behind it; empty at the end.
std::string_view TakeWord(std::string_view& text) {
  text.remove_prefix(std::min(text.find_first_not_of(kBlank), text.size()));
  const std::string_view word = text.substr(0, text.find_first_of(kBlank));
  text.remove_prefix(word.size());
  return word;
}

// A number alone counts the thing that it stands behind, unless it has a sign.
bool IsVoltage(const Number& number, std::string_view next, bool isFirstWord) {
  if (!number.rest.empty()) {
    return number.rest == "v" || number.rest == "V";
  }
  return (isFirstWord || number.hasSign) && (next == "Voltage" || next == "voltage");
}

}  // namespace

std::optional<double> NominalVoltage(std::string_view sensorName) {
  std::optional<double> nominal;
  bool isFirstWord = true;
  for (std::string_view word = TakeWord(sensorName); !word.empty();) {
    const std::string_view next = TakeWord(sensorName);
    const std::optional<Number> number = ParseNumber(word);
    if (number && IsVoltage(*number, next, isFirstWord)) {
      if (nominal && *nominal != number->value) {
        return std::nullopt;
      }
      nominal = number->value;
    }
    word = next;
    isFirstWord = false;
  }
  return nominal == 0 ? std::nullopt : nominal;
}

double DeviationPercent(double reading, double nominal) {
  return (reading - nominal) / nominal * kWhole;
}

}  // namespace strake::report
