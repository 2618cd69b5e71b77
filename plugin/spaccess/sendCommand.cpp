// The dot-command sender of the configuration builders.
#include "plugin/frame/TStrakePluginCallbacks.h"
#include "plugin/spaccess/DotCommandSender.h"

namespace strake {

int TStrakePluginCallbacks::sendCommand(unsigned char commandClass, int identifierLength,
                                        int secondLength, const unsigned char* identifier,
                                        const unsigned char* extraData, unsigned char* reply,
                                        int replySize, unsigned char* status,
                                        NVELKZEV20::SPLibrary* spLib, unsigned char sp) {
  static const SenderWording kWording = {
      .entered = "TStrakePluginCallbacks::sendCommand entered.",
      .completed = "TStrakePluginCallbacks::sendCommand completed.",
      .sent = "Sent command: ",
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
