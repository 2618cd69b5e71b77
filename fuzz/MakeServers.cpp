// make_servers SERVERS COUNT FOLDER: writes COUNT server descriptions into FOLDER,
// always the same ones: those in the folder SERVERS with bytes of their encoding
// changed at random.
#include "describe/DescriptionText.h"
#include "fuzz/Seeds.h"
#include "fuzz/ServerBytes.h"

#include <charconv>
#include <exception>
#include <fstream>
#include <iostream>
#include <random>
#include <span>
#include <stdexcept>
#include <string_view>

namespace strake::fuzz {
namespace {

namespace fs = std::filesystem;

constexpr unsigned int kSeed = 20240318;
constexpr std::size_t kMostChanges = 40;

platform::ServerDescription Changed(std::string bytes, std::mt19937& random) {
  for (std::size_t left = random() % kMostChanges + 1; left != 0; --left) {
    bytes[random() % bytes.size()] = static_cast<char>(random());
  }
  return DecodeServer({reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size()}).server;
}

void Write(const fs::path& file, const platform::ServerDescription& server) {
  std::ofstream out(file, std::ios::binary);
  out << describe::DescriptionText(server, std::nullopt, describe::ReplyForm::Bytes);
  if (!out.flush()) {
    throw std::runtime_error(file.string() + ": cannot be written");
  }
}

void WriteAll(const fs::path& servers, std::size_t count, const fs::path& folder) {
  std::vector<std::string> encoded;
  for (const NamedServer& one : ReadServers(servers)) {
    encoded.push_back(EncodeServer({one.server, {{}}, {}}));
  }
  fs::create_directories(folder);
  std::mt19937 random(kSeed);  // NOLINT(cert-msc32-c,cert-msc51-cpp): the same servers every time
  for (std::size_t number = 0; number < count; ++number) {
    Write(folder / ("random-" + std::to_string(number) + ".server.json"),
          Changed(encoded[number % encoded.size()], random));
  }
}

}  // namespace
}  // namespace strake::fuzz

int main(int argc, char** argv) {
  const std::span<char*> arguments(argv, static_cast<std::size_t>(argc));
  const std::string_view number = arguments.size() == 4 ? arguments[2] : "";
  std::size_t count = 0;
  const auto [stop, error] = std::from_chars(number.begin(), number.end(), count);
  if (number.empty() || error != std::errc() || stop != number.end()) {
    std::cerr << "make_servers: expected SERVERS COUNT FOLDER, a folder, a number and a folder\n";
    return 2;
  }
  try {
    strake::fuzz::WriteAll(arguments[1], count, arguments[3]);
    return 0;
  } catch (const std::exception& failure) {
    std::cerr << "make_servers: " << failure.what() << '\n';
    return 1;
  }
}
