#include "plugin/config/DotRequest.h"

#include "plugin/frame/TStrakePluginCallbacks.h"

namespace strake {

bool SendRequest(TStrakePluginCallbacks& callbacks, const ServiceProcessor& sp,
                 std::span<const unsigned char> identifier, std::span<unsigned char> reply,
                 int& replyLength) {
  static constexpr unsigned char kNoExtraData = 0;
  unsigned char status = 0;
  replyLength = callbacks.sendCommand(2, static_cast<int>(identifier.size()), 0, identifier.data(),
                                      &kNoExtraData, reply.data(), static_cast<int>(reply.size()),
                                      &status, sp.spLib, sp.index);
  return status != 0 && replyLength != 0;
}

}  // namespace strake
