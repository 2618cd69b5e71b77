// Finds instances that no key property tells apart.
#pragma once

#include "cim/StoredInstance.h"

#include <cstddef>
#include <span>
#include <string>
#include <vector>

namespace strake::cim {

// Instances of one class whose key properties are equal.
struct EqualKeys {
  const SchemaClass* schema = nullptr;  // never null
  std::string keys;                     // NAME=VALUE, ..., for people
  std::size_t count = 0;
};

// In the order of the first instance of each.
std::vector<EqualKeys> FindEqualKeys(std::span<const StoredInstance> instances);

}  // namespace strake::cim
