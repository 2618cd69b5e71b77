// The CIM schema that the repository holds instances against.
#pragma once

#include <span>
#include <string_view>

namespace strake::cim {

enum class CimType { String, Sint32, Uint16, Uint8, DateTime };

struct SchemaProperty {
  std::string_view name;
  CimType type = CimType::String;
  bool isKey = false;
};

struct SchemaClass {
  std::string_view name;
  std::span<const SchemaProperty> properties;
};

// The eight classes, in the order in which the system lists them.
std::span<const SchemaClass> SchemaClasses();
const SchemaClass* FindSchemaClass(std::string_view name);
const SchemaProperty* FindSchemaProperty(const SchemaClass& schemaClass, std::string_view name);
// "string", "sint32", "uint16", "uint8", "datetime".
std::string_view CimTypeName(CimType type);

}  // namespace strake::cim
