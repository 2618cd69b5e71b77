// The first thing that every stand-in's call does.
#pragma once

#include "platform/boundary/BoundaryObserver.h"

#include <new>
#include <stdexcept>

namespace strake::platform {

// Asks the observer what the call shall do. Raises the faults that are
// exceptions; the others are for the call to show, as far as it can.
inline Fault BeginCall(BoundaryObserver* observer, BoundaryCall call) {
  if (observer == nullptr) {
    return Fault::None;
  }
  const Fault fault = observer->BeforeCall(call);
  if (fault == Fault::StandardException) {
    throw std::runtime_error("injected fault");
  }
  if (fault == Fault::OtherException) {
    throw int{1};
  }
  if (fault == Fault::OutOfMemory) {
    throw std::bad_alloc();
  }
  return fault;
}

}  // namespace strake::platform
