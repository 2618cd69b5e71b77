#include "schema/MarkdownClasses.h"

#include "cim/Catalogue.h"

#include <vector>

namespace strake::schema {
namespace {

std::string Code(std::string_view text) {
  std::string code = "`";
  code += text;
  return code += '`';
}

std::string Row(const std::vector<std::string>& cells) {
  std::string row = "|";
  for (const std::string& cell : cells) {
    row += cell.empty() ? "" : " ";
    row += cell;
    row += " |";
  }
  return row + '\n';
}

std::string Head(const std::vector<std::string>& columns) {
  std::string line = "|";
  for (std::size_t i = 0; i < columns.size(); ++i) {
    line += "---|";
  }
  return Row(columns) + line + '\n';
}

// "key", "secret", a length, a unit: what there is of them.
std::string NotesOf(const cim::SchemaProperty& property) {
  std::string notes;
  const auto add = [&notes](const std::string& note) {
    notes += notes.empty() ? "" : ", ";
    notes += note;
  };
  if (property.role == cim::Role::Key) {
    add("key");
  }
  if (property.role == cim::Role::Secret) {
    add("secret");
  }
  if (property.maximumLength != 0) {
    add("at most " + std::to_string(property.maximumLength) + " characters");
  }
  if (!property.units.empty()) {
    add("in " + Code(property.units));
  }
  return notes;
}

std::string ClassSection(const cim::SchemaClass& schema) {
  std::string text = "\n## " + Code(schema.name) + "\n\n" + std::string(schema.description) +
                     " Short name: " + Code(schema.shortName) + ".\n\n" +
                     Head({"Property", "Type", "Content", "Notes"});
  for (const cim::SchemaProperty& property : schema.properties) {
    text += Row({Code(property.name), std::string(cim::CimTypeName(property.type)),
                 std::string(property.description), NotesOf(property)});
  }
  return text;
}

}  // namespace

std::string MarkdownClassTable() {
  std::string text = Head({"Short name", "Class", "Content"});
  for (const cim::SchemaClass& schema : cim::SchemaClasses()) {
    text += Row({Code(schema.shortName), Code(schema.name), std::string(schema.description)});
  }
  return text;
}

std::string MarkdownClasses() {
  std::string text =
      "# Classes\n\n"
      "What Strake reports, with the names and types that CIM tools know it by. This page is\n"
      "what `strake schema --format markdown` writes.\n\n"
      "A key tells instances apart. A secret is written as `********` unless it is asked for.\n\n" +
      MarkdownClassTable();
  for (const cim::SchemaClass& schema : cim::SchemaClasses()) {
    text += ClassSection(schema);
  }
  return text;
}

}  // namespace strake::schema
