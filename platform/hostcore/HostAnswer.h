// Gives one of the host's text answers, or its exception.
#pragma once

#include "platform/boundary/BoundaryObserver.h"
#include "platform/server/ServerDescription.h"

#include <string>

namespace strake::platform {

std::string GiveAnswer(BoundaryCall call, const HostAnswer& answer);

}  // namespace strake::platform
