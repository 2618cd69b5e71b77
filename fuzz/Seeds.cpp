#include "fuzz/Seeds.h"

#include "fuzz/Harnesses.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace strake::fuzz {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kExtension = ".server.json";

}  // namespace

std::string ReadBytes(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  if (!in) throw std::runtime_error(file.string() + ": cannot be read");
  return {std::istreambuf_iterator<char>(in), {}};
}

std::vector<NamedServer> ReadServers(const fs::path& folder) {
  std::vector<NamedServer> servers;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
    std::string name = entry.path().filename().string();
    if (!name.ends_with(kExtension)) continue;
    name.resize(name.size() - kExtension.size());
    servers.push_back({name, ReadBytes(entry.path()), platform::ReadServerDescription(entry)});
  }
  if (servers.empty()) throw std::runtime_error(folder.string() + ": holds no server");
  std::ranges::sort(servers, {}, &NamedServer::name);
  return servers;
}

Seeds SeedsOf(std::string_view harness, const std::vector<NamedServer>& servers) {
  if (harness == "description") return DescriptionSeeds(servers);
  if (harness == "replay") return ReplaySeeds(servers);
  if (harness == "report") return ReportSeeds(servers);
  if (harness == "walk") return WalkSeeds(servers);
  if (harness != "query") throw std::out_of_range("no seeds for " + std::string(harness));
  Seeds query = QuerySeeds(servers);
  query.merge(HostileQuerySeeds());
  return query;
}

}  // namespace strake::fuzz
