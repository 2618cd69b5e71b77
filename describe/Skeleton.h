// Servers to begin a description with: everything that the plug-in asks for has
// an answer of the right form, and every value is a neutral one.
#pragma once

#include "platform/server/ServerDescription.h"

#include <string>

namespace strake::describe {

// One Orlo card with one network interface, dial-out entry and login.
platform::ServerDescription OrloSkeleton(const std::string& machineTypeModel);

// The lists of the machine's family, with every sensor that it can have. The
// machine has a Tavit processor (findings::FindTavitFamily).
platform::ServerDescription TavitSkeleton(const std::string& machineTypeModel);

}  // namespace strake::describe
