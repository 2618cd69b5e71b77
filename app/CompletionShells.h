// The table of the shells that completion is written for.
#pragma once

#include "app/CommandOutline.h"

#include <span>
#include <string>
#include <string_view>

namespace strake::app {

struct CompletionShell {
  std::string_view name;
  // A script that the shell reads.
  std::string (*write)(const CommandOutline& command);
};

std::span<const CompletionShell> CompletionShells();

// Null when there is none of this name.
const CompletionShell* FindCompletionShell(std::string_view name);

// Each in a source file of its own. The command has subcommands, and they have none.
std::string BashCompletion(const CommandOutline& command);
std::string ZshCompletion(const CommandOutline& command);
std::string FishCompletion(const CommandOutline& command);

}  // namespace strake::app
