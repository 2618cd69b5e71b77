// Publishes the SP itself and its clock.
#include "plugin/config/InstanceBuilder.h"
#include "plugin/config/ServiceProcessor.h"
#include "plugin/config/SpClock.h"
#include "plugin/frame/TStrakePluginCallbacks.h"
#include "plugin/spaccess/ByteView.h"

#include <array>
#include <exception>

namespace strake {

using NVELKZEV20::ICIMNamespace;
using NVELKZEV20::kZEVSuccess;
using NVELKZEV20::SPLibrary;
using NVELKZEV20::TCIMDateTime;
using NVELKZEV20::TZEVStatusCode;

namespace {

constexpr IdentityProperty kIdentity[] = {
    IdentityProperty::CreationClassName,
    IdentityProperty::SourceNode,
    IdentityProperty::Name,
};
constexpr InstanceKind kComputerSystem = {kSPComputerSystem, kSPComputerSystem, kIdentity};

constexpr std::array<unsigned char, 3> kReadClock = {4, 4, 1};
constexpr unsigned char kNoExtraData = 0;
constexpr std::size_t kReplySize = 2048;

// Both commands go out without the sender's trail, into one reply.
struct ClockReply {
  std::array<unsigned char, kReplySize> bytes{};
  int length = 0;

  // Here alone a reply length is a signed number: data came when it is above 0.
  bool Read(SPLibrary* spLib, unsigned char sp, std::span<const unsigned char> identifier) {
    dotCmd command(2, static_cast<int>(identifier.size()), 0, identifier.data(), &kNoExtraData);
    return spLib->sendDotCommand(&command, bytes.data(), &length, sp, kReplySize) && length > 0;
  }
};

}  // namespace

TZEVStatusCode TStrakePluginCallbacks::CreateVELKSGComputerSystem(
    boost::shared_ptr<ICIMNamespace> cimNamespace, std::string systemName, SPLibrary* spLib,
    unsigned char sp) const {
  LogLevel4("CreateVELKSGComputerSystem() entered.");
  if (!fSP_ComputerSystem) {
    return TZEVStatusCode(kZEVSuccess);
  }
  const NVELKZEV20::ContextMap context = MakeContext();
  const std::string name = MakeText(systemName, ":Node", NodeNumber(sp));
  InstanceBuilder instance(kComputerSystem, {cimNamespace, context, name, systemName});
  instance.Create(NodeNumber(sp));
  instance.IdentifyAll();
  LogLevel4("FinalSystemName = ", name);

  ClockReply reply;
  if (reply.Read(spLib, sp, kReadClock)) {
    const SpTime time = DecodeSpTime(ByteView(reply.bytes));
    std::uint16_t offset = 0;
    reply.bytes.fill(0);
    if (reply.Read(spLib, sp, kReadTimeZone)) {
      offset = DecodeUtcOffset(ByteView(reply.bytes));
    } else {
      LogLevel2("Command to read SP timezone failed.");
    }
    try {
      TCIMDateTime clock;
      SetDateTime(clock, time, offset);
      LogLevel3("SPtime = ", clock.ToString());
      instance.Set("SPClock", clock);
    } catch (const std::exception& error) {
      LogLevel1("Unable to set SP Clock due to caught exception ", error.what());
    }
  } else {
    LogLevel1("Command to read SP clock failed.");
  }
  instance.Commit();
  LogLevel4("CreateVELKSGComputerSystem() completed.");
  return TZEVStatusCode(kZEVSuccess);
}

}  // namespace strake
