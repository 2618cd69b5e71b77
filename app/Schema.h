// `strake schema`: what the classes and the JSON report are.
#pragma once

#include "schema/Formats.h"

#include <filesystem>
#include <optional>

namespace strake::app {

struct SchemaOptions {
  const schema::Format* format = schema::Formats().data();  // never null
  std::optional<std::filesystem::path> output;              // none, "-": standard output
};

// Throws os::OutputError.
void WriteSchema(const SchemaOptions& options);

}  // namespace strake::app
