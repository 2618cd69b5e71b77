// Finds and reads properties of a stored instance.
#pragma once

#include "cim/StoredInstance.h"
#include "cim/TCIMValueContent.h"

#include <string>
#include <string_view>
#include <variant>

namespace strake::report {

// Null when the property was not set.
const NVELKZEV20::TCIMValue* FindProperty(const cim::StoredInstance& instance,
                                          std::string_view name);

// Null when the property was not set or has another type.
template <typename Type>
const Type* FindPropertyOf(const cim::StoredInstance& instance, std::string_view name) {
  const NVELKZEV20::TCIMValue* const value = FindProperty(instance, name);
  return value == nullptr ? nullptr : std::get_if<Type>(&NVELKZEV20::TCIMValueContent::Of(*value));
}

// The value as a person reads it, safe to show.
std::string ValueForPeople(const NVELKZEV20::TCIMValue& value);

}  // namespace strake::report
