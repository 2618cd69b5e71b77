// Programs that check what was written.
#pragma once

#include <array>
#include <cstdio>
#include <string>

namespace strake::tests {

// A program's path, found when this was configured; empty: it is not installed.
struct Tool {
  std::string path;
  std::string package;
};

struct ToolEnd {
  int status = -1;
  std::string text;  // of both streams

  friend bool operator==(const ToolEnd&, const ToolEnd&) = default;
};

inline std::ostream& operator<<(std::ostream& stream, const ToolEnd& end) {
  return stream << "status " << end.status << "\n" << end.text;
}

inline std::string InShellQuotes(const std::string& word) {
  std::string quoted = "'";
  for (const char character : word) {
    quoted += character == '\'' ? R"('\'')" : std::string(1, character);
  }
  return quoted + '\'';
}

// The arguments are words of the shell's, and so are assignments for its environment.
inline ToolEnd RunTool(const Tool& tool, const std::string& arguments,
                       const std::string& environment = "") {
  if (tool.path.empty() || tool.path.ends_with("-NOTFOUND")) {
    return {-1, "not installed: " + tool.package + " (scripts/install-packages tests)"};
  }
  const std::string line = environment + ' ' + InShellQuotes(tool.path) + ' ' + arguments + " 2>&1";
  std::FILE* const pipe = ::popen(line.c_str(), "r");
  if (pipe == nullptr) return {-1, "it cannot be started: " + line};
  ToolEnd end;
  std::array<char, 4096> piece{};
  for (std::size_t count = 1; count > 0;) {
    count = std::fread(piece.data(), 1, piece.size(), pipe);
    end.text.append(piece.data(), count);
  }
  end.status = ::pclose(pipe);
  return end;
}

inline Tool Python() { return {STRAKE_PYTHON, "python3, python3-jsonschema"}; }
inline Tool XmlLint() { return {STRAKE_XMLLINT, "libxml2-utils"}; }

}  // namespace strake::tests
