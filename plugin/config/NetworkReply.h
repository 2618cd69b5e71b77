// The reply buffer of the network commands.
#pragma once

#include "plugin/config/DotRequest.h"

namespace strake {

using NetworkReply = ReplyBuffer<256>;

}  // namespace strake
