#include "os/AddressSanitized_posix.h"
#include "os/LoadableModule.h"
#include "text/Quote.h"
#include "text/TextEscape.h"

#include <dlfcn.h>
#include <string>
#include <system_error>

namespace strake::os {
namespace {

#ifdef STRAKE_ADDRESS_SANITIZED
// Leaks are reported at the end of the process; those of a module that was
// unloaded by then could not be named.
constexpr int kLoadFlags = RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE;
#else
constexpr int kLoadFlags = RTLD_NOW | RTLD_LOCAL;
#endif

[[noreturn]] void Refuse(const std::string& file, const std::string& reason) {
  throw ModuleError(text::EscapeForPeople(file) + ": " + reason);
}

// The loader's own words, without the file's name that it begins with.
std::string LoaderReason(const std::string& fileName) {
  const char* const text = dlerror();
  if (text == nullptr) {
    return "the loader gives no reason";
  }
  const std::string message = text;
  const std::string head = fileName + ": ";
  return text::Printable(message.starts_with(head) ? message.substr(head.size()) : message);
}

}  // namespace

LoadableModule::LoadableModule(const std::filesystem::path& file)
    : fFile(file.string()), fLibrary(nullptr) {
  std::error_code error;
  if (!std::filesystem::exists(file, error)) {
    Refuse(fFile, "there is no such module file");
  }
  // A name without a slash would be searched for where the loader likes.
  const std::string fullName = std::filesystem::absolute(file).string();
  fLibrary = dlopen(fullName.c_str(), kLoadFlags);
  if (fLibrary == nullptr) {
    Refuse(fFile, "is not a loadable module: " + LoaderReason(fullName));
  }
}

LoadableModule::~LoadableModule() { dlclose(fLibrary); }

void* LoadableModule::Find(const char* symbol) const { return dlsym(fLibrary, symbol); }

// What is told is the module, which changes.
// NOLINTNEXTLINE(readability-make-member-function-const)
int LoadableModule::Notify(const char* entry, unsigned int reason) {
  return reinterpret_cast<int (*)(unsigned int)>(Find(entry))(reason);
}

}  // namespace strake::os
