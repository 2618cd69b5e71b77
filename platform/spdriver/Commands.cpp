// The two kinds of command, and how many of them are alive.
#include "platform/spdriver/DriverControl.h"
#include "plugin/spaccess/SPLibrary.h"

namespace {

long gLiveDotCommands = 0;
long gLiveKestleCommands = 0;

}  // namespace

dotCmd::dotCmd(unsigned char commandClass, int identifierLength, int secondLength,
               const unsigned char* identifier, const unsigned char* extraData)
    : fIdentifier(identifier),
      fExtraData(extraData),
      fIdentifierLength(identifierLength),
      fSecondLength(secondLength),
      fCommandClass(commandClass) {
  ++gLiveDotCommands;
}

dotCmd::~dotCmd() { --gLiveDotCommands; }

KestleCmd::KestleCmd(unsigned char totalLength, unsigned char commandCode,
                     unsigned char expectedCode, unsigned char checksum, unsigned char* commandData,
                     int commandDataLength, bool acknowledge, bool isRead)
    : fCommandData(commandData),
      fCommandDataLength(commandDataLength),
      fTotalLength(totalLength),
      fCommandCode(commandCode),
      fExpectedCode(expectedCode),
      fChecksum(checksum),
      fAcknowledge(acknowledge),
      fIsRead(isRead) {
  ++gLiveKestleCommands;
}

KestleCmd::~KestleCmd() { --gLiveKestleCommands; }

namespace strake::platform {

long LiveDotCommands() { return gLiveDotCommands; }
long LiveKestleCommands() { return gLiveKestleCommands; }

}  // namespace strake::platform
