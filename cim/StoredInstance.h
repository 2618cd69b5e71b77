// A committed CIM instance as the host keeps it. It points into a catalogue: the
// host core library holds one and the command another, equal in content, so
// that classes are compared by their names.
#pragma once

#include "cim/Catalogue.h"
#include "cim/Value.h"

#include <string_view>
#include <vector>

namespace strake::cim {

struct StoredProperty {
  const SchemaProperty* schema = nullptr;  // never null
  Value value;

  friend bool operator==(const StoredProperty&, const StoredProperty&) = default;
};

struct StoredInstance {
  const SchemaClass* schema = nullptr;  // never null
  unsigned long number = 0;
  // In the order in which they were set; of the class' properties, each once.
  std::vector<StoredProperty> properties;

  friend bool operator==(const StoredInstance&, const StoredInstance&) = default;
};

// Both null when the property was not set.
const StoredProperty* FindProperty(const StoredInstance& instance, std::string_view name);
const Value* FindValue(const StoredInstance& instance, std::string_view name);

// Null when the property was not set or has another type.
template <typename Type>
const Type* FindValueOf(const StoredInstance& instance, std::string_view name) {
  const Value* const value = FindValue(instance, name);
  return value == nullptr ? nullptr : std::get_if<Type>(value);
}

}  // namespace strake::cim
