#include "tests/strict/StrictHost.h"

#include "plugin/frame/ModuleEntry.h"
#include "plugin/host/TCIMSchemaHelper.h"

#include <boost/make_shared.hpp>
#include <iterator>
#include <ostream>
#include <stdexcept>
#include <utility>

namespace strake::strict {
namespace {

using NVELKZEV20::ContextMap;
using NVELKZEV20::ICIMClass;
using NVELKZEV20::ICIMInstance;
using NVELKZEV20::ICIMNamespace;
using NVELKZEV20::TCIMSchemaHelper;
using NVELKZEV20::TCIMValue;
using NVELKZEV20::TNameToValueMap;

StrictHost* current = nullptr;

// Fills a handle, unless the host was told to make nothing this time.
template <typename Kind, typename Base, typename Argument>
void Make(const Event& event, boost::shared_ptr<Base>& handle, const Argument& argument) {
  const auto& makesNothing = StrictHost::Current().makesNothing;
  if (!makesNothing || !makesNothing(event)) handle = boost::make_shared<Kind>(argument);
}

class RecordedInstance : public ICIMInstance {
 public:
  explicit RecordedInstance(int ordinal) : fOrdinal(ordinal) {}
  void Commit(TNameToValueMap options) override {
    StrictHost::Current().Record({.call = Call::Commit, .number = fOrdinal, .map = Held(options)});
  }
  void SetProperty(const std::string& name, const TCIMValue& value,
                   TNameToValueMap qualifiers) override {
    StrictHost::Current().Record({.call = Call::SetProperty,
                                  .text = name,
                                  .number = fOrdinal,
                                  .map = Held(qualifiers),
                                  .value = Held(value)});
  }

 private:
  int fOrdinal;
};

class RecordedClass : public ICIMClass {
 public:
  explicit RecordedClass(std::string name) : fName(std::move(name)) {}
  [[nodiscard]] std::string GetName() const override {
    StrictHost::Current().Record({.call = Call::GetName, .text = fName});
    return fName;
  }
  void CreateInstance(boost::shared_ptr<ICIMInstance>& instance,
                      const TNameToValueMap& options) override {
    StrictHost& host = StrictHost::Current();
    const Event& event = host.Record({.call = Call::CreateInstance,
                                      .text = fName,
                                      .number = host.NextInstance(),
                                      .map = Held(options),
                                      .gotEmpty = instance == nullptr});
    Make<RecordedInstance>(event, instance, event.number);
  }

 private:
  std::string fName;
};

class RecordedNamespace : public ICIMNamespace {
 public:
  void GetClass(boost::shared_ptr<ICIMClass>& cimClass, const std::string& name,
                ContextMap context) override {
    const Event& event = StrictHost::Current().Record({.call = Call::GetClass,
                                                       .text = name,
                                                       .map = Held(context),
                                                       .gotEmpty = cimClass == nullptr});
    Make<RecordedClass>(event, cimClass, name);
  }
};

}  // namespace

void PrintTo(Call call, std::ostream* stream) {
  // In the order of their declaration.
  static constexpr const char* kNames[] = {
      "Log",
      "GetMachineTypeFromID",
      "GetLocalTime",
      "GetSystemName",
      "GetSystemCreationClassName",
      "GetName",
      "GetClass",
      "CreateInstance",
      "SetProperty",
      "Commit",
      "TCIMDateTime::Set",
      "TCIMDateTime::ToString",
      "GetSplibraryInstance",
      "isDotcommand",
      "isKestle",
      "isQmvStop",
      "isDornlibrary",
      "checkSPComm",
      "discoverSPs",
      "new dotCmd",
      "delete dotCmd",
      "sendDotCommand",
      "new KestleCmd",
      "delete KestleCmd",
      "sendKestleCommand",
      "buildDotCommandList",
      "getComponentdotCmdList",
  };
  static_assert(std::size(kNames) == static_cast<std::size_t>(Call::GetComponentdotCmdList) + 1);
  *stream << kNames[static_cast<std::size_t>(call)];
}

StrictHost::StrictHost(Gate gate)
    : cimNamespace(boost::make_shared<RecordedNamespace>()), fGate(gate), fBefore(current) {
  current = this;
  if (StrakeModuleEntry(kProcessAttach) != 1 || plugin == nullptr) {
    throw std::runtime_error("the module did not register an object");
  }
}

StrictHost::~StrictHost() {
  onCall = nullptr;
  plugin->Destroy();
  current = fBefore;
}

StrictHost& StrictHost::Current() { return *current; }

void StrictHost::Query(const std::vector<std::string>& classNames) {
  std::vector<boost::shared_ptr<ICIMClass>> classes;
  classes.reserve(classNames.size());
  for (const std::string& name : classNames) {
    classes.push_back(boost::make_shared<RecordedClass>(name));
  }
  dynamic_cast<NVELKZEV20::IPluginBasicQueryCallbacks&>(*plugin).Query(cimNamespace, classes);
}

void StrictHost::Note(Event event) {
  event.namespaceUses = cimNamespace.use_count();
  for (const auto& [address, value] : LiveValues()) {
    const bool isContext =
        value.made == Made::FromText && value.text == TCIMSchemaHelper::kPluginNSPName;
    ++(isContext ? event.contextValues : event.otherValues);
  }
  events.push_back(std::move(event));
}

Event& StrictHost::Record(Event event) {
  Note(std::move(event));
  Event& recorded = events.back();
  if (onCall) onCall(recorded);
  return recorded;
}

std::vector<const Event*> StrictHost::All(Call call) const {
  std::vector<const Event*> found;
  for (const Event& event : events) {
    if (event.call == call) found.push_back(&event);
  }
  return found;
}

std::vector<std::string> StrictHost::Lines() const {
  std::vector<std::string> lines;
  for (const Event* const event : All(Call::Log)) lines.push_back(event->text);
  return lines;
}

std::size_t StrictHost::CountLines(std::string_view line) const {
  std::size_t count = 0;
  for (const Event* const event : All(Call::Log)) count += event->text == line ? 1U : 0U;
  return count;
}

}  // namespace strake::strict
