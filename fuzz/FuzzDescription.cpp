#include "fuzz/Check.h"
#include "fuzz/Harnesses.h"
#include "fuzz/RunServer.h"
#include "platform/server/ServerDescription.h"
#include "tests/support/WholeCollection.h"
#include "text/InputError.h"

#include <algorithm>
#include <optional>
#include <string_view>

namespace strake::fuzz {
namespace {

using platform::ServerDescription;
using text::InputError;

constexpr std::string_view kSource = "fuzzed.server.json";

std::optional<ServerDescription> Parse(std::string_view text) {
  try {
    return platform::ParseServerDescription(text, std::string(kSource));
  } catch (const InputError& error) {
    CheckRefusal(error.what(), kSource);
    return std::nullopt;
  }
}

}  // namespace

int FuzzDescription(const std::uint8_t* data, std::size_t size) {
  const std::string text(data, data + size);
  std::optional<ServerDescription> server = Parse(text);
  if (!server) return 0;
  server->sp.latencyMs = 0;
  server->sp.count = std::clamp(server->sp.count, -1, 4);
  RunServer({.server = *server, .queries = tests::WholeCollectionQueries(), .trouble = {}});
  return 0;
}

}  // namespace strake::fuzz
