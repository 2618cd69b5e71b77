#include "plugin/spaccess/CommandSenders.h"

#include "plugin/frame/base/LogLine.h"
#include "plugin/spaccess/DotIdentifier.h"

#include <algorithm>
#include <memory>

namespace strake {
namespace {

void LogSent(const void* gate, const SenderWording& wording, const DotCommandCall& call,
             const ByteListText& text, int replyLength) {
  // The address of the status, not the status itself.
  const AddressText statusAddress{call.status};
  if (wording.namesInstance) {
    LogLine(gate, 4, wording.sent, text, " Status: ", statusAddress,
            ". ReturnDataLen:", replyLength, " for spInstance#: ", call.sp, ".");
  } else {
    LogLine(gate, 4, wording.sent, text, " Status: ", statusAddress,
            ". ReturnDataLen:", replyLength, ".");
  }
}

// What may be shown of a Kestle reply: the length is the SP's word, the buffer
// the caller's.
std::span<const unsigned char> Shown(const unsigned char* reply, int replyLength) {
  const int shown = std::clamp(replyLength, 0, static_cast<int>(kKestleReplySize));
  return {reply, static_cast<std::size_t>(shown)};
}

}  // namespace

int SendDotCommand(const void* gate, const SenderWording& wording, const DotCommandCall& call) {
  LogLine(gate, 4, wording.entered);
  int replyLength = 0;
  *call.status = 0;
  const ByteListText text =
      DotCommandText({call.identifier, static_cast<std::size_t>(call.identifierLength)});
  dotCmd command(call.commandClass, call.identifierLength, call.secondLength, call.identifier,
                 call.extraData);
  // Asks what kind of SP this is, not whether the command exists.
  if (call.spLib->isDotcommand()) {
    const bool sent =
        call.spLib->sendDotCommand(&command, call.reply, &replyLength, call.sp, call.replySize);
    *call.status = sent ? 1 : 0;
    LogSent(gate, wording, call, text, replyLength);
    if (!sent) {
      LogLine(gate, 3,
              "Unable to communicate with system management hardware for dot command: ", text);
    }
  } else {
    LogLine(gate, 3, "This command is not a valid dot command: ", text);
  }
  LogLine(gate, 4, wording.completed);
  return replyLength;
}

int SendKestleCommand(const void* gate, const KestleCommandCall& call) {
  LogLine(gate, 4, "sendKestleCommand entered.");
  int replyLength = 0;
  auto command = std::make_unique<KestleCmd>(call.length, call.commandCode, call.expectedCode,
                                             call.checksum, call.commandData,
                                             call.commandDataLength, call.acknowledge, call.isRead);
  LogLine(gate, 4, "Sending Kestle command: Length = ", call.length, ", cmd = ", call.commandCode,
          ", expectedcmd = ", call.expectedCode, ", checksum = ", call.checksum,
          ", cmddataLen = ", call.commandDataLength, ", ack = ", call.acknowledge,
          ", isreadflag = ", call.isRead, ", ");
  const bool sent = call.spLib->sendKestleCommand(command.get(), &replyLength, call.reply);
  *call.status = sent ? 1 : 0;
  LogLine(gate, 4, "Result of Kestle cmd: Status: ", sent, ". ReturnDataLen:", replyLength, ".");
  if (!sent) {
    LogLine(gate, 3, "Kestle command status = fail.");
  }
  LogLine(gate, 4,
          "h8Data = ", ByteListText{.bytes = Shown(call.reply, replyLength), .behind = ' '});
  command.reset();
  LogLine(gate, 4, "sendKestleCommand completed.");
  return replyLength;
}

}  // namespace strake
