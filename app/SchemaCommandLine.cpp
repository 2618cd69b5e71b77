// The options of `strake schema`.
#include "app/Subcommands.h"
#include "text/OrList.h"

namespace strake::app {
namespace {

constexpr const char* kSchemaExamples =
    R"(Examples:
  strake schema                         the classes for CIM tools, in MOF
  strake schema --format json-schema --output report.schema.json
  strake schema --format markdown)";

}  // namespace

Subcommand AddSchema(CLI::App& app, SchemaOptions& options) {
  Subcommand command(app, "schema", "Describe the classes and the JSON report", kSchemaExamples);
  std::string contents;
  for (const schema::Format& format : schema::Formats()) {
    contents.append(contents.empty() ? "" : ", ").append(format.name);
    contents.append(" (").append(format.content).append(1, ')');
  }
  command
      .AddValue(
          "--format", "FORMAT",
          contents + "; default: " + std::string(schema::Formats().front().name),
          [&options](const std::string& value) { options.format = schema::FindFormat(value); })
      .OneOf(text::Names(schema::Formats(), &schema::Format::name), "format");
  command.AddFile("--output", "Where the text goes; default: standard output", options.output);
  return command;
}

}  // namespace strake::app
