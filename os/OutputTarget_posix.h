// What the name of an output leads to, opened. For the sources of this folder.
#pragma once

#include "os/Descriptor_posix.h"

#include <filesystem>
#include <string>
#include <sys/stat.h>

namespace strake::os {

struct OutputTarget {
  // The file that is there already, open for writing; closed: there is none.
  Descriptor existing;
  struct stat status {};
  // A device, a FIFO or one of the process' own descriptors, which takes bytes
  // as they come.
  bool isStream = false;
  // Where the file lies, and as what, its links resolved by the system; closed
  // when that cannot be told.
  Descriptor folder;
  std::string name;
  // Another file can be given its name: it is no mount point, no other user's in
  // a sticky folder, and has no access list that would be lost.
  bool canBeReplaced = true;
};

// Throws std::system_error: it cannot be written.
OutputTarget OpenOutputTarget(const std::filesystem::path& name);

}  // namespace strake::os
