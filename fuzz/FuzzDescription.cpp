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
constexpr std::size_t kLongestMessage = 1024;

void CheckMessage(std::string_view message) {
  Check(message.starts_with(kSource), "a refusal names the file");
  Check(message.size() <= kLongestMessage, "a refusal is short");
  Check(std::ranges::all_of(message, [](char byte) { return byte >= ' ' && byte <= '~'; }),
        "a refusal is one line of printable ASCII");
}

std::optional<ServerDescription> Parse(std::string_view text) {
  try {
    return platform::ParseServerDescription(text, std::string(kSource));
  } catch (const InputError& error) {
    CheckMessage(error.what());
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
