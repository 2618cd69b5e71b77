// A subcommand and its options, apart from the library that takes the words:
// that costs every source which includes it seconds.
#pragma once

#include "app/CommandOutline.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace CLI {  // NOLINT(readability-identifier-naming): the library's
class App;
class Option;
}  // namespace CLI

namespace strake::app {

// The value as it was typed: converted, "{}" and the empty text would be none.
using Take = std::function<void(const std::string&)>;
// What is wrong with a value; empty when it is fine.
using Refusal = std::function<std::string(const std::string&)>;

// What the library does not keep of an option.
struct OptionHints {
  bool isFile = false;
  std::vector<std::string> offered;
};

class Option {
 public:
  Option(CLI::Option* option, OptionHints& hints) : fOption(option), fHints(&hints) {}

  Option& Check(const Refusal& refusal);
  // Its value is one of these, and any other is refused; the noun is for the refusal.
  Option& OneOf(std::vector<std::string> names, const std::string& noun = "");
  // Values that completion offers; what is refused is for a check to say.
  Option& Offers(std::vector<std::string> values);
  // Its value is the name of a file, and not empty.
  Option& NamesFile();
  // Given several times, it takes every value.
  Option& Repeatable();
  // Of one that has no name of its own: all words that follow.
  Option& Several();
  Option& Required();
  Option& Excludes(const Option& other);

 private:
  CLI::Option* fOption;
  OptionHints* fHints;
};

class DefinedSubcommand;

// A handle: what it names belongs to the command line.
class Subcommand {
 public:
  Subcommand(CLI::App& app, const std::string& name, const std::string& description,
             const std::string& footer = "");

  // A name without dashes is the place of a word.
  Option AddValue(const std::string& name, const std::string& type, const std::string& text,
                  const Take& take);
  // One that names a file.
  Option AddFile(const std::string& name, const std::string& text,
                 std::optional<std::filesystem::path>& file);
  void AddFlag(const std::string& name, const std::string& text, const std::function<void()>& take);

  // When the words were taken.
  [[nodiscard]] bool IsGiven() const;
  [[nodiscard]] bool HasOption(const std::string& name) const;
  // The options that were given, as "--name=value" and "--name", but for these.
  [[nodiscard]] std::vector<std::string> GivenWords(std::span<const std::string_view> but) const;

  // Throws UsageError: this, and where to read more.
  [[noreturn]] void Refuse(const std::string& text) const;

 private:
  DefinedSubcommand* fCommand;
};

// Of the command or a subcommand.
CommandOutline OutlineOf(const CLI::App& command);

}  // namespace strake::app
