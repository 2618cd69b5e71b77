#include "platform/spdriver/Delivery.h"

#include <algorithm>
#include <cstddef>

namespace strake::platform {
namespace {

const Reply& FailedReply() {
  static const Reply kReply{{}, 0, false};
  return kReply;
}

const Reply& EmptyReply() {
  static const Reply kReply{{}, 0, true};
  return kReply;
}

}  // namespace

const Reply* FaultReply(Fault fault) {
  if (fault == Fault::SendFails) {
    return &FailedReply();
  }
  if (fault == Fault::SendIsEmpty) {
    return &EmptyReply();
  }
  return nullptr;
}

Delivery Deliver(const Reply* reply, unsigned char* buffer, int size, int* length) {
  const Reply& given = reply == nullptr ? FailedReply() : *reply;
  if (length != nullptr) {
    *length = given.length;
  }
  Delivery delivery{given.succeeds, given.length, {}};
  if (buffer == nullptr || size <= 0) {
    return delivery;
  }
  const std::size_t count = std::min(given.bytes.size(), static_cast<std::size_t>(size));
  std::copy_n(given.bytes.begin(), count, buffer);
  delivery.bytes = {buffer, count};
  return delivery;
}

}  // namespace strake::platform
