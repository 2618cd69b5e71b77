#include "platform/spdriver/Delivery.h"

#include "platform/boundary/BoundaryObserver.h"
#include "platform/server/Reply.h"

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

Delivery Deliver(const Reply* reply, const ReplyPlace& place) {
  const Reply& given = reply == nullptr ? FailedReply() : *reply;
  Delivery delivery{given.succeeds, given.length, {}};
  if (place.length != nullptr) {
    if (!place.lengthStays) {
      *place.length = given.length;
    }
    delivery.length = *place.length;
  }
  const std::span<unsigned char> room = place.Room();
  const std::size_t count = std::min(given.bytes.size(), room.size());
  std::copy_n(given.bytes.begin(), count, room.begin());
  delivery.bytes = room.first(count);
  return delivery;
}

}  // namespace strake::platform
