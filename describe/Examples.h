// Example values of what a description fills in, by the names that the plug-in has
// for its commands and the fields of their records.
#pragma once

#include "plugin/config/Records.h"

#include <string>
#include <string_view>

namespace strake::describe {

// The value's bytes. Addresses and names are of those that documentations use; a
// name without an example has an empty text, the address 0.0.0.0 or a zero.
std::string ExampleValue(std::string_view name, ValueDecoder decode);

}  // namespace strake::describe
