// The driver of the dial readers: how many instances there are, and in which
// order they are read.
#include "plugin/config/DotCommandList.h"
#include "plugin/config/SharedIdentifiers.h"
#include "plugin/frame/TStrakePluginCallbacks.h"

namespace strake {

using NVELKZEV20::ICIMNamespace;
using NVELKZEV20::kZEVSuccess;
using NVELKZEV20::SPLibrary;
using NVELKZEV20::TZEVStatusCode;

namespace {

// One instance after the other, by the reader that knows them.
struct DialGroup {
  const char* name;
  TZEVStatusCode (TStrakePluginCallbacks::*read)(boost::shared_ptr<ICIMNamespace> cimNamespace,
                                                 unsigned char number, SPLibrary* spLib,
                                                 std::string MTM, std::string systemName,
                                                 unsigned char sp);
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

// What the driver was given; each reader gets its own copies.
struct DialRun {
  TStrakePluginCallbacks& callbacks;
  const boost::shared_ptr<ICIMNamespace>& cimNamespace;
  SPLibrary* spLib;
  const std::string& MTM;
  const std::string& systemName;
  unsigned char sp;
};

void ReadGroup(const DialRun& run, const DialGroup& group, short count,
               const char* failure = nullptr) {
  TStrakePluginCallbacks& callbacks = run.callbacks;
  callbacks.LogLevel3(group.name, " instances = ", count);
  if (failure != nullptr && count == -1) {
    callbacks.LogLevel3(failure);
    return;
  }
  // Instance numbers are one byte on the wire. A count of 255 or more is never
  // exceeded: the numbers start over.
  // NOLINTNEXTLINE(bugprone-too-small-loop-variable)
  for (unsigned char number = 1; number <= count; ++number) {
    callbacks.LogLevel3(group.name, " instance #", number);
    (callbacks.*group.read)(run.cimNamespace, number, run.spLib, run.MTM, run.systemName, run.sp);
  }
}

}  // namespace

TZEVStatusCode TStrakePluginCallbacks::dialcommands(boost::shared_ptr<ICIMNamespace> cimNamespace,
                                                    SPLibrary* spLib, std::string MTM,
                                                    std::string systemName, unsigned char sp) {
  DotCommandList list(*this, spLib);
  // Told only now, behind the list's own line.
  LogLevel4("TStrakePluginCallbacks::dialcommands entered.");
  const DialRun run = {*this, cimNamespace, spLib, MTM, systemName, sp};
  if (list.IsBuilt()) {
    SharedIdentifiers& identifiers = Identifiers();
    ReadGroup(run, kDialoutSettings, list.CountInstances(identifiers.dialout),
              "Failed to get componentcmdlist for dialoutsettings.");
    ReadGroup(run, kDialinSettings, list.CountInstances(identifiers.dialin),
              "Failed to get componentcmdlist for dialinsettings.");
  }
  ReadGroup(run, kSerialPort, kSerialPorts);
  ReadGroup(run, kDialOutAlerts, kAlertSets);
  LogLevel4("TStrakePluginCallbacks::dialcommands completed.");
  return TZEVStatusCode(kZEVSuccess);
}

}  // namespace strake
