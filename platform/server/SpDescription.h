// How a server's service processors answer: plain data that the driver is loaded
// with.
#pragma once

#include "platform/server/Reply.h"

#include <cstddef>
#include <map>
#include <string_view>
#include <vector>

namespace strake::platform {

enum class SpKind { Orlo, Tavit, Both, None };
// As a description names it: "orlo".
std::string_view KindName(SpKind kind);

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

}  // namespace strake::platform
