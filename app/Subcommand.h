// A subcommand and its options, apart from the library that takes the words:
// that costs every source which includes it seconds.
#pragma once

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

class Option {
 public:
  explicit Option(CLI::Option* option) : fOption(option) {}

  Option& Check(const Refusal& refusal);
  // Given several times, it takes every value.
  Option& Repeatable();
  // Of one that has no name of its own: all words that follow.
  Option& Several();
  Option& Required();
  Option& Excludes(const Option& other);

 private:
  CLI::Option* fOption;
};

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
  CLI::App* fCommand;
};

// A check for the name of a file.
std::string RefuseEmptyName(const std::string& name);

}  // namespace strake::app
