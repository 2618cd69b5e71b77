#include "platform/session/PluginModule.h"

#include "text/TextEscape.h"

#include <string>

namespace strake::platform {
namespace {

constexpr const char* kEntryName = "StrakeModuleEntry";

}  // namespace

PluginModule::PluginModule(const std::filesystem::path& file)
    : fModule(file), fEntry(reinterpret_cast<ModuleEntry>(fModule.Find(kEntryName))) {
  if (fEntry == nullptr) {
    throw os::ModuleError(text::EscapeForPeople(file.string()) + ": the module lacks the entry \"" +
                          kEntryName + "\"");
  }
}

}  // namespace strake::platform
