#include "app/LimitsFile.h"

#include "app/Input.h"
#include "app/NearestName.h"
#include "report/Selection.h"
#include "text/InputError.h"
#include "text/OrList.h"
#include "text/Quote.h"
#include "text/TextEscape.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>
#define TOML_EXCEPTIONS 1
#include <toml++/toml.h>

namespace strake::app {
namespace {

constexpr std::size_t kMostLimitsBytes = std::size_t{1} << 20U;
// The library takes a dotted key apart by recursion, a level a point.
constexpr std::size_t kLongestLine = 1000;

using report::Bound;
using report::LimitRule;

struct BoundKey {
  std::string_view key;
  std::optional<Bound> LimitRule::*bound;
};

// From the lowest to the highest.
constexpr std::array<BoundKey, 4> kBounds{{
    {"lower_critical", &LimitRule::lowerCritical},
    {"lower_warning", &LimitRule::lowerWarning},
    {"upper_warning", &LimitRule::upperWarning},
    {"upper_critical", &LimitRule::upperCritical},
}};

// Beside the bounds.
constexpr std::array<std::string_view, 3> kSubjects{"sensor", "kind", "sp"};

constexpr std::array<std::string_view, 1> kTopKeys{"limit"};

std::vector<std::string_view> RuleKeys() {
  std::vector<std::string_view> keys(kSubjects.begin(), kSubjects.end());
  for (const BoundKey& bound : kBounds) {
    keys.push_back(bound.key);
  }
  return keys;
}

std::string Place(const std::string& name, const toml::source_region& region) {
  return text::EscapeForPeople(name) + ": line " + std::to_string(region.begin.line);
}

class Reader {
 public:
  explicit Reader(const std::string& name) : fName(&name) {}

  [[nodiscard]] report::Limits Read(const toml::table& table) const {
    RefuseOtherKeys(table, kTopKeys);
    report::Limits limits;
    const toml::node* const rules = table.get("limit");
    if (rules == nullptr) {
      throw text::InputError(text::EscapeForPeople(*fName) +
                             ": has no [[limit]], and so no limits");
    }
    const toml::array* const array = rules->as_array();
    if (array == nullptr) {
      Refuse(*rules, "limit is an array of tables: [[limit]]");
    }
    if (array->empty()) {
      Refuse(*rules, "there is no rule in limit");
    }
    for (const toml::node& rule : *array) {
      const toml::table* const one = rule.as_table();
      if (one == nullptr) {
        Refuse(rule, "limit is an array of tables: [[limit]]");
      }
      limits.push_back(ReadRule(*one));
    }
    return limits;
  }

 private:
  [[noreturn]] void Refuse(const toml::node& node, const std::string& expected) const {
    throw text::InputError(Place(*fName, node.source()) + ": " + expected);
  }

  void RefuseOtherKeys(const toml::table& table, std::span<const std::string_view> known) const {
    for (const auto& [key, value] : table) {
      if (std::ranges::find(known, key.str()) == known.end()) {
        throw text::InputError(Place(*fName, key.source()) + ": there is no key " +
                               text::Quoted(key.str()) + DidYouMean(key.str(), known));
      }
    }
  }

  [[nodiscard]] LimitRule ReadRule(const toml::table& table) const {
    RefuseOtherKeys(table, RuleKeys());
    LimitRule rule;
    if (const toml::node* const sensor = table.get("sensor")) {
      rule.sensor = Text(*sensor, "sensor is a text: the name of sensors, with * and ?");
    }
    if (const toml::node* const kind = table.get("kind")) {
      rule.kind = Kind(*kind);
    }
    if (const toml::node* const sp = table.get("sp")) {
      rule.sp = Sp(*sp);
    }
    const Bound* lower = nullptr;
    for (const auto& [key, bound] : kBounds) {
      if (const toml::node* const node = table.get(key)) {
        rule.*bound = Number(*node, key);
        if (lower != nullptr && (rule.*bound)->value < lower->value) {
          Refuse(*node, std::string(key) + " is lower than the bound below it, " + lower->text);
        }
        lower = &*(rule.*bound);
      }
    }
    if (lower == nullptr) {
      Refuse(table, "a limit has at least one bound: " + text::OrList(kBounds, &BoundKey::key));
    }
    return rule;
  }

  [[nodiscard]] std::string Text(const toml::node& node, const std::string& expected) const {
    const auto text = node.value_exact<std::string>();
    if (!text) {
      Refuse(node, expected);
    }
    return *text;
  }

  [[nodiscard]] report::SensorKind Kind(const toml::node& node) const {
    const std::string expected = "kind is " + report::SensorKindNames();
    const auto kind = report::FindSensorKind(Text(node, expected));
    if (!kind) {
      Refuse(node, expected);
    }
    return *kind;
  }

  [[nodiscard]] int Sp(const toml::node& node) const {
    const auto sp = node.value_exact<std::int64_t>();
    if (!sp || *sp < 1 || *sp > report::kHighestProcessor) {
      Refuse(node, "sp is the number of a service processor, 1 to 255");
    }
    return static_cast<int>(*sp);
  }

  [[nodiscard]] Bound Number(const toml::node& node, std::string_view key) const {
    const auto value = node.value<double>();
    if (!node.is_number() || !value || !std::isfinite(*value)) {
      Refuse(node, std::string(key) + " is a number, in the unit in which reports show the sensor");
    }
    std::array<char, 32> text{};
    const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), *value);
    return {*value, std::string(text.data(), end)};
  }

  const std::string* fName;
};

void RefuseLongLines(std::string_view text, const std::string& name) {
  std::size_t line = 1;
  for (std::size_t begin = 0; begin < text.size(); ++line) {
    const std::size_t end = std::min(text.find('\n', begin), text.size());
    if (end - begin > kLongestLine) {
      throw text::InputError(text::EscapeForPeople(name) + ": line " + std::to_string(line) +
                             ": a line has at most " + std::to_string(kLongestLine) + " bytes");
    }
    begin = end + 1;
  }
}

}  // namespace

report::Limits ParseLimits(std::string_view text, const std::string& name) {
  RefuseLongLines(text, name);
  try {
    return Reader(name).Read(toml::parse(text));
  } catch (const toml::parse_error& error) {
    throw text::InputError(Place(name, error.source()) + ": " +
                           text::Printable(std::string(error.description())));
  }
}

report::Limits ReadLimits(const std::filesystem::path& file) {
  const std::string name = InputName(file);
  const std::string text = ReadWholeInput(file, kMostLimitsBytes);
  if (text.size() > kMostLimitsBytes) {
    throw text::InputError(text::EscapeForPeople(name) + ": a file of limits has at most 1 MiB");
  }
  return ParseLimits(text, name);
}

}  // namespace strake::app
