// The options of `strake collect`.
#include "app/BuiltInServers.h"
#include "app/ClassNames.h"
#include "app/Errors.h"
#include "app/Input.h"
#include "app/PropertyFilter.h"
#include "app/QueryPlan.h"
#include "app/Subcommands.h"
#include "cim/Catalogue.h"
#include "text/OrList.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <memory>

namespace strake::app {
namespace {

constexpr int kHighestLogLevel = 4;

constexpr const char* kCollectExamples =
    R"(Where a file is asked for, - is standard input or output.

Examples:
  strake collect
  strake collect --class system --class sensors
  strake collect --class sensors --format csv --output sensors.csv
  strake collect --sensor 'fan*' --sort reading --limits limits.toml --fail-on warning
  strake collect --query VELKSG_SP_ComputerSystem,VELKSG_SP_NumericSensor --query ""
  strake collect --server rack7.server.json --format json --output report.json
  strake collect --log run.log --trace run.trace

Exit status: 0 the queries ran, 1 the run failed, 2 wrong usage or a refused input,
3 with --fail-on: there is a finding of that severity or above.
Traces and logs hold what the service processors said, passwords included; they
are created with mode 0600.)";

std::string RefuseUnknownClass(const std::string& name) {
  return cim::FindClassByAnyName(name) != nullptr ? "" : RefusalOfClass(name);
}

std::string RefuseUnknownDemo(const std::string& name) {
  return FindBuiltInServer(name) != nullptr ? ""
                                            : "there is no built-in server '" + name +
                                                  "', expected one of " + BuiltInServerNames();
}

std::string RefuseUnknownFormat(const std::string& name) {
  return report::FindFormat(name) != nullptr
             ? ""
             : "there is no format '" + name + "', expected " + report::FormatNames();
}

std::string RefuseLogLevel(const std::string& level) {
  const bool isLevel = level.size() == 1 && level[0] >= '0' && level[0] <= '0' + kHighestLogLevel;
  return isLevel ? "" : "'" + level + "' is no level, expected 0 to 4";
}

std::optional<int> ParseNode(const std::string& text) {
  int node = 0;
  const char* const end = std::to_address(text.end());
  const auto [stop, error] = std::from_chars(text.data(), end, node);
  const bool isNode =
      error == std::errc() && stop == end && node >= 1 && node <= report::kHighestProcessor;
  return isNode ? std::optional<int>(node) : std::nullopt;
}

std::string RefuseNode(const std::string& node) {
  return ParseNode(node) ? "" : "'" + node + "' is no service processor, expected 1 to 255";
}

std::string RefuseFilter(const std::string& filter) {
  try {
    static_cast<void>(ParsePropertyFilter(filter));
    return "";
  } catch (const UsageError& error) {
    return error.what();
  }
}

std::optional<report::Severity> ParseFailOn(const std::string& name) {
  const std::optional<report::Severity> severity = report::FindSeverity(name);
  return severity == report::Severity::Info ? std::nullopt : severity;
}

std::string RefuseFailOn(const std::string& name) {
  return ParseFailOn(name) ? "" : "'" + name + "' is none, expected warning or critical";
}

struct NamedOrder {
  std::string_view name;
  report::SensorOrder order;
};

constexpr std::array<NamedOrder, 3> kOrders{{
    {"name", report::SensorOrder::ByName},
    {"reading", report::SensorOrder::ByReading},
    {"state", report::SensorOrder::ByState},
}};

const NamedOrder* FindOrder(std::string_view name) {
  const auto* const found = std::ranges::find(kOrders, name, &NamedOrder::name);
  return found == kOrders.end() ? nullptr : found;
}

std::string RefuseOrder(const std::string& name) {
  return FindOrder(name) != nullptr
             ? ""
             : "'" + name + "' is none, expected " + text::OrList(kOrders, &NamedOrder::name);
}

void AddInput(Subcommand& app, CollectOptions& options) {
  const Option server =
      app.AddFile("--server", "The server description (*.server.json)", options.server);
  app.AddValue("--demo", "NAME",
               "A built-in demonstration server: " + BuiltInServerNames() + "; default: demo-orlo",
               [&options](const std::string& value) { options.demo = value; })
      .Check(RefuseUnknownDemo)
      .Excludes(server);
  app.AddFile("--plugin", "The plug-in module; default: strake.so near the command",
              options.plugin);
}

void AddQueries(Subcommand& app, CollectOptions& options) {
  const Option classes =
      app.AddValue("--class", "NAME",
                   "A class that is wanted (repeatable), by its name or as " + ShortClassNames() +
                       "; default: all eight",
                   [&options](const std::string& value) {
                     options.classes.emplace_back(cim::FindClassByAnyName(value)->name);
                   })
          .Check(RefuseUnknownClass)
          .Repeatable();
  app.AddValue("--query", "LIST",
               "Instead: one query with exactly these classes, separated by commas (repeatable); "
               "\"\" asks for none",
               [&options](const std::string& value) { options.queries.push_back(value); })
      .Repeatable()
      .Excludes(classes);
}

void AddSelection(Subcommand& app, CollectOptions& options) {
  app.AddValue("--node", "N", "Report this service processor alone, from 1",
               [&options](const std::string& value) { options.selection.node = ParseNode(value); })
      .Check(RefuseNode);
  app.AddValue("--sensor", "GLOB",
               "Of the sensors, those whose names fit, with * and ?; asks for sensors alone unless "
               "--class or --query says otherwise",
               [&options](const std::string& value) { options.selection.sensor = value; });
  app.AddValue("--filter", "CLASS.PROPERTY=GLOB",
               "Of the class, the instances whose property fits (repeatable)",
               [&options](const std::string& value) {
                 options.selection.filters.push_back(ParsePropertyFilter(value));
               })
      .Check(RefuseFilter)
      .Repeatable();
  app.AddFile("--limits", "Between which readings sensors are fine (TOML)", options.limits);
  app.AddValue("--fail-on", "SEVERITY",
               "Exit with 3 when there is a finding of this severity or above: warning or critical",
               [&options](const std::string& value) { options.failOn = ParseFailOn(value); })
      .Check(RefuseFailOn);
}

void AddOutput(Subcommand& app, CollectOptions& options) {
  app.AddValue("--format", "FORMAT",
               "The report's format: " + report::FormatNames() +
                   "; default: what the ending of --output says, else " +
                   std::string(report::Formats().front().name),
               [&options](const std::string& value) { options.format = report::FindFormat(value); })
      .Check(RefuseUnknownFormat);
  app.AddFile("--output", "Where the report goes; default: standard output", options.output);
  app.AddValue(
         "--sort", "KEY",
         "How the table's sensors follow each other: " + text::OrList(kOrders, &NamedOrder::name),
         [&options](const std::string& value) { options.order = FindOrder(value)->order; })
      .Check(RefuseOrder);
  app.AddFlag("--no-header", "The table's rows alone", [&options] { options.header = false; });
  app.AddFile("--trace", "Where to record what crosses the plug-in's boundary", options.trace);
  app.AddFile("--log", "Where log lines go; default: standard error", options.log);
  app.AddValue("--log-level", "N",
               "Log lines up to this level, 0 to 4; default: 1, or 4 with --log",
               [&options](const std::string& value) { options.logLevel = value[0] - '0'; })
      .Check(RefuseLogLevel);
  app.AddFlag("--show-secrets", "Report passwords, PINs and community names in clear",
              [&options] { options.showSecrets = true; });
  app.AddFlag("--quiet", "No progress on a terminal, no warnings",
              [&options] { options.quiet = true; });
}

[[noreturn]] void Refuse(const std::string& text) {
  throw UsageError(text + " (see strake collect --help)");
}

// The ending of the output picks the format or agrees with it.
void ChooseFormat(const Subcommand& command, CollectOptions& options) {
  const report::Format* const ofFile =
      options.output ? report::FindFormatOfFile(options.output->string()) : nullptr;
  if (ofFile == nullptr) {
    return;
  }
  if (!command.HasOption("--format")) {
    options.format = ofFile;
  } else if (options.format != ofFile) {
    Refuse("--format says " + std::string(options.format->name) + ", but the ending of --output " +
           options.output->string() + " says " + std::string(ofFile->name));
  }
}

void RefuseLayoutOfOtherFormats(const Subcommand& command, const CollectOptions& options) {
  for (const std::string option : {"--sort", "--no-header"}) {
    if (options.format->laid == report::Laid::AsItIs && command.HasOption(option)) {
      Refuse(option + ": the format " + std::string(options.format->name) +
             " has no layout to choose, expected --format table");
    }
  }
}

// What selects of classes that are not asked for would have no effect.
void RefuseSelectionOfOtherClasses(const CollectOptions& options) {
  const std::vector<const cim::SchemaClass*> asked = ClassesOf(QueriesOf(options));
  const auto isAsked = [&asked](std::string_view name) {
    return std::ranges::find(asked, name, &cim::SchemaClass::name) != asked.end();
  };
  for (const std::string& name : cim::ClassNamesOf(cim::QueryGroup::Sensors)) {
    if (options.selection.sensor && !isAsked(name)) {
      Refuse("--sensor: " + name + " is not asked for");
    }
  }
  for (const report::PropertyFilter& filter : options.selection.filters) {
    if (!isAsked(filter.schema->name)) {
      Refuse("--filter: " + std::string(filter.schema->name) + " is not asked for");
    }
  }
}

// A mask does not tell a wrong guess from a right one.
void RefuseFiltersOfSecrets(const CollectOptions& options) {
  for (const report::PropertyFilter& filter : options.selection.filters) {
    if (filter.property->role == cim::Role::Secret && !options.showSecrets) {
      Refuse("--filter: " + std::string(filter.property->name) +
             " is a secret, which a filter could guess; expected --show-secrets beside it");
    }
  }
}

}  // namespace

Subcommand AddCollect(CLI::App& app, CollectOptions& options) {
  Subcommand command(app, "collect", "Query the plug-in, print a report", kCollectExamples);
  AddInput(command, options);
  AddQueries(command, options);
  AddSelection(command, options);
  AddOutput(command, options);
  return command;
}

void CompleteCollect(const Subcommand& command, CollectOptions& options) {
  if (options.log && !command.HasOption("--log-level")) {
    options.logLevel = kHighestLogLevel;
  }
  if (options.server == kStandardInput && options.limits == kStandardInput) {
    Refuse("--server and --limits: both are standard input");
  }
  if (options.selection.sensor && options.classes.empty() && options.queries.empty()) {
    options.classes = cim::ClassNamesOf(cim::QueryGroup::Sensors);
  }
  ChooseFormat(command, options);
  RefuseLayoutOfOtherFormats(command, options);
  RefuseSelectionOfOtherClasses(options);
  RefuseFiltersOfSecrets(options);
  if (options.format->classes == report::Classes::ExactlyOne &&
      ClassesOf(QueriesOf(options)).size() != 1) {
    Refuse("--format " + std::string(options.format->name) +
           " holds one class: ask for it with --class, one of " + ShortClassNames());
  }
}

}  // namespace strake::app
