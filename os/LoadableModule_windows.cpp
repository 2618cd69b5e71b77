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

// What the module is linked with is looked for beside it first.
constexpr DWORD kLoad = LOAD_WITH_ALTERED_SEARCH_PATH;
// Neither calls the module nor looks for what it is linked with.
constexpr DWORD kLook = kLoad | DONT_RESOLVE_DLL_REFERENCES;

[[noreturn]] void Refuse(const std::string& file, const std::string& reason) {
  throw ModuleError(text::EscapeForPeople(file) + ": " + reason);
}

HMODULE Load(const std::wstring& name, DWORD how) {
  return ::LoadLibraryExW(name.c_str(), nullptr, how);
}

std::string LoaderReason(DWORD error) { return "is not a loadable module: " + ErrorText(error); }

std::wstring FileOf(HMODULE library) {
  std::wstring name(MAX_PATH, L'\0');
  DWORD length = 0;
  while ((length = ::GetModuleFileNameW(library, name.data(), static_cast<DWORD>(name.size()))) ==
         name.size()) {
    name.resize(name.size() * 2);
  }
  name.resize(length);
  return name;
}

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

LoadableModule::LoadableModule(const std::filesystem::path& file) {
  std::error_code error;
  if (!std::filesystem::exists(file, error)) {
    Refuse(file.string(), "there is no such module file");
  }
  fLibrary = Load(FullName(file), kLook);
  if (fLibrary == nullptr) {
    Refuse(file.string(), LoaderReason(::GetLastError()));
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
  const std::wstring file = FileOf(library);
  ::FreeLibrary(library);
  fLibrary = Load(file, kLoad);
  if (fLibrary != nullptr) {
    return 1;
  }
  const DWORD error = ::GetLastError();
  Rethrow(listener.Heard());
  if (error != ERROR_DLL_INIT_FAILED) {
    Refuse(ToUtf8(file), LoaderReason(error));
  }
  return 0;
}

}  // namespace strake::os
