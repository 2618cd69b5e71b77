// The Kestle-command sender of the sensor collector.
#include "plugin/environ/TSPEnviron.h"
#include "plugin/spaccess/ByteView.h"
#include "plugin/spaccess/KestleReply.h"

#include <algorithm>
#include <memory>

namespace strake {
namespace {

// What may be shown of a reply: the length is the SP's word, the buffer ours.
std::span<const unsigned char> Shown(const unsigned char* reply, int replyLength) {
  const int shown = std::clamp(replyLength, 0, static_cast<int>(kKestleReplySize));
  return {reply, static_cast<std::size_t>(shown)};
}

}  // namespace

int TSPEnviron::sendKestleCommand(unsigned char length, unsigned char commandCode,
                                  unsigned char expectedCode, unsigned char checksum,
                                  unsigned char* commandData, int commandDataLength,
                                  bool acknowledge, bool isRead, unsigned char* reply,
                                  NVELKZEV20::SPLibrary* /*spLib*/, unsigned char* status) {
  LogLevel4("sendKestleCommand entered.");
  int replyLength = 0;
  auto command = std::make_unique<KestleCmd>(length, commandCode, expectedCode, checksum,
                                             commandData, commandDataLength, acknowledge, isRead);
  LogLevel4("Sending Kestle command: Length = ", length, ", cmd = ", commandCode,
            ", expectedcmd = ", expectedCode, ", checksum = ", checksum,
            ", cmddataLen = ", commandDataLength, ", ack = ", acknowledge,
            ", isreadflag = ", isRead, ", ");
  const bool sent = fSpLibrary->sendKestleCommand(command.get(), &replyLength, reply);
  *status = sent ? 1 : 0;
  LogLevel4("Result of Kestle cmd: Status: ", sent, ". ReturnDataLen:", replyLength, ".");
  if (!sent) {
    LogLevel3("Kestle command status = fail.");
  }
  LogLevel4("h8Data = ", ByteListText{.bytes = Shown(reply, replyLength), .behind = ' '});
  command.reset();
  LogLevel4("sendKestleCommand completed.");
  return replyLength;
}

}  // namespace strake
