// The table of the forms in which the classes and the reports are described.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace strake::schema {

struct Format {
  std::string_view name;
  std::string_view content;  // for help: "the eight classes for CIM tools"
  std::string (*write)();
};

std::span<const Format> Formats();

// Null when there is none of this name.
const Format* FindFormat(std::string_view name);

// For people: "mof, json-schema or markdown".
std::string FormatNames();

}  // namespace strake::schema
