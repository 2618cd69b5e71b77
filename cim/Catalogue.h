// The catalogue: the classes that the system publishes, with all that anybody
// needs to know of them. Each class has one row, each property one row within
// it (NetworkClasses.h, DialClasses.h, SensorAndSystemClasses.h).
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace strake::cim {

enum class CimType : std::uint8_t { String, Sint32, Uint16, Uint8, DateTime };

// A key is no secret: what tells instances apart is reported as it is.
enum class Role : std::uint8_t { Plain, Key, Secret };

// Which query brings a class. A query brings the classes of one group alone, of
// the first one here that it asks for.
enum class QueryGroup : std::uint8_t { Network, Dial, Sensors, ComputerSystem };
inline constexpr std::array kQueryGroups{QueryGroup::Network, QueryGroup::Dial, QueryGroup::Sensors,
                                         QueryGroup::ComputerSystem};

// Texts of the catalogue are plain ASCII without double quotes and backslashes.
struct SchemaProperty {
  std::string_view name;
  std::string_view label;  // in reports for people
  std::string_view description;
  CimType type = CimType::String;
  Role role = Role::Plain;
  std::string_view units = {};    // empty: it has none
  std::size_t maximumLength = 0;  // of a text, in characters; 0: its form does not fix one
};

struct SchemaClass {
  std::string_view name;
  std::string_view shortName;  // for the command line, in lower case
  std::string_view title;
  std::string_view description;
  QueryGroup group = QueryGroup::Network;
  // The property that numbers the instances of one node; empty: none does.
  std::string_view number;
  std::span<const SchemaProperty> properties;
};

// No class has more properties.
inline constexpr std::size_t kMostProperties = 64;

// In the order in which the system lists them.
std::span<const SchemaClass> SchemaClasses();
// Of one group, in the same order.
std::vector<std::string> ClassNamesOf(QueryGroup group);

// Null when there is none of exactly this name.
const SchemaClass* FindSchemaClass(std::string_view name);
// By its name or its short name.
const SchemaClass* FindClassByAnyName(std::string_view name);
const SchemaProperty* FindSchemaProperty(const SchemaClass& schemaClass, std::string_view name);

// "string", "sint32", "uint16", "uint8", "datetime".
std::string_view CimTypeName(CimType type);

}  // namespace strake::cim
