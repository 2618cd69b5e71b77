// Publishes the SP itself and its clock.
#include "plugin/config/ServiceProcessor.h"
#include "plugin/config/SpClock.h"

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

// Both commands, made before the first is sent, and the one reply that they go
// into. They are sent without the sender's trail.
class ClockCommands {
 public:
  ClockCommands(SPLibrary* spLib, unsigned char sp) : fSpLib(spLib), fSp(sp) {}

  bool AskClock() { return Send(fClock); }
  bool AskTimeZone() {
    fReply.Clear();
    return Send(fTimeZone);
  }

  [[nodiscard]] ByteView Reply() const { return fReply.Whole(); }

 private:
  // Here alone a reply length is a signed number: data came when it is above 0.
  bool Send(dotCmd& command) {
    return fSpLib->sendDotCommand(&command, fReply.bytes.data(), &fReply.length, fSp,
                                  static_cast<int>(fReply.bytes.size())) &&
           fReply.length > 0;
  }

  SPLibrary* fSpLib;
  unsigned char fSp;
  ReplyBuffer<2048> fReply;
  dotCmd fClock{kCommandClass, 3, 0, kReadClock.bytes.data(), &kNoExtraData};
  dotCmd fTimeZone{kCommandClass, 3, 0, kReadTimeZone.bytes.data(), &kNoExtraData};
};

// Sets "SPClock" if the SP tells its time. The commands and their reply are gone
// when this returns.
void PublishClock(const TStrakePluginCallbacks& callbacks, SPLibrary* spLib, unsigned char sp,
                  const InstanceBuilder& instance) {
  ClockCommands commands(spLib, sp);
  if (!commands.AskClock()) {
    callbacks.LogLevel1("Command to read SP clock failed.");
    return;
  }
  const SpTime time = DecodeSpTime(commands.Reply());
  std::uint16_t offset = 0;
  if (commands.AskTimeZone()) {
    offset = DecodeUtcOffset(commands.Reply());
  } else {
    callbacks.LogLevel2("Command to read SP timezone failed.");
  }
  try {
    TCIMDateTime clock;
    SetDateTime(clock, time, offset);
    callbacks.LogLevel3("SPtime = ", clock.ToString());
    instance.Set("SPClock", clock);
  } catch (const std::exception& error) {
    callbacks.LogLevel1("Unable to set SP Clock due to caught exception ", error.what());
  }
}

}  // namespace

TZEVStatusCode TStrakePluginCallbacks::CreateVELKSGComputerSystem(
    boost::shared_ptr<ICIMNamespace> cimNamespace, std::string systemName, SPLibrary* spLib,
    unsigned char sp) const {
  LogLevel4("CreateVELKSGComputerSystem() entered.");
  const NVELKZEV20::ContextMap context = MakeContext();
  if (!fSP_ComputerSystem) {
    return TZEVStatusCode(kZEVSuccess);
  }
  const unsigned char node = NodeNumber(sp);
  const std::string name = MakeText(systemName, ":Node", node);
  const InstanceBuilder instance(kComputerSystem, {cimNamespace, context, name, systemName, node});
  instance.IdentifyAll();
  LogLevel4("FinalSystemName = ", name);
  PublishClock(*this, spLib, sp, instance);
  instance.Commit();
  LogLevel4("CreateVELKSGComputerSystem() completed.");
  return TZEVStatusCode(kZEVSuccess);
}

}  // namespace strake
