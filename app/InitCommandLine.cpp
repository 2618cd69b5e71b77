// The options of `strake init`.
#include "app/AskedCommands.h"
#include "app/Subcommands.h"
#include "findings/TavitLists.h"
#include "text/OrList.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace strake::app {
namespace {

using platform::SpKind;

constexpr const char* kInitExamples =
    R"(Writes a server description to begin with: one service processor with an answer
of the right form to everything that it is asked, and neutral values. Its
"description" says what there is to fill in.

Examples:
  strake init --output rack7.server.json
  strake init --kind orlo --machine 5301-AR2
  strake init --kind tavit --machine 5125 | strake collect --server -

Exit status: 0 the description is written, 1 it cannot be, 2 wrong usage, or the
file is there already and not empty.)";

constexpr std::array<SpKind, 2> kKinds = {SpKind::Orlo, SpKind::Tavit};

constexpr std::size_t kTypeDigits = 4;
constexpr const char* kUsualModel = "-AC1";

// Four digits, and after a dash letters and digits.
std::string RefuseMachine(const std::string& name) {
  const auto isDigit = [](char character) { return character >= '0' && character <= '9'; };
  const auto isOfModel = [isDigit](char character) {
    return isDigit(character) || (character >= 'A' && character <= 'Z') ||
           (character >= 'a' && character <= 'z');
  };
  const std::string_view type = std::string_view(name).substr(0, kTypeDigits);
  const std::string_view rest = std::string_view(name).substr(type.size());
  const bool isType = type.size() == kTypeDigits && std::ranges::all_of(type, isDigit);
  const bool isModel = rest.empty() || (rest.size() > 1 && rest.front() == '-' &&
                                        std::ranges::all_of(rest.substr(1), isOfModel));
  return isType && isModel
             ? ""
             : "'" + name +
                   "' is no machine type, expected four digits, or these and a model: "
                   "9999, 9999-AC1";
}

}  // namespace

Subcommand AddInit(CLI::App& app, InitOptions& options) {
  Subcommand command(app, "init", "Write a server description to begin with", kInitExamples);
  command
      .AddValue("--kind", "KIND",
                "Of the service processor: " + text::OrList(kKinds, platform::KindName) +
                    "; default: orlo",
                [&options](const std::string& value) {
                  options.kind = *std::ranges::find(kKinds, value, platform::KindName);
                })
      .OneOf(text::Names(kKinds, platform::KindName), "kind");
  command
      .AddValue("--machine", "TYPE",
                "The machine type, or type and model; default: 9999-AC1, for tavit " +
                    std::string(findings::TavitMachines().front()) + kUsualModel,
                [&options](const std::string& value) { options.machineTypeModel = value; })
      .Check(RefuseMachine);
  command.AddFile("--output", "Where the description goes; default: standard output",
                  options.output);
  return command;
}

void CompleteInit(const Subcommand& command, InitOptions& options) {
  std::string& machine = options.machineTypeModel;
  const bool isTavit = options.kind == SpKind::Tavit;
  if (machine.empty()) {
    machine = isTavit ? std::string(findings::TavitMachines().front())
                      : platform::HostSettings().machineTypeModel.text;
  }
  if (isTavit && !HasTavitProcessor(machine)) {
    command.Refuse("--machine: " + machine.substr(0, kTypeDigits) +
                   " has no Tavit processor, expected " +
                   text::OrList(findings::TavitMachines(), std::identity()));
  }
  if (machine.size() == kTypeDigits) {
    machine += kUsualModel;
  }
}

}  // namespace strake::app
