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
  std::string className;
  std::string keys;  // NAME=VALUE, ..., for people
  std::size_t count = 0;
};

// The instances are of classes of the catalogue.
std::vector<EqualKeys> FindEqualKeys(std::span<const StoredInstance> instances);

}  // namespace strake::cim
