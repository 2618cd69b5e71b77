#include "platform/session/PluginModule.h"

#include "text/TextEscape.h"

#include <string>

namespace strake::platform {
namespace {

constexpr const char* kEntryName = "StrakeModuleEntry";

}  // namespace

PluginModule::PluginModule(const std::filesystem::path& file)
    : fModule(std::make_unique<os::LoadableModule>(file)) {
  if (fModule->Find(kEntryName) == nullptr) {
    throw os::ModuleError(text::EscapeForPeople(file.string()) + ": the module lacks the entry \"" +
                          kEntryName + "\"");
  }
}

ModuleEntry PluginModule::Entry() const {
  return
      [module = fModule.get()](unsigned int reason) { return module->Notify(kEntryName, reason); };
}

}  // namespace strake::platform
