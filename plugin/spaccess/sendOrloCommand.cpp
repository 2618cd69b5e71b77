// The dot-command sender of the sensor collector.
#include "plugin/environ/TSPEnviron.h"
#include "plugin/spaccess/DotCommandSender.h"

namespace strake {

int TSPEnviron::sendOrloCommand(unsigned char commandClass, int identifierLength, int secondLength,
                                const unsigned char* identifier, const unsigned char* extraData,
                                unsigned char* reply, int replySize, unsigned char* status,
                                NVELKZEV20::SPLibrary* spLib) {
  static constexpr SenderWording kWording = {
      .entered = "sendOrloCommand entered.",
      .sent = "Sent Orlo command: ",
      .completed = "sendOrloCommand completed.",
      .namesInstance = false,
  };
  return SendDotCommand(fLogSwitch, kWording,
                        {.commandClass = commandClass,
                         .identifierLength = identifierLength,
                         .secondLength = secondLength,
                         .identifier = identifier,
                         .extraData = extraData,
                         .reply = reply,
                         .replySize = replySize,
                         .status = status,
                         .spLib = spLib,
                         .sp = static_cast<unsigned char>(fNode)});
}

}  // namespace strake
