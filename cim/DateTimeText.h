// Reads the CIM text form of a date-time, the inverse of
// TCIMDateTime::ToString.
#pragma once

#include "plugin/host/TCIMDateTime.h"

#include <string_view>

namespace strake::cim {

// Throws std::out_of_range for a text of another form and for a field that the
// host does not accept.
NVELKZEV20::TCIMDateTime ParseDateTime(std::string_view text);

}  // namespace strake::cim
