#include "platform/server/Field.h"

#include "platform/server/JsonPointer.h"
#include "platform/server/ServerDescription.h"
#include "text/Quote.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace strake::platform {
namespace {

using nlohmann::json;

std::string Describe(const json& value) {
  switch (value.type()) {
    case json::value_t::object:
      return "an object";
    case json::value_t::array:
      return "an array";
    case json::value_t::string:
      return text::Quoted(value.get_ref<const std::string&>());
    default:
      return value.dump();
  }
}

// Empty when the value is no integer or does not fit.
std::optional<std::int64_t> IntegerOf(const json& value) {
  if (value.is_number_unsigned()) {
    const auto number = value.get<std::uint64_t>();
    if (number > static_cast<std::uint64_t>(INT64_MAX)) {
      return std::nullopt;
    }
    return static_cast<std::int64_t>(number);
  }
  if (value.is_number_integer()) {
    return value.get<std::int64_t>();
  }
  return std::nullopt;
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

Field::Field(const json& value, const std::string& source) : fValue(&value), fSource(&source) {}

Field::Field(const json& value, const Field& parent, std::string_view token)
    : fValue(&value), fSource(parent.fSource), fPointer(parent.fPointer) {
  AppendToPointer(fPointer, token);
}

bool Field::IsText() const { return fValue->is_string(); }
bool Field::IsObject() const { return fValue->is_object(); }
bool Field::IsArray() const { return fValue->is_array(); }

const std::string& Field::Text() const {
  if (!IsText()) {
    Refuse("a string");
  }
  return fValue->get_ref<const std::string&>();
}

bool Field::Flag() const {
  if (!fValue->is_boolean()) {
    Refuse("true or false");
  }
  return fValue->get<bool>();
}

int Field::Integer(int lowest, int highest) const {
  const std::optional<std::int64_t> number = IntegerOf(*fValue);
  if (!number || *number < lowest || *number > highest) {
    Refuse("an integer from " + std::to_string(lowest) + " to " + std::to_string(highest));
  }
  return static_cast<int>(*number);
}

double Field::Number(int lowest, int highest) const {
  if (fValue->is_number()) {
    const auto number = fValue->get<double>();
    if (number >= lowest && number <= highest) {
      return number;
    }
  }
  Refuse("a number from " + std::to_string(lowest) + " to " + std::to_string(highest));
}

void Field::AllowKeys(std::initializer_list<std::string_view> keys) const {
  if (!IsObject()) {
    Refuse("an object");
  }
  for (const auto& [key, value] : fValue->items()) {
    if (std::ranges::find(keys, key) != keys.end()) {
      continue;
    }
    RefuseGot("no key but " + Join(keys), text::Quoted(key));
  }
}

std::optional<Field> Field::Find(const char* key) const {
  const auto found = fValue->find(key);
  if (found == fValue->end()) {
    return std::nullopt;
  }
  return Field(*found, *this, key);
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
  if (!IsObject()) {
    Refuse("an object");
  }
  for (const auto& [key, value] : fValue->items()) {
    visit(key, Field(value, *this, key));
  }
}

std::size_t Field::ItemCount() const {
  if (!IsArray()) {
    Refuse("an array");
  }
  return fValue->size();
}

void Field::ForEachItem(const std::function<void(const Field& item)>& visit) const {
  const std::size_t count = ItemCount();
  for (std::size_t i = 0; i < count; ++i) {
    visit(Field((*fValue)[i], *this, std::to_string(i)));
  }
}

void Field::Refuse(const std::string& expected) const { RefuseGot(expected, Describe(*fValue)); }

void Field::Refuse(const std::string& expected, const std::string& reason) const {
  RefuseGot(expected, Describe(*fValue) + " (" + reason + ")");
}

void Field::RefuseGot(const std::string& expected, const std::string& got) const {
  throw DescriptionError(*fSource + ": at " + PrintablePointer(fPointer) + ": expected " +
                         expected + ", got " + got);
}

}  // namespace strake::platform
