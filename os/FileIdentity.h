// Which file a name leads to, whatever it is spelled like.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace strake::os {

struct FileIdentity {
  // One of the process' own descriptors.
  std::optional<int> descriptor;
  // The file, or the folder that a new one would be created in.
  std::uint64_t device = 0;
  std::uint64_t node = 0;
  std::string newName;  // empty: the file is there
  bool isRegular = false;

  // Whether writing the one would write the other. Two descriptors of one
  // terminal or pipe are two files: each takes what it is given.
  [[nodiscard]] bool IsSameAs(const FileIdentity& other) const;
};

FileIdentity IdentityOf(const std::filesystem::path& name);
FileIdentity IdentityOfDescriptor(int descriptor);

constexpr int kStandardInput = 0;
constexpr int kStandardOutput = 1;
constexpr int kStandardError = 2;

// The descriptor of this process that an output's name stands for: "-",
// /dev/stdout, /dev/fd/3 and their like, also through links.
std::optional<int> NamedDescriptor(const std::filesystem::path& name);

// What is read gives the same once more: a regular file. What is not there is left
// to whoever reads it.
bool CanBeReadAgain(const std::filesystem::path& name);

bool IsOpenForWriting(int descriptor);

}  // namespace strake::os
