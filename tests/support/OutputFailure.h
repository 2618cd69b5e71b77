// What is said of an output that cannot be written.
#pragma once

#include "os/OutputFile.h"

#include <filesystem>
#include <string>

namespace strake::tests {

// Writes "text".
inline std::string FailureOf(const std::filesystem::path& name) {
  try {
    os::OutputFile file(name, os::Privacy::Usual);
    file.Write("text");
    file.Complete();
  } catch (const os::OutputError& error) {
    return error.what();
  }
  return "no failure";
}

}  // namespace strake::tests
