#include "app/CompletionShells.h"

#include <algorithm>
#include <array>

namespace strake::app {
namespace {

constexpr std::array<CompletionShell, 3> kShells{{
    {"bash", BashCompletion},
    {"zsh", ZshCompletion},
    {"fish", FishCompletion},
}};

}  // namespace

std::span<const CompletionShell> CompletionShells() { return kShells; }

const CompletionShell* FindCompletionShell(std::string_view name) {
  const auto* const found = std::ranges::find(kShells, name, &CompletionShell::name);
  return found == kShells.end() ? nullptr : found;
}

}  // namespace strake::app
