#include "report/InstanceText.h"

#include "report/AddressText.h"
#include "report/ValueForPeople.h"

#include <cstdint>

namespace strake::report {
namespace {

std::string JoinSystem(const std::string& name, const std::string& creationClassName) {
  return name + " (" + creationClassName + ")";
}

// Two properties that share the first one's row.
struct Pair {
  std::string_view property;
  std::string_view companion;
  std::string (*join)(const std::string& value, const std::string& companion);
};

constexpr Pair kPairs[] = {
    {"SystemName", "SystemCreationClassName", JoinSystem},
    {"HostIPAddress", "HostIPSubnetMask", AddressWithMask},
    {"DHCPAssignedIPAddress", "DHCPAssignedSubnetMask", AddressWithMask},
};

// In the group's heading, in the title, or in another property's row.
bool IsSaidElsewhere(const cim::StoredInstance& instance, const cim::StoredProperty& property) {
  const std::string_view name = property.schema->name;
  if (name == "SourceNode") {
    return SourceNode(instance).has_value();
  }
  if (name == "CreationClassName") {
    return cim::ToText(property.value) == instance.schema->name;
  }
  if (name == instance.schema->number) {
    return true;
  }
  for (const Pair& pair : kPairs) {
    if (name == pair.companion) {
      return cim::FindValue(instance, pair.property) != nullptr;
    }
  }
  return false;
}

Row RowOf(const cim::StoredInstance& instance, const cim::StoredProperty& property) {
  Row row{std::string(property.schema->label), ValueForPeople(property.value), &property};
  for (const Pair& pair : kPairs) {
    if (property.schema->name == pair.property) {
      row.companion = cim::FindProperty(instance, pair.companion);
      if (row.companion != nullptr) {
        row.value = pair.join(row.value, ValueForPeople(row.companion->value));
      }
    }
  }
  return row;
}

}  // namespace

std::optional<int> SourceNode(const cim::StoredInstance& instance) {
  const auto* const node = cim::FindValueOf<std::uint8_t>(instance, "SourceNode");
  return node == nullptr ? std::nullopt : std::optional<int>(*node);
}

std::string NumberedTitle(const cim::StoredInstance& instance) {
  std::string text(instance.schema->title);
  if (const cim::Value* const number = cim::FindValue(instance, instance.schema->number)) {
    text += ' ' + ValueForPeople(*number);
  }
  return text;
}

std::string InstanceTitle(const cim::StoredInstance& instance) {
  std::string text = NumberedTitle(instance) + " (";
  text += instance.schema->name;
  return text + ')';
}

std::vector<Row> InstanceRows(const cim::StoredInstance& instance) {
  std::vector<Row> rows;
  for (const cim::StoredProperty& property : instance.properties) {
    if (!IsSaidElsewhere(instance, property)) {
      rows.push_back(RowOf(instance, property));
    }
  }
  return rows;
}

}  // namespace strake::report
