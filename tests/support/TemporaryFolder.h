// A folder that disappears with the test.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <set>
#include <string>

namespace strake::tests {

class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::random_device random;
    do {
      fPath = std::filesystem::temp_directory_path() / ("strake-test-" + std::to_string(random()));
    } while (!std::filesystem::create_directory(fPath));
    std::filesystem::permissions(fPath, std::filesystem::perms::owner_all);
    fPath = std::filesystem::canonical(fPath);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() { std::filesystem::remove_all(fPath); }

  [[nodiscard]] std::string operator/(const std::string& name) const {
    return (fPath / name).string();
  }

  // Gives the file's name.
  [[nodiscard]] std::string Write(const std::string& name, const std::string& bytes) const {
    std::ofstream(fPath / name, std::ios::binary) << bytes;
    return *this / name;
  }

  [[nodiscard]] std::set<std::string> Names() const {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(fPath)) {
      names.insert(entry.path().filename().string());
    }
    return names;
  }

  // For tests that become another user.
  void OpenToAll() const { std::filesystem::permissions(fPath, std::filesystem::perms::all); }

  [[nodiscard]] const std::filesystem::path& Path() const { return fPath; }

 private:
  std::filesystem::path fPath;
};

inline std::string ReadFile(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

// The permission bits.
inline unsigned int ModeOf(const std::filesystem::path& file) {
  return static_cast<unsigned int>(std::filesystem::status(file).permissions());
}

}  // namespace strake::tests
