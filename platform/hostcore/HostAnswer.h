// Gives one of the host's text answers, or its exception.
#pragma once

#include <string>

namespace strake::platform {

enum class BoundaryCall;
struct HostAnswer;

std::string GiveAnswer(BoundaryCall call, const HostAnswer& answer);

}  // namespace strake::platform
