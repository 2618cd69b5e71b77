// A program, started with pipes behind its standard output and standard error.
// For the sources of this folder.
#pragma once

#include "os/Descriptor_posix.h"

#include <filesystem>
#include <string>
#include <sys/types.h>
#include <vector>

namespace strake::os {

struct StartedProcess {
  pid_t process;      // for the caller to wait for
  Descriptor output;  // to be read, and never waits
  Descriptor errors;
};

// It has the standard input of this process or an empty one, none of the
// descriptors that this process opened, and no handler of a signal. Linux ends it with the thread
// that started it. A signal that arrives meanwhile reaches this process afterwards. Throws
// std::system_error.
StartedProcess Start(const std::filesystem::path& program, const std::vector<std::string>& words,
                     bool hasInput);

}  // namespace strake::os
