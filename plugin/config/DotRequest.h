// One dot command of a configuration builder, and the reply that it brought.
#pragma once

#include "plugin/config/ServiceProcessor.h"
#include "plugin/spaccess/ByteView.h"

#include <array>
#include <cstddef>
#include <span>

namespace strake {

class TStrakePluginCallbacks;

// Sends `identifier` through the callbacks' sender. True when data came: the
// command was carried out and its reply is not empty.
bool SendRequest(TStrakePluginCallbacks& callbacks, const ServiceProcessor& sp,
                 std::span<const unsigned char> identifier, std::span<unsigned char> reply,
                 int& replyLength);

template <std::size_t Size>
class ReplyBuffer {
 public:
  // Leaves what the buffer holds where the reply does not reach.
  bool SendUncleared(TStrakePluginCallbacks& callbacks, const ServiceProcessor& sp,
                     std::span<const unsigned char> identifier) {
    fIsClear = false;
    return SendRequest(callbacks, sp, identifier, fBytes, fLength);
  }

  bool Send(TStrakePluginCallbacks& callbacks, const ServiceProcessor& sp,
            std::span<const unsigned char> identifier) {
    if (!fIsClear) {
      fBytes.fill(0);
    }
    return SendUncleared(callbacks, sp, identifier);
  }

  // The whole buffer: records are walked in it whatever length was reported.
  [[nodiscard]] ByteView Whole() const { return ByteView(fBytes); }
  // The bytes that the last reply is said to have brought.
  [[nodiscard]] ByteView Received() const { return ReceivedBytes(fBytes, fLength); }

 private:
  std::array<unsigned char, Size> fBytes{};
  bool fIsClear = true;
  int fLength = 0;
};

}  // namespace strake
