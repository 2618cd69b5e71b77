// make_seeds SERVERS CORPUS: writes the seeds of every harness, made from the
// descriptions in the folder SERVERS, into folders of CORPUS. Other files there
// are left alone. Built with sanitizers it needs tests/lsan.supp, as everything
// that runs the plug-in does:
//   LSAN_OPTIONS=suppressions=tests/lsan.supp build/fuzz/bin/make_seeds servers fuzz/corpus
#include "fuzz/Harnesses.h"
#include "fuzz/Seeds.h"

#include <exception>
#include <fstream>
#include <iostream>
#include <span>
#include <stdexcept>

namespace strake::fuzz {
namespace {

namespace fs = std::filesystem;

void Write(const Seeds& seeds, const fs::path& folder) {
  fs::create_directories(folder);
  for (const auto& [name, bytes] : seeds) {
    std::ofstream out(folder / name, std::ios::binary);
    out << bytes;
    if (!out.flush()) throw std::runtime_error((folder / name).string() + ": cannot be written");
  }
  std::cout << seeds.size() << " seeds in " << folder.string() << '\n';
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
    const auto servers = strake::fuzz::ReadServers(arguments[1]);
    const std::filesystem::path corpus = arguments[2];
    for (const strake::fuzz::Harness& harness : strake::fuzz::kHarnesses) {
      strake::fuzz::Write(strake::fuzz::SeedsOf(harness.name, servers), corpus / harness.name);
    }
    return 0;
  } catch (const std::exception& error) {
    std::cerr << "make_seeds: " << error.what() << '\n';
    return 1;
  }
}
