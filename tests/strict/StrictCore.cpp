// The host core and the plug-in manager.
#include "plugin/host/TCIMSchemaHelper.h"
#include "plugin/host/TOSSpecific.h"
#include "plugin/host/TZEVStatusCode.h"
#include "tests/strict/StaticData.h"
#include "tests/strict/StrictHost.h"

#include <boost/assert.hpp>
#include <boost/make_shared.hpp>
#include <cstdint>

namespace boost {

void assertion_failed(char const* expression, char const* /*function*/, char const* /*file*/,
                      long line) {
  throw strake::strict::AssertionFailed{expression, line};
}

}  // namespace boost

namespace NVELKZEV20 {

using strake::strict::Call;
using strake::strict::Event;
using strake::strict::Held;
using strake::strict::StrictHost;

// Unlike any name that a plug-in could make up.
const std::string TCIMSchemaHelper::kContextName = "key \x01 of the recording host";
const std::string TCIMSchemaHelper::kPluginNSPName = "name space \x02 of the recording host";

namespace {

std::string RecordWithNamespace(Call call, const boost::shared_ptr<ICIMNamespace>& cimNamespace,
                                const std::string& answer) {
  StrictHost& host = StrictHost::Current();
  host.Record(
      {.call = call, .gotNamespace = cimNamespace != nullptr && cimNamespace == host.cimNamespace});
  return answer;
}

bool IsStatic(const void* address) {
  const auto number = reinterpret_cast<std::uintptr_t>(address);
  const auto own = strake::strict::OwnStaticData();
  return number >= own.begin && number < own.end;
}

class CoreLogger : public ILogger {
 public:
  void Log(int level, const std::string& message) override {
    Event& event =
        StrictHost::Current().Record({.call = Call::Log,
                                      .text = message,
                                      .number = level,
                                      .isStatic = IsStatic(&message) || IsStatic(message.data())});
    event.isChanged = message != event.text;
  }
};

}  // namespace

std::string TCIMSchemaHelper::GetSystemName(boost::shared_ptr<ICIMNamespace> cimNamespace) {
  return RecordWithNamespace(Call::GetSystemName, cimNamespace, StrictHost::Current().systemName);
}

std::string TCIMSchemaHelper::GetSystemCreationClassName(
    boost::shared_ptr<ICIMNamespace> cimNamespace) {
  return RecordWithNamespace(Call::GetSystemCreationClassName, cimNamespace, "a system's class");
}

std::string TOSSpecific::GetMachineTypeFromID() {
  StrictHost::Current().Record({.call = Call::GetMachineTypeFromID});
  return StrictHost::Current().machineType;
}

TCIMDateTime TOSSpecific::GetLocalTime() {
  StrictHost::Current().Record({.call = Call::GetLocalTime});
  return {};
}

TZEVStatusCode::TZEVStatusCode(EZEVStatusCode code) : fCode(code) {}

ILogger::~ILogger() = default;

ILogger* TRootObject::GetCoreLogger() {
  static auto& logger = *new CoreLogger;  // never destroyed: lines come at exit, too
  return &logger;
}

class TPluginManagerProvider {};

boost::shared_ptr<ICIMNamespace> TRootObject::GetPluginManager() {
  return boost::make_shared<TPluginManagerNamespace>();
}

TPluginManagerNamespace::~TPluginManagerNamespace() = default;
void TPluginManagerNamespace::GetClass(boost::shared_ptr<ICIMClass>& /*cimClass*/,
                                       const std::string& /*name*/, ContextMap /*context*/) {}

TPluginManagerProvider* TPluginManagerNamespace::RegisterPlugin(IPluginCallbacks* plugin) {
  return StrictHost::Current().Register(plugin);
}

ICIMInstance::~ICIMInstance() = default;
void ICIMInstance::ReservedSlot1() {}
void ICIMInstance::ReservedSlot3() {}
void ICIMInstance::ReservedSlot4() {}
void ICIMInstance::ReservedSlot5() {}
void ICIMInstance::ReservedSlot6() {}
void ICIMInstance::ReservedSlot7() {}
void ICIMInstance::ReservedSlot8() {}
void ICIMInstance::ReservedSlot9() {}
void ICIMInstance::ReservedSlot10() {}

ICIMClass::~ICIMClass() = default;
void ICIMClass::ReservedSlot1() {}
void ICIMClass::ReservedSlot2() {}
void ICIMClass::ReservedSlot3() {}
void ICIMClass::ReservedSlot4() {}
void ICIMClass::ReservedSlot6() {}
void ICIMClass::ReservedSlot7() {}
void ICIMClass::ReservedSlot8() {}
void ICIMClass::ReservedSlot9() {}
void ICIMClass::ReservedSlot10() {}
void ICIMClass::ReservedSlot11() {}
void ICIMClass::ReservedSlot12() {}
void ICIMClass::ReservedSlot13() {}
void ICIMClass::ReservedSlot14() {}
void ICIMClass::ReservedSlot15() {}
void ICIMClass::ReservedSlot16() {}
void ICIMClass::ReservedSlot17() {}
void ICIMClass::ReservedSlot18() {}
void ICIMClass::ReservedSlot19() {}
void ICIMClass::ReservedSlot20() {}
void ICIMClass::ReservedSlot21() {}

ICIMNamespace::~ICIMNamespace() = default;
void ICIMNamespace::ReservedSlot1() {}
void ICIMNamespace::ReservedSlot2() {}
void ICIMNamespace::ReservedSlot3() {}
void ICIMNamespace::ReservedSlot4() {}

}  // namespace NVELKZEV20

namespace strake::strict {

NVELKZEV20::TPluginManagerProvider* StrictHost::Register(NVELKZEV20::IPluginCallbacks* registered) {
  static NVELKZEV20::TPluginManagerProvider provider;
  plugin = registered;
  return fGate == Gate::Open ? &provider : nullptr;
}

}  // namespace strake::strict
