// A plug-in module for the command's tests: what its query does, the requested
// class says; "STRAKE_HOSTILE=STEP int" or "... memory" makes another step throw,
// "... handle" lets it use an empty handle. A class of the schema gives one
// instance whose text no terminal should obey.
#include "plugin/frame/ModuleEntry.h"
#include "plugin/host/Handle.h"
#include "plugin/host/TRootObject.h"

#include <csignal>
#include <cstdlib>
#include <new>
#include <stdexcept>
#include <string>

namespace {

using NVELKZEV20::ICIMClass;
using NVELKZEV20::ICIMInstance;
using NVELKZEV20::ICIMNamespace;
using NVELKZEV20::IPluginBasicQueryCallbacks;
using NVELKZEV20::IPluginCallbacks;
using NVELKZEV20::TPluginManagerNamespace;
using NVELKZEV20::TRootObject;

// A type that goes away with the module.
class ModulesOwnError : public std::exception {
 public:
  [[nodiscard]] const char* what() const noexcept override { return "the module's own"; }
};

void FailIfAsked(const std::string& step) {
  const char* const asked = std::getenv("STRAKE_HOSTILE");
  if (asked != nullptr && asked == step + " int") {
    throw 42;
  }
  if (asked != nullptr && asked == step + " memory") {
    throw std::bad_alloc();
  }
  if (asked != nullptr && asked == step + " handle") {
    strake::Deref(boost::shared_ptr<TPluginManagerNamespace>());
  }
}

void Publish(const boost::shared_ptr<ICIMNamespace>& cimNamespace, const std::string& className) {
  boost::shared_ptr<ICIMClass> cimClass;
  cimNamespace->GetClass(cimClass, className, {});
  boost::shared_ptr<ICIMInstance> instance;
  strake::Deref(cimClass).CreateInstance(instance, {});
  instance->SetProperty("SourceNode", static_cast<unsigned char>(1), {});
  instance->SetProperty("Name", "\x1b[31mred\n\xFF", {});
  instance->Commit({});
}

class HostilePlugin : public IPluginCallbacks, public IPluginBasicQueryCallbacks {
 public:
  void* GetReserved() override { return nullptr; }
  std::string GetDisplayName() override { return "hostile"; }
  std::string GetVersion() override { return "1.0"; }
  std::string GetFrameworkVersion() override { return "1.0"; }
  void Destroy() override {
    delete this;
    FailIfAsked("destroy");
  }
  void Initialize() override {
    TRootObject::GetCoreLogger()->Log(1, "hello\nsecond line\x1b");
    FailIfAsked("initialize");
  }
  void Deinitialize() override {
    TRootObject::GetCoreLogger()->Log(2, "goodbye");
    FailIfAsked("deinitialize");
  }

  void Query(boost::shared_ptr<ICIMNamespace> cimNamespace,
             const std::vector<boost::shared_ptr<ICIMClass>>& classes) override {
    for (const boost::shared_ptr<ICIMClass>& cimClass : classes) {
      Obey(cimNamespace, cimClass->GetName());
    }
  }

 private:
  static void Obey(const boost::shared_ptr<ICIMNamespace>& cimNamespace, const std::string& name) {
    if (name == "text") {
      throw std::runtime_error("two\nlines");
    }
    if (name == "own") {
      throw ModulesOwnError();
    }
    if (name == "number") {
      throw 42;
    }
    if (name == "memory") {
      throw std::bad_alloc();
    }
    if (name.starts_with("signal")) {
      (void)std::raise(std::stoi(name.substr(6)));
    }
    Publish(cimNamespace, name);
  }
};

}  // namespace

extern "C" int StrakeModuleEntry(unsigned int reason) {
  if (reason == strake::kProcessAttach) {
    FailIfAsked("attach");
    const auto manager =
        boost::dynamic_pointer_cast<TPluginManagerNamespace>(TRootObject::GetPluginManager());
    strake::Deref(manager).RegisterPlugin(new HostilePlugin);
  }
  return 1;
}
