// Servers that are collected together, some of which keep their process waiting.
#pragma once

#include "tests/app/Command.h"
#include "tests/app/System.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

namespace strake::tests {

// A process costs a sanitizer a hundred times as much.
#ifdef __SANITIZE_ADDRESS__
inline constexpr std::size_t kMany = 30;
inline constexpr const char* kTimeout = "10s";
#else
inline constexpr std::size_t kMany = 300;
inline constexpr const char* kTimeout = "2s";
#endif

inline std::vector<std::string> LinesOf(const std::string& text) {
  std::istringstream stream(text);
  std::vector<std::string> lines;
  for (std::string line; std::getline(stream, line);) {
    lines.push_back(line);
  }
  return lines;
}

// Without the one thing in which two collections of a server differ.
inline std::string WithoutTime(std::string text) {
  const std::string key = "\"collected_at\":\"";
  for (auto at = text.find(key); at != std::string::npos; at = text.find(key, at)) {
    at += key.size();
    text.erase(at, text.find('"', at) - at);
  }
  return text;
}

class CommandManyServersTest : public testing::Test {
 protected:
  // One card, that has a clock.
  [[nodiscard]] std::string Server(const std::string& name, const std::string& machine = "5301-AR2",
                                   int latency = 0) const {
    return fFolder.Write(name, R"({"format": "strake-server/1", "machine_type_model": ")" +
                                   machine + R"(", "sp": {"kind": "orlo", "latency_ms": )" +
                                   std::to_string(latency) +
                                   R"(, "instances": [{"dot_commands": {"1.1": "01",
                      "4.4.1": "18 03 12 01 09 29 1B", "4.4.2": "3C 00"}}]}})");
  }
  // One that keeps its process waiting.
  [[nodiscard]] std::string Silent(const std::string& name) const {
    return Server(name, "5301-AR2", 60000);
  }

  // "strake collect" with the module of the tests.
  static std::vector<std::string> Collecting(const std::vector<std::string>& servers,
                                             const std::vector<std::string>& more = {}) {
    std::vector<std::string> words = {"collect", "--plugin", ErraticModule(), "--class", "system"};
    for (const std::string& server : servers) {
      words.insert(words.end(), {"--server", server});
    }
    words.insert(words.end(), {"--format", "jsonl"});
    words.insert(words.end(), more.begin(), more.end());
    return words;
  }
  static Outcome Collect(const std::vector<std::string>& servers,
                         const std::vector<std::string>& more = {}) {
    return Strake(Collecting(servers, more));
  }

  // The line that stands for a report.
  static std::string Failure(const std::string& name, const std::string& text) {
    return R"({"format":"strake-error/1","strake":")" STRAKE_VERSION R"(","server":{"name":)" +
           nlohmann::json(name).dump() + R"(},"error":)" + nlohmann::json(text).dump() + "}\n";
  }

  void ExpectNothingLeft() const { EXPECT_EQ(CountProcessesWith(fFolder.Path().string()), 0U); }

  TemporaryFolder fFolder;
};

}  // namespace strake::tests
