// The two kinds of command, and how many of them are alive.
#include "platform/spdriver/DriverControl.h"
#include "plugin/spaccess/SPLibrary.h"

namespace {

struct LiveCommands {
  long dot = 0;
  long kestle = 0;
};

LiveCommands& Live() {
  static LiveCommands live;
  return live;
}

}  // namespace

dotCmd::dotCmd(unsigned char commandClass, int identifierLength, int secondLength,
               const unsigned char* identifier, const unsigned char* extraData)
    : fIdentifier(identifier),
      fExtraData(extraData),
      fIdentifierLength(identifierLength),
      fSecondLength(secondLength),
      fCommandClass(commandClass) {
  ++Live().dot;
}

dotCmd::~dotCmd() { --Live().dot; }

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
  ++Live().kestle;
}

KestleCmd::~KestleCmd() { --Live().kestle; }

namespace strake::platform {

long LiveDotCommands() { return Live().dot; }
long LiveKestleCommands() { return Live().kestle; }

}  // namespace strake::platform
