#include "plugin/frame/PresenceTest.h"

#include <array>

namespace strake {
namespace {

// The one object that this plug-in never releases, one an SP and query: the
// driver library may go on referring to a test command after it has answered,
// and nothing tells when it is done. Kept out of line so that leak reports can
// tell it by name.
[[gnu::noinline]] dotCmd* NewPresenceTestCommand() {
  static constexpr std::array<unsigned char, 2> kIdentifier = {1, 1};
  static constexpr unsigned char kNoExtraData = 0;
  return new dotCmd(2, static_cast<int>(kIdentifier.size()), 0, kIdentifier.data(), &kNoExtraData);
}

}  // namespace

bool AnswersPresenceTest(NVELKZEV20::SPLibrary* spLib, unsigned char sp) {
  // Nobody reads the reply, so nobody clears its room.
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init)
  std::array<unsigned char, 4096> reply;
  int replyLength = 0;
  return spLib->sendDotCommand(NewPresenceTestCommand(), reply.data(), &replyLength, sp,
                               static_cast<int>(reply.size()));
}

}  // namespace strake
