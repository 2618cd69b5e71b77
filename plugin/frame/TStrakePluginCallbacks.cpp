#include "plugin/frame/TStrakePluginCallbacks.h"

#include "plugin/host/Handle.h"
#include "plugin/spaccess/CommandSenders.h"

namespace strake {

using NVELKZEV20::ICIMNamespace;
using NVELKZEV20::TPluginManagerNamespace;
using NVELKZEV20::TRootObject;

// Logs nothing: until registration has answered, the gate is closed anyway.
TStrakePluginCallbacks::TStrakePluginCallbacks() {
  const boost::shared_ptr<ICIMNamespace> manager = TRootObject::GetPluginManager();
  const auto pluginManager = boost::dynamic_pointer_cast<TPluginManagerNamespace>(manager);
  fProvider = Deref(pluginManager).RegisterPlugin(this);
}

TStrakePluginCallbacks::~TStrakePluginCallbacks() = default;

void* TStrakePluginCallbacks::GetReserved() { return nullptr; }

std::string TStrakePluginCallbacks::GetDisplayName() { return "SP Configuration"; }

std::string TStrakePluginCallbacks::GetVersion() { return "1.0"; }

std::string TStrakePluginCallbacks::GetFrameworkVersion() { return "1.0"; }

// The slot may be called without an object, and deletes nothing then: this file
// is compiled so that delete's own test for that stays (see CMakeLists.txt), and
// no sanitizer objects.
__attribute__((no_sanitize("undefined"))) void TStrakePluginCallbacks::Destroy() {
  IPluginCallbacks* const object = this;
  delete object;
}

void TStrakePluginCallbacks::Initialize() {
  LogLevel3("Initializing Service Processor Configuration Collector");
}

void TStrakePluginCallbacks::Deinitialize() {
  LogLevel3("De-Initializing Service Processor Configuration Collector");
}

void TStrakePluginCallbacks::Log(const std::string& message, int level) const {
  LogMessage(fProvider, level, message);
}

int TStrakePluginCallbacks::sendCommand(unsigned char commandClass, int identifierLength,
                                        int secondLength, const unsigned char* identifier,
                                        const unsigned char* extraData, unsigned char* reply,
                                        int replySize, unsigned char* status,
                                        NVELKZEV20::SPLibrary* spLib, unsigned char sp) {
  static constexpr SenderWording kWording = {
      .entered = "TStrakePluginCallbacks::sendCommand entered.",
      .sent = "Sent command: ",
      .completed = "TStrakePluginCallbacks::sendCommand completed.",
      .namesInstance = true,
  };
  return SendDotCommand(fProvider, kWording,
                        {commandClass, identifierLength, secondLength, identifier, extraData, reply,
                         replySize, status, spLib, sp});
}

}  // namespace strake
