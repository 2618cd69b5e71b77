// The smallest SP driver library: one Orlo card that knows what time it is.
#include "plugin/spaccess/SPLibrary.h"

#include <algorithm>
#include <string_view>

struct dotCmdContent {
  static std::string_view Identifier(const dotCmd& command) {
    return {reinterpret_cast<const char*>(command.fIdentifier),
            static_cast<std::size_t>(command.fIdentifierLength)};
  }
};

dotCmd::dotCmd(unsigned char commandClass, int identifierLength, int secondLength,
               const unsigned char* identifier, const unsigned char* extraData)
    : fIdentifier(identifier),
      fExtraData(extraData),
      fIdentifierLength(identifierLength),
      fSecondLength(secondLength),
      fCommandClass(commandClass) {}
dotCmd::~dotCmd() {}

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
      fIsRead(isRead) {}
KestleCmd::~KestleCmd() {}

namespace NVELKZEV20 {

SPLibrary* SPLibrary::GetSplibraryInstance(int /*reserved*/) {
  static SPLibrary library;
  return &library;
}

bool SPLibrary::isDotcommand() { return true; }
bool SPLibrary::isKestle() { return false; }
bool SPLibrary::isQmvStop() { return false; }
bool SPLibrary::isDornlibrary() { return false; }
bool SPLibrary::checkSPComm() { return true; }
int SPLibrary::discoverSPs() { return 1; }

bool SPLibrary::sendDotCommand(dotCmd* command, unsigned char* reply, int* replyLength,
                               int /*spInstance*/, int replySize) {
  const std::string_view identifier = dotCmdContent::Identifier(*command);
  std::string_view answer;
  if (identifier == "\x01\x01") {
    answer = "\x01";
  } else if (identifier == "\x04\x04\x01") {
    answer = "\x18\x03\x12\x01\x09\x29\x1B";
  } else if (identifier == "\x04\x04\x02") {
    answer = {"\x3C\x00", 2};
  } else {
    return false;
  }
  const auto size = std::min(answer.size(), static_cast<std::size_t>(replySize));
  std::copy_n(answer.begin(), size, reply);
  *replyLength = static_cast<int>(answer.size());
  return true;
}

bool SPLibrary::sendKestleCommand(KestleCmd* /*command*/, int* /*replyLength*/,
                                  unsigned char* /*reply*/) {
  return false;
}

bool SPLibrary::buildDotCommandList(unsigned char* /*first*/, unsigned char* /*second*/,
                                    unsigned char* /*third*/) {
  return false;
}

int SPLibrary::getComponentdotCmdList(unsigned char* /*identifier*/, int /*identifierLength*/,
                                      unsigned char* /*first*/, unsigned char* /*second*/,
                                      unsigned char* /*third*/) {
  return -1;
}

}  // namespace NVELKZEV20
