// The options of `strake watch`.
#include "app/Duration.h"
#include "app/Percentage.h"
#include "app/QueryOptions.h"
#include "app/Subcommands.h"

#include <charconv>
#include <memory>

namespace strake::app {
namespace {

constexpr const char* kWatchExamples =
    R"(Collects again and again and shows the table: on a terminal drawn over the one
before, elsewhere one after the other. What changed stands in reverse, without
colours behind a ">". Clocks that went on are not marked. The plug-in stays
loaded, and a reply that is a list of replies goes on from round to round. A
signal, Ctrl-C as a rule, ends it.

Examples:
  strake watch --server rack7.server.json --class sensors
  strake watch --sensor "fan*" --interval 2s --tolerance 5
  strake watch --interval 1m --count 60 --no-header > hour.txt

Exit status: 0 the rounds of --count ran, 1 the run failed, 2 wrong usage or a
refused input.)";

std::optional<std::uint32_t> ParseCount(const std::string& text) {
  std::uint32_t count = 0;
  const char* const end = std::to_address(text.end());
  const auto [stop, error] = std::from_chars(text.data(), end, count);
  const bool isCount = error == std::errc() && stop == end && count > 0;
  return isCount ? std::optional(count) : std::nullopt;
}

std::string RefuseCount(const std::string& text) {
  return ParseCount(text) ? "" : "'" + text + "' is no count, expected a number from 1";
}

void AddRounds(Subcommand& app, WatchOptions& options) {
  app.AddValue("--interval", "DURATION",
               "From one round's begin to the next one's: 500ms, 10s, 5m; default: 10s",
               [&options](const std::string& value) { options.interval = *ParseDuration(value); })
      .Check(RefuseDuration);
  app.AddValue("--count", "N", "So many rounds; default: until a signal ends it",
               [&options](const std::string& value) { options.count = ParseCount(value); })
      .Check(RefuseCount);
  app.AddValue("--tolerance", "PERCENT",
               "Readings that changed by no more are not marked; default: 0",
               [&options](const std::string& value) {
                 options.tolerancePercent = ParsePercentage(value).value_or(0);
               })
      .Check(RefusePercentage);
}

}  // namespace

Subcommand AddWatch(CLI::App& app, WatchOptions& options) {
  Subcommand command(app, "watch", "Collect again and again, show what changed", kWatchExamples);
  AddRounds(command, options);
  AddInput(command, options.collect);
  AddQueries(command, options.collect);
  AddSelection(command, options.collect);
  AddLayout(command, options.collect);
  AddLog(command, options.collect);
  AddDiscretion(command, options.collect);
  return command;
}

}  // namespace strake::app
