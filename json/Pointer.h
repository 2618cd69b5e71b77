// JSON pointers: where in a text a value stands.
#pragma once

#include <string>
#include <string_view>

namespace strake::json {

void AppendToPointer(std::string& pointer, std::string_view token);

// For a message; the whole text, whose pointer is empty, is "the top level".
std::string PrintablePointer(std::string_view pointer);

}  // namespace strake::json
