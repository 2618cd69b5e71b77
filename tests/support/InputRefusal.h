// What is said of an input that cannot be read.
#pragma once

#include "os/InputFile.h"
#include "text/InputError.h"

#include <filesystem>
#include <string>

namespace strake::tests {

inline std::string RefusalOf(const std::filesystem::path& file) {
  try {
    static_cast<void>(os::ReadInput(file, 1));
  } catch (const text::InputError& error) {
    return error.what();
  }
  return "no refusal";
}

}  // namespace strake::tests
