#include "plugin/environ/TSPEnviron.h"

#include "plugin/spaccess/CommandSenders.h"

#include <exception>
#include <utility>

namespace strake {

TSPEnviron::TSPEnviron(boost::shared_ptr<NVELKZEV20::ICIMNamespace> cimNamespace,
                       NVELKZEV20::SPLibrary* spLibrary, const void* logSwitch)
    : fNamespace(std::move(cimNamespace)), fSpLibrary(spLibrary), fLogSwitch(logSwitch) {
  LogLevel4("TSPEnviron() constructor entered.");
}

// What a logger throws reaches the host from here as from any other line, unless
// an exception is on its way already: a second one would end the process.
TSPEnviron::~TSPEnviron() noexcept(false) {
  try {
    LogLevel4("TSPEnviron destructor entered.");
  } catch (...) {
    if (std::uncaught_exceptions() == 0) {
      // cppcheck-suppress exceptThrowInDestructor ; declared so, and nothing unwinds
      throw;
    }
  }
}

void TSPEnviron::Log(const std::string& message, int level) const {
  LogMessage(fLogSwitch, level, message);
}

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
  const auto sp = static_cast<unsigned char>(fNode);
  return SendDotCommand(fLogSwitch, kWording,
                        {commandClass, identifierLength, secondLength, identifier, extraData, reply,
                         replySize, status, spLib, sp});
}

int TSPEnviron::sendKestleCommand(unsigned char length, unsigned char commandCode,
                                  unsigned char expectedCode, unsigned char checksum,
                                  unsigned char* commandData, int commandDataLength,
                                  bool acknowledge, bool isRead, unsigned char* reply,
                                  NVELKZEV20::SPLibrary* /*spLib*/, unsigned char* status) {
  return SendKestleCommand(
      fLogSwitch, {length, commandCode, expectedCode, checksum, commandData, commandDataLength,
                   acknowledge, isRead, reply, status, fSpLibrary});
}

}  // namespace strake
