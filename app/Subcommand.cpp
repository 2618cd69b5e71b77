#include "app/Subcommand.h"

#include "app/Errors.h"
#include "os/FileName.h"
#include "text/OrList.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <utility>

namespace strake::app {

class DefinedSubcommand : public CLI::App {
 public:
  DefinedSubcommand(const std::string& description, const std::string& name)
      : CLI::App(description, name) {}

  OptionHints& HintsOf(const CLI::Option* option) { return fHints[option]; }
  [[nodiscard]] OptionHints FindHints(const CLI::Option* option) const {
    const auto found = fHints.find(option);
    return found == fHints.end() ? OptionHints() : found->second;
  }

 private:
  std::map<const CLI::Option*, OptionHints> fHints;
};

namespace {

DefinedSubcommand* Define(CLI::App& app, const std::string& name, const std::string& description) {
  const auto command = std::make_shared<DefinedSubcommand>(description, name);
  command->allow_windows_style_options(false);  // "/" begins the name of a file everywhere
  app.add_subcommand(command);
  return command.get();
}

std::string RefuseEmptyName(const std::string& name) {
  return name.empty() ? "the name of a file was expected" : "";
}

OptionOutline Outline(const CLI::Option& option, OptionHints hints) {
  OptionOutline outline;
  for (const std::string& name : option.get_snames()) {
    outline.names.push_back("-" + name);
  }
  for (const std::string& name : option.get_lnames()) {
    outline.names.push_back("--" + name);
  }
  outline.text = option.get_description();
  outline.type = option.get_items_expected_max() == 0 ? "" : option.get_type_name();
  outline.isFile = hints.isFile;
  outline.offered = std::move(hints.offered);
  outline.isRepeatable = option.get_positional()
                             ? option.get_items_expected_max() > 1
                             : option.get_multi_option_policy() == CLI::MultiOptionPolicy::TakeAll;
  return outline;
}

}  // namespace

Option& Option::Check(const Refusal& refusal) {
  fOption->check(refusal);
  return *this;
}

Option& Option::OneOf(std::vector<std::string> names, const std::string& noun) {
  Offers(names);
  return Check([names = std::move(names), noun](const std::string& value) -> std::string {
    if (std::ranges::find(names, value) != names.end()) {
      return "";
    }
    const std::string expected = ", expected " + text::OrList(names, std::identity());
    return noun.empty() ? "'" + value + "' is none" + expected
                        : "there is no " + noun + " '" + value + "'" + expected;
  });
}

Option& Option::Offers(std::vector<std::string> values) {
  fHints->offered = std::move(values);
  return *this;
}

Option& Option::NamesFile() {
  fHints->isFile = true;
  return Check(RefuseEmptyName);
}

Option& Option::Repeatable() {
  fOption->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
  return *this;
}

Option& Option::Several() {
  fOption->expected(1, CLI::detail::expected_max_vector_size)->allow_extra_args();
  return *this;
}

Option& Option::Required() {
  fOption->required();
  return *this;
}

Option& Option::Excludes(const Option& other) {
  fOption->excludes(other.fOption);
  return *this;
}

Subcommand::Subcommand(CLI::App& app, const std::string& name, const std::string& description,
                       const std::string& footer)
    : fCommand(Define(app, name, description)) {
  fCommand->footer(footer);
}

Option Subcommand::AddValue(const std::string& name, const std::string& type,
                            const std::string& text, const Take& take) {
  const auto takeAll = [take](const CLI::results_t& values) {
    for (const std::string& value : values) {
      take(value);
    }
    return true;
  };
  CLI::Option* const option =
      fCommand->add_option(name, takeAll, text)->type_name(type)->allow_extra_args(false);
  return {option, fCommand->HintsOf(option)};
}

Option Subcommand::AddFile(const std::string& name, const std::string& text,
                           std::optional<std::filesystem::path>& file) {
  return AddValue(name, "FILE", text,
                  [&file](const std::string& value) { file = os::FileNamed(value); })
      .NamesFile();
}

void Subcommand::AddFlag(const std::string& name, const std::string& text,
                         const std::function<void()>& take) {
  fCommand->add_flag_callback(name, take, text);
}

bool Subcommand::IsGiven() const { return fCommand->parsed(); }

bool Subcommand::HasOption(const std::string& name) const { return fCommand->count(name) != 0; }

std::vector<std::string> Subcommand::GivenWords(std::span<const std::string_view> but) const {
  std::vector<std::string> words;
  for (const CLI::Option* const option : fCommand->get_options()) {
    const std::string name = option->get_name();
    if (std::ranges::find(but, name) != but.end()) {
      continue;
    }
    const bool isFlag = option->get_items_expected_max() == 0;
    for (const std::string& value : option->results()) {
      std::string& word = words.emplace_back(name);
      if (!isFlag) {
        word.append("=").append(value);
      }
    }
  }
  return words;
}

void Subcommand::Refuse(const std::string& text) const {
  throw UsageError(text + " (see strake " + fCommand->get_name() + " --help)");
}

CommandOutline OutlineOf(const CLI::App& command) {
  CommandOutline outline;
  outline.name = command.get_name();
  outline.text = command.get_description();
  const auto* const defined = dynamic_cast<const DefinedSubcommand*>(&command);
  for (const CLI::Option* const option : command.get_options()) {
    auto& place = option->get_positional() ? outline.words : outline.options;
    place.push_back(
        Outline(*option, defined == nullptr ? OptionHints() : defined->FindHints(option)));
  }
  for (const CLI::App* const subcommand : command.get_subcommands({})) {
    outline.subcommands.push_back(OutlineOf(*subcommand));
  }
  return outline;
}

}  // namespace strake::app
