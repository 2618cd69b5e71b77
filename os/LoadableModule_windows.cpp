#include "os/DebugListener_windows.h"
#include "os/Handle_windows.h"
#include "os/LoadableModule.h"
#include "text/TextEscape.h"

#include <optional>
#include <stdexcept>
#include <string>
#include <system_error>
#include <utility>

namespace strake::os {
namespace {

constexpr unsigned int kJoins = 1;

// What the module is linked with is looked for beside it, beside the command and
// where the system has its own; in neither the current folder nor PATH.
constexpr DWORD kLoad = LOAD_LIBRARY_SEARCH_DLL_LOAD_DIR | LOAD_LIBRARY_SEARCH_DEFAULT_DIRS;
// Neither calls the module nor looks for what it is linked with.
constexpr DWORD kLook = kLoad | DONT_RESOLVE_DLL_REFERENCES;

[[noreturn]] void Refuse(const std::string& file, const std::string& reason) {
  throw ModuleError(text::EscapeForPeople(file) + ": " + reason);
}

// To a name without an ending the loader adds one, unless it ends with a point.
HMODULE Load(std::wstring name, DWORD how) {
  if (!std::filesystem::path(name).has_extension()) {
    name += L'.';
  }
  return ::LoadLibraryExW(name.c_str(), nullptr, how);
}

std::string LoaderReason(DWORD error) { return "is not a loadable module: " + ErrorText(error); }

// Of an entry that threw something else than a std::exception.
struct NamelessFailure {};

// What the loader let not pass, from what was told of it.
void Rethrow(const std::optional<std::string>& told) {
  constexpr std::string_view kText = ": ";
  if (told && told->starts_with(kText)) {
    throw std::runtime_error(told->substr(kText.size()));
  }
  if (told) {
    throw NamelessFailure();
  }
}

}  // namespace

LoadableModule::LoadableModule(const std::filesystem::path& file)
    : fFile(file.string()), fLibrary(nullptr) {
  std::error_code error;
  if (!std::filesystem::exists(file, error)) {
    Refuse(fFile, "there is no such module file");
  }
  fLibrary = Load(FullName(file), kLook);
  if (fLibrary == nullptr) {
    Refuse(fFile, LoaderReason(::GetLastError()));
  }
}

LoadableModule::~LoadableModule() {
  if (fLibrary != nullptr) {
    ::FreeLibrary(static_cast<HMODULE>(fLibrary));
  }
}

void* LoadableModule::Find(const char* symbol) const {
  return reinterpret_cast<void*>(::GetProcAddress(static_cast<HMODULE>(fLibrary), symbol));
}

// What was only looked at is let go first: the loader would take it as it is.
int LoadableModule::Notify(const char* entry, unsigned int reason) {
  auto* const library = static_cast<HMODULE>(std::exchange(fLibrary, nullptr));
  const std::string head = std::string(entry) + " ended with an exception";
  const DebugListener listener(head);
  if (reason != kJoins) {
    const bool isDone = ::FreeLibrary(library) != 0;
    Rethrow(listener.Heard());
    return isDone ? 1 : 0;
  }
  const std::wstring file = NameOfModule(library);
  ::FreeLibrary(library);
  fLibrary = Load(file, kLoad);
  if (fLibrary != nullptr) {
    return 1;
  }
  const DWORD error = ::GetLastError();
  Rethrow(listener.Heard());
  if (error != ERROR_DLL_INIT_FAILED) {
    Refuse(fFile, LoaderReason(error));
  }
  return 0;
}

}  // namespace strake::os
