#include "cim/EqualKeys.h"

#include "cim/Catalogue.h"
#include "cim/TCIMValueContent.h"

#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace strake::cim {
namespace {

using NVELKZEV20::TCIMDateTime;
using NVELKZEV20::TCIMValue;

std::string TextOf(const TCIMValue& value) {
  struct Texts {
    std::string operator()(const std::monostate& /*empty*/) const { return {}; }
    std::string operator()(const std::string& text) const { return text; }
    std::string operator()(const TCIMDateTime& dateTime) const { return dateTime.ToString(); }
    std::string operator()(int number) const { return std::to_string(number); }
  };
  return std::visit(Texts{}, NVELKZEV20::TCIMValueContent::Of(value));
}

// The values of a class' keys in schema order; a key that was not set is empty.
using KeyValues = std::vector<std::optional<std::string>>;

KeyValues KeysOf(const SchemaClass& schemaClass, const StoredInstance& instance) {
  KeyValues values;
  for (const SchemaProperty& property : schemaClass.properties) {
    if (!property.isKey) {
      continue;
    }
    const auto set = std::ranges::find(instance.properties, property.name,
                                       &std::pair<std::string, TCIMValue>::first);
    values.push_back(set == instance.properties.end() ? std::nullopt
                                                      : std::optional(TextOf(set->second)));
  }
  return values;
}

std::string Describe(const SchemaClass& schemaClass, const KeyValues& values) {
  std::string text;
  auto value = values.begin();
  for (const SchemaProperty& property : schemaClass.properties) {
    if (!property.isKey) {
      continue;
    }
    if (value->has_value()) {
      text += (text.empty() ? "" : ", ") + std::string(property.name) + '=' + **value;
    }
    ++value;
  }
  return text;
}

}  // namespace

std::vector<EqualKeys> FindEqualKeys(std::span<const StoredInstance> instances) {
  struct Group {
    const SchemaClass& schemaClass;
    const KeyValues& values;
    std::size_t count = 0;
  };
  std::map<std::pair<std::string_view, KeyValues>, std::size_t> places;
  std::vector<Group> groups;
  for (const StoredInstance& instance : instances) {
    // What is committed was created from a class of the schema.
    const SchemaClass& schemaClass = *FindSchemaClass(instance.className);
    const auto [place, isNew] = places.try_emplace(
        std::pair(schemaClass.name, KeysOf(schemaClass, instance)), groups.size());
    if (isNew) {
      groups.push_back({.schemaClass = schemaClass, .values = place->first.second});
    }
    ++groups[place->second].count;
  }
  std::vector<EqualKeys> found;
  for (const Group& group : groups) {
    if (group.count > 1) {
      found.push_back({std::string(group.schemaClass.name),
                       Describe(group.schemaClass, group.values), group.count});
    }
  }
  return found;
}

}  // namespace strake::cim
