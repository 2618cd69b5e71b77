// The dot-command sender of the configuration builders.
#include "plugin/frame/TStrakePluginCallbacks.h"
#include "plugin/spaccess/DotCommandSender.h"

namespace strake {

int TStrakePluginCallbacks::sendCommand(unsigned char commandClass, int identifierLength,
                                        int secondLength, const unsigned char* identifier,
                                        const unsigned char* extraData, unsigned char* reply,
                                        int replySize, unsigned char* status,
                                        NVELKZEV20::SPLibrary* spLib, unsigned char sp) {
  static constexpr SenderWording kWording = {
      .entered = "TStrakePluginCallbacks::sendCommand entered.",
      .sent = "Sent command: ",
      .completed = "TStrakePluginCallbacks::sendCommand completed.",
      .namesInstance = true,
  };
  return SendDotCommand(fProvider, kWording,
                        {.commandClass = commandClass,
                         .identifierLength = identifierLength,
                         .secondLength = secondLength,
                         .identifier = identifier,
                         .extraData = extraData,
                         .reply = reply,
                         .replySize = replySize,
                         .status = status,
                         .spLib = spLib,
                         .sp = sp});
}

}  // namespace strake
