// Example values of what a description fills in, by the names that the plug-in has
// for its commands and the fields of their records.
#pragma once

#include "plugin/config/Records.h"

#include <span>
#include <string>
#include <string_view>

namespace strake::describe {

struct Example {
  std::string_view name;
  std::string_view value;  // a text, an address as people write it, else hexadecimal pairs
};

// Those that are no empty text, no address 0.0.0.0 and no zero.
std::span<const Example> Examples();

// The value's bytes. Addresses and names are of those that documentations use; a
// name without an example has an empty text, the address 0.0.0.0 or a zero.
std::string ExampleValue(std::string_view name, ValueDecoder decode);

}  // namespace strake::describe
