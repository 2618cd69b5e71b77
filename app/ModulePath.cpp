#include "app/ModulePath.h"

#include "app/Errors.h"

#include <array>
#include <string>
#include <system_error>
#include <utility>

namespace strake::app {
namespace {

// From the command's folder: beside it, as built, as installed.
constexpr std::array<const char*, 3> kPlaces{".", "../lib", STRAKE_BIN_TO_LIB};

}  // namespace

const char* const kModuleName = STRAKE_MODULE;

std::filesystem::path FindModule(const std::filesystem::path& commandFolder) {
  std::filesystem::path previous;
  std::string searched;
  for (const char* const place : kPlaces) {
    std::filesystem::path module = (commandFolder / place / kModuleName).lexically_normal();
    if (module == previous) {
      continue;
    }
    std::error_code ignored;  // what cannot be looked at is not there
    if (std::filesystem::exists(module, ignored)) {
      return module;
    }
    searched += (searched.empty() ? "" : ", ") + module.parent_path().string();
    previous = std::move(module);
  }
  throw RunError(std::string("no plug-in module ") + kModuleName + " in " + searched +
                 "; name one with --plugin");
}

}  // namespace strake::app
