// One reply on its way into the caller's buffer.
#pragma once

#include <cstddef>
#include <span>

namespace strake::platform {

enum class Fault;
struct Reply;

struct Delivery {
  bool result = false;
  int length = 0;                        // as the caller finds it
  std::span<const unsigned char> bytes;  // those written, in the caller's buffer
};

// The reply that a fault puts in the place of the service processor's; null
// when the service processor shall answer.
const Reply* FaultReply(Fault fault);

// Where a caller wants its reply.
struct ReplyPlace {
  unsigned char* buffer = nullptr;
  int size = 0;
  int* length = nullptr;
  bool lengthStays = false;  // nothing is written there

  [[nodiscard]] std::span<unsigned char> Room() const {
    if (buffer == nullptr || size <= 0) {
      return {};
    }
    return {buffer, static_cast<std::size_t>(size)};
  }
};

// Writes as many bytes of the reply as there is room for, and the length as the
// reply reports it. A null reply is a command that fails.
Delivery Deliver(const Reply* reply, const ReplyPlace& place);

}  // namespace strake::platform
