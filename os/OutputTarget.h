// What the name of an output file leads to.
#pragma once

#include <filesystem>
#include <optional>

namespace strake::os {

struct OutputTarget {
  // With the links of its folder and its own resolved; the file need not exist.
  std::filesystem::path file;
  // A file that is replaced when it is complete. A device, a FIFO or one of the
  // process' own descriptors is written to as it stands.
  bool isReplaced = true;
  // The name stands for a descriptor of this process: /dev/stdout and its like.
  std::optional<int> descriptor;
};

// Throws std::system_error: the name cannot be followed.
OutputTarget FindOutputTarget(const std::filesystem::path& name);

// Whether writing the one would write the other.
bool AreSameFile(const std::filesystem::path& one, const std::filesystem::path& other);

}  // namespace strake::os
