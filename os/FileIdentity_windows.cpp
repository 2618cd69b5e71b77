#include "os/FileIdentity.h"
#include "os/Handle_windows.h"

#include <winternl.h>

namespace strake::os {
namespace {

namespace fs = std::filesystem;

// Without any right to its content: for what can be said of it.
Handle Look(const fs::path& name) {
  return Handle(::CreateFileW(name.c_str(), 0,
                              FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                              OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
}

// False: it is no file.
bool Take(FileIdentity& identity, HANDLE file) {
  BY_HANDLE_FILE_INFORMATION status{};
  if (::GetFileType(file) != FILE_TYPE_DISK || ::GetFileInformationByHandle(file, &status) == 0) {
    return false;
  }
  identity.device = status.dwVolumeSerialNumber;
  identity.node = std::uint64_t{status.nFileIndexHigh} << 32U | status.nFileIndexLow;
  identity.isRegular = (status.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
  return true;
}

// Names that differ only in their case are one.
std::string Folded(std::wstring name) {
  ::CharUpperBuffW(name.data(), static_cast<DWORD>(name.size()));
  return ToUtf8(name);
}

}  // namespace

std::optional<int> NamedDescriptor(const fs::path& name) {
  return name == "-" ? std::optional(kStandardOutput) : std::nullopt;
}

FileIdentity IdentityOfDescriptor(int descriptor) {
  FileIdentity identity;
  identity.descriptor = descriptor;
  Take(identity, StandardHandle(descriptor));
  return identity;
}

FileIdentity IdentityOf(const fs::path& name) {
  if (const std::optional<int> descriptor = NamedDescriptor(name)) {
    return IdentityOfDescriptor(*descriptor);
  }
  FileIdentity identity;
  const std::wstring fullName = FullName(name);
  if (IsDeviceName(fullName)) {
    identity.newName = Folded(fullName);
    return identity;
  }
  if (const Handle file = Look(fullName); file.IsOpen() && Take(identity, file.Get())) {
    return identity;
  }
  const fs::path file(fullName);
  if (const Handle folder = Look(file.parent_path());
      folder.IsOpen() && Take(identity, folder.Get())) {
    identity.isRegular = true;
    identity.newName = Folded(file.filename().native());
  } else {
    // It leads nowhere: the same as another one when both are spelled alike.
    identity.newName = Folded(fullName);
  }
  return identity;
}

bool CanBeReadAgain(const fs::path& name) {
  std::error_code none;
  return !IsDeviceName(FullName(name)) &&
         (!fs::exists(name, none) || fs::is_regular_file(name, none));
}

bool IsOpenForWriting(int descriptor) {
  constexpr ACCESS_MASK kWrites = FILE_WRITE_DATA | FILE_APPEND_DATA;
  PUBLIC_OBJECT_BASIC_INFORMATION rights{};
  HANDLE const handle = StandardHandle(descriptor);
  return handle != nullptr && ::GetFileType(handle) != FILE_TYPE_UNKNOWN &&
         NT_SUCCESS(
             ::NtQueryObject(handle, ObjectBasicInformation, &rights, sizeof rights, nullptr)) &&
         (rights.GrantedAccess & kWrites) != 0;
}

}  // namespace strake::os
