#include "app/CommandLine.h"

#include "app/BuiltInServers.h"
#include "app/Errors.h"
#include "app/QueryPlan.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <functional>
#include <utility>

namespace strake::app {
namespace {

constexpr int kHighestLogLevel = 4;

constexpr const char* kExamples = R"(Examples:
  strake collect                        the demonstration server, as a table
  strake collect --demo demo-tavit      the other demonstration server
  strake collect --server rack7.server.json --class VELKSG_SP_NumericSensor
  strake collect --format json --output report.json --trace run.trace
  strake check rack7.server.json        is this server description fine?

'strake collect --help' and 'strake check --help' say more.)";

constexpr const char* kCollectExamples = R"(Examples:
  strake collect
  strake collect --class VELKSG_SP_ComputerSystem --class VELKSG_SP_NumericSensor
  strake collect --query VELKSG_SP_ComputerSystem,VELKSG_SP_NumericSensor --query ""
  strake collect --server rack7.server.json --format json --output report.json
  strake collect --log run.log --trace run.trace

Exit status: 0 the queries ran, 1 the run failed, 2 wrong usage or a refused input.
Traces and logs hold what the service processors said, passwords included; they
are created with mode 0600.)";

constexpr const char* kCheckExamples = R"(Example:
  strake check rack7.server.json

Exit status: 0 the description is fine, 2 it is refused.)";

// The value as it was typed: converted, "{}" and the empty text would be none.
using Take = std::function<void(const std::string&)>;

CLI::Option* AddValue(CLI::App& app, const std::string& name, const std::string& type,
                      const std::string& text, const Take& take) {
  const auto takeAll = [take](const CLI::results_t& values) {
    for (const std::string& value : values) {
      take(value);
    }
    return true;
  };
  return app.add_option(name, takeAll, text)->type_name(type)->allow_extra_args(false);
}

std::string RefuseEmptyName(const std::string& name) {
  return name.empty() ? "the name of a file was expected" : "";
}

std::string RefuseUnknownClass(const std::string& name) {
  return IsKnownClass(name) ? ""
                            : "there is no class '" + name + "', expected one of " + KnownClasses();
}

std::string RefuseUnknownDemo(const std::string& name) {
  return FindBuiltInServer(name) != nullptr ? ""
                                            : "there is no built-in server '" + name +
                                                  "', expected one of " + BuiltInServerNames();
}

std::string RefuseUnknownFormat(const std::string& name) {
  return name == "table" || name == "json"
             ? ""
             : "there is no format '" + name + "', expected table or json";
}

std::string RefuseLogLevel(const std::string& level) {
  const bool isLevel = level.size() == 1 && level[0] >= '0' && level[0] <= '0' + kHighestLogLevel;
  return isLevel ? "" : "'" + level + "' is no level, expected 0 to 4";
}

CLI::Option* AddFile(CLI::App& app, const std::string& name, const std::string& text,
                     std::optional<std::filesystem::path>& file) {
  return AddValue(app, name, "FILE", text, [&file](const std::string& value) { file = value; })
      ->check(RefuseEmptyName);
}

void AddInput(CLI::App& app, CollectOptions& options) {
  CLI::Option* const server =
      AddFile(app, "--server", "The server description (*.server.json)", options.server);
  AddValue(app, "--demo", "NAME",
           "A built-in demonstration server: " + BuiltInServerNames() + "; default: demo-orlo",
           [&options](const std::string& value) { options.demo = value; })
      ->check(RefuseUnknownDemo)
      ->excludes(server);
  AddFile(app, "--plugin", "The plug-in module; default: strake.so near the command",
          options.plugin);
}

void AddQueries(CLI::App& app, CollectOptions& options) {
  CLI::Option* const classes =
      AddValue(app, "--class", "NAME", "A class that is wanted (repeatable); default: all eight",
               [&options](const std::string& value) { options.classes.push_back(value); })
          ->check(RefuseUnknownClass)
          ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
  AddValue(app, "--query", "LIST",
           "Instead: one query with exactly these classes, separated by commas (repeatable); "
           "\"\" asks for none",
           [&options](const std::string& value) { options.queries.push_back(value); })
      ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
      ->excludes(classes);
}

void AddOutput(CLI::App& app, CollectOptions& options) {
  AddValue(app, "--format", "FORMAT", "The report's format: table (default) or json",
           [&options](const std::string& value) {
             options.format = value == "json" ? ReportFormat::Json : ReportFormat::Table;
           })
      ->check(RefuseUnknownFormat);
  AddFile(app, "--output", "Where the report goes; default: standard output", options.output);
  AddFile(app, "--trace", "Where to record what crosses the plug-in's boundary", options.trace);
  AddFile(app, "--log", "Where log lines go; default: standard error", options.log);
  AddValue(app, "--log-level", "N",
           "Log lines up to this level, 0 to 4; default: 2, or 4 with --log",
           [&options](const std::string& value) { options.logLevel = value[0] - '0'; })
      ->check(RefuseLogLevel);
  app.add_flag("--show-secrets", options.showSecrets,
               "Report passwords, PINs and community names in clear");
}

// CLI11 takes "--name=" for an option whose value follows. It is an empty value.
std::vector<std::string> Words(int argc, const char* const* argv) {
  std::vector<std::string> words;
  for (int index = 1; index < argc; ++index) {
    std::string word = argv[index];  // NOLINT(cppcoreguidelines-pro-bounds-pointer-arithmetic)
    if (word.size() > 3 && word.compare(0, 2, "--") == 0 && word.find('=') == word.size() - 1) {
      word.pop_back();
      words.push_back(std::move(word));
      words.emplace_back();
    } else {
      words.push_back(std::move(word));
    }
  }
  return words;
}

// Gives a text when one was asked for instead of work.
std::optional<TextAnswer> Parse(CLI::App& app, std::vector<std::string> words) {
  std::reverse(words.begin(), words.end());  // as CLI11 takes them
  try {
    app.parse(std::move(words));
  } catch (const CLI::CallForHelp&) {
    return TextAnswer{app.help()};
  } catch (const CLI::CallForVersion& version) {
    return TextAnswer{std::string(version.what()) + "\n"};
  } catch (const CLI::ParseError& error) {
    throw UsageError(std::string(error.what()) + " (see strake --help)");
  }
  return std::nullopt;
}

}  // namespace

CommandLine ParseCommandLine(int argc, const char* const* argv) {
  CLI::App app("Collects what a server's service processors say about themselves.", "strake");
  app.set_version_flag("--version", "strake " STRAKE_VERSION);
  app.require_subcommand(1);
  app.footer(kExamples);

  CollectOptions collect;
  CLI::App& collectCommand = *app.add_subcommand("collect", "Query the plug-in, print a report");
  collectCommand.footer(kCollectExamples);
  AddInput(collectCommand, collect);
  AddQueries(collectCommand, collect);
  AddOutput(collectCommand, collect);

  CheckOptions check;
  CLI::App& checkCommand = *app.add_subcommand("check", "Check a server description");
  checkCommand.footer(kCheckExamples);
  AddValue(checkCommand, "file", "FILE", "The server description (*.server.json)",
           [&check](const std::string& value) { check.file = value; })
      ->required()
      ->check(RefuseEmptyName);

  if (std::optional<TextAnswer> answer = Parse(app, Words(argc, argv))) {
    return *std::move(answer);
  }
  if (checkCommand.parsed()) {
    return check;
  }
  if (collect.log && collectCommand.count("--log-level") == 0) {
    collect.logLevel = kHighestLogLevel;
  }
  return collect;
}

}  // namespace strake::app
