// The file that a name in UTF-8 means; where names are bytes, of these bytes.
#pragma once

#include <filesystem>
#include <string>

namespace strake::os {

inline std::filesystem::path FileNamed(const std::string& name) {
  return std::u8string(name.begin(), name.end());
}

}  // namespace strake::os
