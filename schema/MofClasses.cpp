#include "schema/MofClasses.h"

#include "cim/Catalogue.h"
#include "text/EscapeMof.h"

namespace strake::schema {
namespace {

constexpr std::string_view kQualifiers =
    "Qualifier Key : boolean = false, Scope(property, reference),\n"
    "    Flavor(DisableOverride, ToSubclass);\n"
    "Qualifier Description : string = null, Scope(any),\n"
    "    Flavor(EnableOverride, ToSubclass, Translatable);\n"
    "Qualifier MaxLen : uint32 = null, Scope(property, method, parameter),\n"
    "    Flavor(EnableOverride, ToSubclass);\n"
    "Qualifier Units : string = null, Scope(property, method, parameter),\n"
    "    Flavor(EnableOverride, ToSubclass, Translatable);\n";

void AppendText(std::string& out, std::string_view qualifier, std::string_view text) {
  out += qualifier;
  out += "(\"";
  out += text::EscapeMof(text);
  out += "\")";
}

void AppendProperty(std::string& out, const cim::SchemaProperty& property) {
  out += "    [";
  if (property.role == cim::Role::Key) {
    out += "Key, ";
  }
  AppendText(out, "Description", property.description);
  if (property.maximumLength != 0) {
    out += ", MaxLen(" + std::to_string(property.maximumLength) + ')';
  }
  if (!property.units.empty()) {
    AppendText(out, ", Units", property.units);
  }
  out += "]\n    ";
  out += cim::CimTypeName(property.type);
  out += ' ';
  out += property.name;
  out += ";\n";
}

void AppendClass(std::string& out, const cim::SchemaClass& schema) {
  out += "\n[";
  AppendText(out, "Description", schema.description);
  out += "]\nclass ";
  out += schema.name;
  out += " {\n";
  const char* separator = "";
  for (const cim::SchemaProperty& property : schema.properties) {
    out += separator;
    AppendProperty(out, property);
    separator = "\n";
  }
  out += "};\n";
}

}  // namespace

std::string MofClasses() {
  std::string text = "// The classes that Strake reports.\n\n";
  text += kQualifiers;
  for (const cim::SchemaClass& schema : cim::SchemaClasses()) {
    AppendClass(text, schema);
  }
  return text;
}

}  // namespace strake::schema
