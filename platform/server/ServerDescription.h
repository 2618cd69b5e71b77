// How one server and its service processors answer: plain data that the
// stand-ins are loaded with, and the reader of its JSON text (*.server.json).
#pragma once

#include "plugin/host/TCIMDateTime.h"

#include <cstdio>
#include <filesystem>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace strake::platform {

// The answer of a host call that may throw.
struct HostAnswer {
  std::string text;  // the result, or the text of the exception
  bool throws = false;
};

struct HostSettings {
  HostAnswer machineTypeModel{"9999-AC1", false};
  HostAnswer systemName{"SRV1", false};
  std::string systemCreationClassName = "CIM_ComputerSystem";
  std::optional<NVELKZEV20::TCIMDateTime> localTime;  // empty: the real local time
};

struct Reply {
  std::string bytes;
  int length = 0;  // as reported; any number
  bool succeeds = true;
};

// The first send gets the first reply, and so on; the last one stays.
// Never empty.
using ReplySequence = std::vector<Reply>;

// An identifier's bytes, as a string so that it orders and compares as bytes.
using Identifier = std::string;

enum class SpKind { Orlo, Tavit, Both, None };

// The most components that the three 4096-byte list buffers can name.
inline constexpr std::size_t kMostComponents = 800;

struct SpDescription {
  SpKind kind = SpKind::None;
  bool communicates = true;
  int count = 0;
  bool managementServerStopped = true;
  bool dornLibrary = false;
  double latencyMs = 0;
  bool commandList = true;
  // Five identifier bytes, the fourth of them 0, to an instance count 0 to 254.
  std::map<Identifier, int> components;
  std::vector<std::map<Identifier, ReplySequence>> instances;
  std::map<unsigned char, ReplySequence> kestleCommands;
};

struct ServerDescription {
  std::string description;
  HostSettings host;
  SpDescription sp;
};

// A description that is refused: one line that names the source, the line or
// the JSON pointer, and what was expected.
class DescriptionError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

inline constexpr std::size_t kMostDescriptionBytes = std::size_t{16} * 1024 * 1024;
inline constexpr int kDeepestDescription = 64;
// Keeps what a description costs in memory far under 256 MiB, however small its
// values are.
inline constexpr std::size_t kMostDescriptionValues = 400'000;

// Throws DescriptionError; `source` names the text in its message.
ServerDescription ParseServerDescription(std::string_view text, const std::string& source);
ServerDescription ReadServerDescription(const std::filesystem::path& file);
ServerDescription ReadServerDescription(std::FILE* stream, const std::string& source);

}  // namespace strake::platform
