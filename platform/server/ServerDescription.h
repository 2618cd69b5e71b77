// How one server and its service processors answer, and the reader of its JSON
// text (*.server.json).
#pragma once

#include "platform/server/HostSettings.h"
#include "platform/server/SpDescription.h"

#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <string>
#include <string_view>

namespace strake::platform {

struct ServerDescription {
  std::string description;
  HostSettings host;
  SpDescription sp;
};

inline constexpr std::size_t kMostDescriptionBytes = std::size_t{16} * 1024 * 1024;
inline constexpr int kDeepestDescription = 64;
// Keeps what a description costs in memory far under 256 MiB, however small its
// values are.
inline constexpr std::size_t kMostDescriptionValues = 400'000;

// All throw text::InputError; `source` names the text in its message.
ServerDescription ParseServerDescription(std::string_view text, const std::string& source);
ServerDescription ReadServerDescription(const std::filesystem::path& file);
ServerDescription ReadServerDescription(std::FILE* stream, const std::string& source);

}  // namespace strake::platform
