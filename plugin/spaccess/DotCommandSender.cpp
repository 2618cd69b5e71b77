#include "plugin/spaccess/DotCommandSender.h"

#include "plugin/frame/LogLine.h"
#include "plugin/spaccess/DotCommandText.h"

#include <cstddef>

namespace strake {
namespace {

void LogSent(const void* gate, const SenderWording& wording, const DotCommandCall& call,
             const ByteListText& text, int replyLength) {
  // The status is told by its address, which is what readers of this trail
  // have always seen there.
  const AddressText statusAddress{call.status};
  if (wording.namesInstance) {
    LogLine(gate, 4, wording.sent, text, " Status: ", statusAddress,
            ". ReturnDataLen:", replyLength, " for spInstance#: ", call.sp, ".");
  } else {
    LogLine(gate, 4, wording.sent, text, " Status: ", statusAddress,
            ". ReturnDataLen:", replyLength, ".");
  }
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

}  // namespace strake
