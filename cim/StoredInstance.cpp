#include "cim/StoredInstance.h"

namespace strake::cim {

const StoredProperty* FindProperty(const StoredInstance& instance, std::string_view name) {
  for (const StoredProperty& property : instance.properties) {
    if (property.schema->name == name) {
      return &property;
    }
  }
  return nullptr;
}

const Value* FindValue(const StoredInstance& instance, std::string_view name) {
  const StoredProperty* const property = FindProperty(instance, name);
  return property == nullptr ? nullptr : &property->value;
}

}  // namespace strake::cim
