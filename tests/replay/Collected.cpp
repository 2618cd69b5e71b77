#include "tests/replay/Collected.h"

#include "fuzz/Seeds.h"
#include "replay/DescriptionWriter.h"
#include "replay/ReplayBuilder.h"
#include "replay/TraceReader.h"
#include "tests/support/MaskAddresses.h"
#include "tests/support/Places.h"

#include <algorithm>
#include <filesystem>
#include <random>
#include <span>

namespace strake::tests {
namespace {

// A description holds UTF-8.
void MakePlain(std::string& text) {
  for (char& character : text) {
    if (static_cast<unsigned char>(character) >= 0x80) character = '?';
  }
}

fuzz::ServerCase Decode(const std::string& bytes) {
  fuzz::ServerCase one = fuzz::DecodeServer(
      std::span(reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size()));
  MakePlain(one.server.host.machineTypeModel.text);
  MakePlain(one.server.host.systemName.text);
  MakePlain(one.server.host.systemCreationClassName);
  return one;
}

std::string Mutate(std::string bytes, std::mt19937& random) {
  const std::size_t changes = 1 + random() % 8;
  for (std::size_t i = 0; i < changes && !bytes.empty(); ++i) {
    bytes.at(random() % bytes.size()) = static_cast<char>(random());
  }
  return bytes;
}

}  // namespace

std::string TraceOf(const platform::ServerDescription& server, const Queries& queries) {
  return MaskAddresses(fuzz::TraceOf(server, queries));
}

replay::Replay ReplayOf(const std::string& trace) {
  replay::ReplayBuilder builder;
  replay::ReadTrace(trace, "test",
                    [&builder](replay::TraceEvent event) { builder.Take(std::move(event)); });
  return builder.Complete("test", "test.trace");
}

platform::ServerDescription DescriptionOf(const replay::Replay& replay) {
  return platform::ParseServerDescription(replay::WriteDescription(replay), "replayed");
}

void ForEachOddServer(const std::function<void(const std::string& name, const fuzz::ServerCase& one,
                                               const std::string& trace)>& visit) {
  constexpr std::ptrdiff_t kMostLines = 40'000;  // more take too long to compare
  std::mt19937 random(1);  // NOLINT(cert-msc51-cpp): the same servers every time
  const fuzz::Seeds seeds =
      fuzz::SeedsOf("query", fuzz::ReadServers(std::filesystem::path(SourceFolder()) / "servers"));
  std::size_t servers = 0;
  for (int round = 0; servers < kOddServers; ++round) {
    for (const auto& [name, bytes] : seeds) {
      const fuzz::ServerCase one = Decode(round == 0 ? bytes : Mutate(bytes, random));
      const std::string trace = TraceOf(one.server, one.queries);
      if (std::ranges::count(trace, '\n') > kMostLines) continue;
      visit(name + ", round " + std::to_string(round), one, trace);
      if (++servers == kOddServers) return;
    }
  }
}

}  // namespace strake::tests
