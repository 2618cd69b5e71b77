// Reads what a CIM value holds, for the host that stores it.
#pragma once

#include "plugin/host/TCIMValue.h"

#include <cstdint>
#include <string>
#include <variant>

namespace NVELKZEV20 {

struct TCIMValueContent {
  using Content = std::variant<std::monostate, std::string, std::int32_t, std::uint16_t,
                               std::uint8_t, TCIMDateTime>;
  static const Content& Of(const TCIMValue& value) { return value.fContent; }
};

}  // namespace NVELKZEV20
