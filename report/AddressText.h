// An IP address as an administrator writes it down.
#pragma once

#include <string>

namespace strake::report {

// "10.0.0.5" and "255.255.255.0" give "10.0.0.5/24 (255.255.255.0)"; a mask that
// is no row of ones stands alone: "10.0.0.5 mask 255.0.255.0".
std::string AddressWithMask(const std::string& address, const std::string& mask);

}  // namespace strake::report
