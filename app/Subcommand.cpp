#include "app/Subcommand.h"

#include "app/Errors.h"

#include <CLI/CLI.hpp>
#include <algorithm>

namespace strake::app {

Option& Option::Check(const Refusal& refusal) {
  fOption->check(refusal);
  return *this;
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
    : fCommand(app.add_subcommand(name, description)) {
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
  return Option(
      fCommand->add_option(name, takeAll, text)->type_name(type)->allow_extra_args(false));
}

Option Subcommand::AddFile(const std::string& name, const std::string& text,
                           std::optional<std::filesystem::path>& file) {
  return AddValue(name, "FILE", text, [&file](const std::string& value) { file = value; })
      .Check(RefuseEmptyName);
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

std::string RefuseEmptyName(const std::string& name) {
  return name.empty() ? "the name of a file was expected" : "";
}

}  // namespace strake::app
