// One reply on its way into the caller's buffer.
#pragma once

#include "platform/boundary/BoundaryObserver.h"
#include "platform/server/ServerDescription.h"

#include <span>

namespace strake::platform {

struct Delivery {
  bool result = false;
  int length = 0;                        // as reported
  std::span<const unsigned char> bytes;  // those written, in the caller's buffer
};

// The reply that a fault puts in the place of the service processor's; null
// when the service processor shall answer.
const Reply* FaultReply(Fault fault);

// Writes at most `size` bytes of the reply, and the length as it reports it.
// A null reply is a command that fails.
Delivery Deliver(const Reply* reply, unsigned char* buffer, int size, int* length);

}  // namespace strake::platform
