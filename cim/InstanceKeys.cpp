#include "cim/InstanceKeys.h"

#include <functional>

namespace strake::cim {
namespace {

// The value of a key; null when it was not set.
const Value* KeyValue(const StoredInstance& instance, const SchemaProperty& key) {
  for (const StoredProperty& property : instance.properties) {
    if (property.schema == &key) {
      return &property.value;
    }
  }
  return nullptr;
}

struct HashText {
  std::size_t operator()(const std::string& text) const { return std::hash<std::string>{}(text); }
  std::size_t operator()(const DateTime& dateTime) const {
    return std::hash<std::string_view>{}(dateTime.Text());
  }
  std::size_t operator()(int number) const { return static_cast<std::size_t>(number); }
};

// Calls the function with each key of the class.
template <typename Function>
void ForEachKey(const SchemaClass& schema, const Function& function) {
  for (const SchemaProperty& property : schema.properties) {
    if (property.role == Role::Key) {
      function(property);
    }
  }
}

}  // namespace

std::size_t HashKeys::operator()(const StoredInstance* instance) const {
  std::size_t hash = std::hash<const SchemaClass*>{}(instance->schema);
  ForEachKey(*instance->schema, [&](const SchemaProperty& key) {
    const Value* const value = KeyValue(*instance, key);
    hash = hash * 31 + (value == nullptr ? 1 : std::visit(HashText{}, *value));
  });
  return hash;
}

bool HaveEqualKeys::operator()(const StoredInstance* one, const StoredInstance* other) const {
  if (one->schema != other->schema) {
    return false;
  }
  bool areEqual = true;
  ForEachKey(*one->schema, [&](const SchemaProperty& key) {
    const Value* const value = KeyValue(*one, key);
    const Value* const otherValue = KeyValue(*other, key);
    areEqual = areEqual && (value == nullptr || otherValue == nullptr ? value == otherValue
                                                                      : *value == *otherValue);
  });
  return areEqual;
}

std::string DescribeKeys(const StoredInstance& instance) {
  std::string text;
  ForEachKey(*instance.schema, [&](const SchemaProperty& key) {
    if (const Value* const value = KeyValue(instance, key)) {
      text += text.empty() ? "" : ", ";
      text += key.name;
      text += '=';
      text += ToText(*value);
    }
  });
  return text;
}

}  // namespace strake::cim
