#include "app/ManyServersOptions.h"

#include "app/Duration.h"
#include "app/Input.h"
#include "os/FileIdentity.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>
#include <thread>
#include <utility>

namespace strake::app {
namespace {

constexpr std::size_t kMostJobs = 256;  // each takes three descriptors of a customary 1024
constexpr std::string_view kFormat = "jsonl";

std::optional<std::size_t> ParseJobs(const std::string& text) {
  std::size_t jobs = 0;
  const char* const end = std::to_address(text.end());
  const auto [stop, error] = std::from_chars(text.data(), end, jobs);
  const bool isNumber = error == std::errc() && stop == end && jobs >= 1 && jobs <= kMostJobs;
  return isNumber ? std::optional(jobs) : std::nullopt;
}

std::string RefuseJobs(const std::string& text) {
  return ParseJobs(text) ? ""
                         : "'" + text + "' is no number of processes, expected 1 to " +
                               std::to_string(kMostJobs);
}

std::size_t DefaultJobs() {
  return std::clamp<std::size_t>(std::thread::hardware_concurrency(), 1, kMostJobs);
}

// Which of them makes it a collection in processes of their own; empty: none.
std::string Reason(const Subcommand& command, const CollectOptions& options) {
  for (const char* const option : {"--jobs", "--timeout"}) {
    if (command.HasOption(option)) {
      return option;
    }
  }
  return options.many.servers.size() > 1 ? "several --server" : "";
}

void RefuseWhatIsForOneServer(const Subcommand& command, const CollectOptions& options,
                              const std::string& reason) {
  if (options.many.servers.empty()) {
    command.Refuse(reason + ": expected --server beside it");
  }
  if (options.format->name != kFormat) {
    command.Refuse(reason + ": expected --format " + std::string(kFormat));
  }
  for (const char* const option : {"--trace", "--log"}) {
    if (command.HasOption(option)) {
      std::string refusal = option;
      command.Refuse(refusal.append(": a file for one server, not to be had with ").append(reason));
    }
  }
  if (options.limits &&
      (options.limits == kStandardInput || !os::CanBeReadAgain(*options.limits))) {
    command.Refuse("--limits: expected a regular file, which can be read for each server, got " +
                   InputName(*options.limits));
  }
  if (std::ranges::count_if(options.many.servers, IsStandardInput) > 1) {
    command.Refuse("--server: two of them are standard input");
  }
}

}  // namespace

void AddManyServers(Subcommand& app, CollectOptions& options) {
  app.AddValue(
         "--jobs", "N", "So many servers at once, with --format jsonl; default: one for each core",
         [&options](const std::string& value) { options.many.jobs = ParseJobs(value).value_or(1); })
      .Check(RefuseJobs);
  app.AddValue(
         "--timeout", "DURATION",
         "At most so long for each server, with --format jsonl; default: as long as it takes",
         [&options](const std::string& value) { options.many.timeout = ParseDuration(value); })
      .Check(RefuseDuration);
}

void CompleteManyServers(const Subcommand& command, CollectOptions& options) {
  ManyServers& many = options.many;
  const std::string reason = Reason(command, options);
  if (reason.empty()) {
    if (!many.servers.empty()) {
      options.server = std::move(many.servers.front());
      many.servers.clear();
    }
    return;
  }
  RefuseWhatIsForOneServer(command, options, reason);
  if (!command.HasOption("--jobs")) {
    many.jobs = DefaultJobs();
  }
  constexpr std::array<std::string_view, 5> kOwn{"--server", "--jobs", "--timeout", "--format",
                                                 "--output"};
  many.words = command.GivenWords(kOwn);
  many.words.insert(many.words.begin(), "collect");
  many.words.push_back(std::string("--format=").append(kFormat));
}

}  // namespace strake::app
