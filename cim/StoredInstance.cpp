#include "cim/StoredInstance.h"

namespace strake::cim {

const Value* FindValue(const StoredInstance& instance, std::string_view name) {
  for (const StoredProperty& property : instance.properties) {
    if (property.schema->name == name) {
      return &property.value;
    }
  }
  return nullptr;
}

}  // namespace strake::cim
