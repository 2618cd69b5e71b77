// The driver of the dial readers: how many instances there are, and in which
// order they are read.
#include "plugin/config/DotCommandList.h"
#include "plugin/config/ServiceProcessor.h"
#include "plugin/config/SharedIdentifiers.h"
#include "plugin/frame/TStrakePluginCallbacks.h"

#include <utility>

namespace strake {

using NVELKZEV20::ICIMNamespace;
using NVELKZEV20::kZEVSuccess;
using NVELKZEV20::SPLibrary;
using NVELKZEV20::TZEVStatusCode;

namespace {

// One instance after the other, by the reader that knows them.
struct DialGroup {
  const char* name;
  TZEVStatusCode (TStrakePluginCallbacks::*read)(const ServiceProcessor& sp,
                                                 unsigned char instance);
};

constexpr DialGroup kDialoutSettings = {"DialoutSettings",
                                        &TStrakePluginCallbacks::getDialoutSettings};
constexpr DialGroup kDialinSettings = {"DialinSettings",
                                       &TStrakePluginCallbacks::getDialinSettings};
constexpr DialGroup kSerialPort = {"SerialPort", &TStrakePluginCallbacks::getSerialPortData};
constexpr DialGroup kDialOutAlerts = {"DialOutAlerts", &TStrakePluginCallbacks::getDialOutAlerts};

// Every SP has two serial ports and one set of alerts; it is not asked.
constexpr short kSerialPorts = 2;
constexpr short kAlertSets = 1;

void ReadGroup(TStrakePluginCallbacks& callbacks, const ServiceProcessor& sp,
               const DialGroup& group, short count, const char* failure = nullptr) {
  callbacks.LogLevel3(group.name, " instances = ", count);
  if (failure != nullptr && count == -1) {
    callbacks.LogLevel3(failure);
    return;
  }
  // Instance numbers are one byte on the wire. Drivers report fewer than 255
  // instances; a count of 255 or more would never be exceeded.
  // NOLINTNEXTLINE(bugprone-too-small-loop-variable)
  for (unsigned char instance = 1; instance <= count; ++instance) {
    callbacks.LogLevel3(group.name, " instance #", instance);
    (callbacks.*group.read)(sp, instance);
  }
}

}  // namespace

TZEVStatusCode TStrakePluginCallbacks::dialcommands(boost::shared_ptr<ICIMNamespace> cimNamespace,
                                                    SPLibrary* spLib, std::string machineType,
                                                    std::string systemName, unsigned char sp) {
  DotCommandList list(*this, spLib);
  // Told only now, behind the list's own line.
  LogLevel4("TStrakePluginCallbacks::dialcommands entered.");
  const ServiceProcessor processor(std::move(cimNamespace), spLib, std::move(machineType),
                                   std::move(systemName), sp);
  if (list.IsBuilt()) {
    SharedIdentifiers& identifiers = Identifiers();
    ReadGroup(*this, processor, kDialoutSettings, list.CountInstances(identifiers.dialout),
              "Failed to get componentcmdlist for dialoutsettings.");
    ReadGroup(*this, processor, kDialinSettings, list.CountInstances(identifiers.dialin),
              "Failed to get componentcmdlist for dialinsettings.");
  }
  ReadGroup(*this, processor, kSerialPort, kSerialPorts);
  ReadGroup(*this, processor, kDialOutAlerts, kAlertSets);
  LogLevel4("TStrakePluginCallbacks::dialcommands completed.");
  return TZEVStatusCode(kZEVSuccess);
}

}  // namespace strake
