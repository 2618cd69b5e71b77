// What shells make of a completion script.
#pragma once

#include "tests/support/TemporaryFolder.h"
#include "tests/support/Tool.h"

#include <set>
#include <string>
#include <vector>

namespace strake::tests {

inline Tool Bash() { return {STRAKE_BASH, "bash"}; }
inline Tool Zsh() { return {STRAKE_ZSH, "zsh"}; }
inline Tool Fish() { return {STRAKE_FISH, "fish"}; }

// What it replies where names of files are wanted.
inline constexpr const char* kFiles = "(files)";

using Lines = std::vector<std::string>;
Lines LinesOf(const std::string& text);

// The scripts of the command, or some that are given.
class CompletionScripts {
 public:
  CompletionScripts();
  CompletionScripts(const std::string& bash, const std::string& fish);

  // The words are the line as readline splits it; the cursor stands at its end.
  [[nodiscard]] Lines InBash(const std::string& line, const Lines& words,
                             const std::string& breaks = " \t\n\"'><=;|&(:") const;
  // Without descriptions, in the order of the alphabet.
  [[nodiscard]] Lines InFish(const std::string& line) const;

  [[nodiscard]] const TemporaryFolder& Folder() const { return fFolder; }

 private:
  TemporaryFolder fFolder;
};

}  // namespace strake::tests
