#include "json/Field.h"

#include "json/Pointer.h"
#include "text/InputError.h"
#include "text/Quote.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace strake::json {
namespace {

std::string Describe(const Value& value) {
  struct Describer {
    std::string operator()(std::nullptr_t /*none*/) const { return "null"; }
    std::string operator()(bool flag) const { return flag ? "true" : "false"; }
    std::string operator()(std::int64_t number) const { return std::to_string(number); }
    std::string operator()(std::uint64_t number) const { return std::to_string(number); }
    std::string operator()(double number) const { return nlohmann::json(number).dump(); }
    std::string operator()(const std::string& text) const { return text::Quoted(text); }
    std::string operator()(const Value::Array& /*items*/) const { return "an array"; }
    std::string operator()(const std::unique_ptr<Value::Object>& /*members*/) const {
      return "an object";
    }
  };
  return std::visit(Describer(), value.content);
}

std::string Join(std::initializer_list<std::string_view> keys) {
  std::string text;
  for (const std::string_view key : keys) {
    if (!text.empty()) {
      text += ", ";
    }
    text += key;
  }
  return text;
}

}  // namespace

Field::Field(const Value& value, const std::string& source) : fValue(&value), fSource(&source) {}

Field::Field(const Value& value, const Field& parent, std::string_view token)
    : fValue(&value), fSource(parent.fSource), fPointer(parent.fPointer) {
  AppendToPointer(fPointer, token);
}

bool Field::IsText() const { return std::holds_alternative<std::string>(fValue->content); }
bool Field::IsObject() const { return fValue->AsObject() != nullptr; }
bool Field::IsArray() const { return fValue->AsArray() != nullptr; }

const std::string& Field::Text() const {
  if (const auto* const text = std::get_if<std::string>(&fValue->content)) {
    return *text;
  }
  Refuse("a string");
}

bool Field::Flag() const {
  if (const auto* const flag = std::get_if<bool>(&fValue->content)) {
    return *flag;
  }
  Refuse("true or false");
}

int Field::Integer(int lowest, int highest) const {
  const auto* const number = std::get_if<std::int64_t>(&fValue->content);
  if (number == nullptr || *number < lowest || *number > highest) {
    Refuse("an integer from " + std::to_string(lowest) + " to " + std::to_string(highest));
  }
  return static_cast<int>(*number);
}

double Field::Number(int lowest, int highest) const {
  double number = lowest - 1.0;
  if (const auto* const integer = std::get_if<std::int64_t>(&fValue->content)) {
    number = static_cast<double>(*integer);
  } else if (const auto* const real = std::get_if<double>(&fValue->content)) {
    number = *real;
  }
  if (number < lowest || number > highest) {
    Refuse("a number from " + std::to_string(lowest) + " to " + std::to_string(highest));
  }
  return number;
}

const Value::Object& Field::Members() const {
  const Value::Object* const members = fValue->AsObject();
  if (members == nullptr) {
    Refuse("an object");
  }
  return *members;
}

const Value::Array& Field::Items() const {
  const Value::Array* const items = fValue->AsArray();
  if (items == nullptr) {
    Refuse("an array");
  }
  return *items;
}

void Field::AllowKeys(std::initializer_list<std::string_view> keys) const {
  for (const auto& [key, value] : Members()) {
    if (std::ranges::find(keys, key) == keys.end()) {
      RefuseGot("no key but " + Join(keys), text::Quoted(key));
    }
  }
}

std::optional<Field> Field::Find(const char* key) const {
  const auto found = Members().find(key);
  if (found == Members().end()) {
    return std::nullopt;
  }
  return Field(found->second, *this, key);
}

Field Field::Require(const char* key) const {
  std::optional<Field> found = Find(key);
  if (!found) {
    RefuseGot("the key " + text::Quoted(key), "none");
  }
  return *found;
}

void Field::ForEachMember(
    const std::function<void(const std::string& key, const Field& member)>& visit) const {
  for (const auto& [key, value] : Members()) {
    visit(key, Field(value, *this, key));
  }
}

std::size_t Field::ItemCount() const { return Items().size(); }

void Field::ForEachItem(const std::function<void(const Field& item)>& visit) const {
  std::size_t place = 0;
  for (const Value& item : Items()) {
    visit(Field(item, *this, std::to_string(place++)));
  }
}

void Field::Refuse(const std::string& expected) const { RefuseGot(expected, Describe(*fValue)); }

void Field::Refuse(const std::string& expected, const std::string& reason) const {
  RefuseGot(expected, Describe(*fValue) + " (" + reason + ")");
}

void Field::RefuseGot(const std::string& expected, const std::string& got) const {
  throw text::InputError(*fSource + ": at " + PrintablePointer(fPointer) + ": expected " +
                         expected + ", got " + got);
}

}  // namespace strake::json
