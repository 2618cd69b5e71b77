// make_seeds SERVERS CORPUS: writes the seeds of every harness, made from the
// descriptions in the folder SERVERS, into folders of CORPUS. Other files there
// are left alone. Built with sanitizers it needs tests/lsan.supp, as everything
// that runs the plug-in does:
//   LSAN_OPTIONS=suppressions=tests/lsan.supp build/fuzz/bin/make_seeds servers fuzz/corpus
#include "fuzz/Seeds.h"

#include <algorithm>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <span>

namespace strake::fuzz {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kExtension = ".server.json";

std::string ReadFile(const fs::path& file) {
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
    servers.push_back({name, ReadFile(entry.path()), platform::ReadServerDescription(entry)});
  }
  if (servers.empty()) throw std::runtime_error(folder.string() + ": holds no server");
  std::ranges::sort(servers, {}, &NamedServer::name);
  return servers;
}

void Write(const Seeds& seeds, const fs::path& folder) {
  fs::create_directories(folder);
  for (const auto& [name, bytes] : seeds) {
    std::ofstream out(folder / name, std::ios::binary);
    out << bytes;
    if (!out.flush()) throw std::runtime_error((folder / name).string() + ": cannot be written");
  }
  std::cout << seeds.size() << " seeds in " << folder.string() << '\n';
}

void MakeSeeds(const fs::path& serverFolder, const fs::path& corpus) {
  const std::vector<NamedServer> servers = ReadServers(serverFolder);
  Seeds query = QuerySeeds(servers);
  query.merge(HostileQuerySeeds());
  Write(query, corpus / "query");
  Write(WalkSeeds(servers), corpus / "walk");
  Write(DescriptionSeeds(servers), corpus / "description");
}

}  // namespace
}  // namespace strake::fuzz

int main(int count, char** values) {
  const std::span<char*> arguments(values, static_cast<std::size_t>(count));
  if (arguments.size() != 3) {
    std::cerr << "make_seeds: expected SERVERS CORPUS, two folders\n";
    return 2;
  }
  try {
    strake::fuzz::MakeSeeds(arguments[1], arguments[2]);
    return 0;
  } catch (const std::exception& error) {
    std::cerr << "make_seeds: " << error.what() << '\n';
    return 1;
  }
}
