#include "app/QueryOptions.h"

#include "app/BuiltInServers.h"
#include "app/ClassNames.h"
#include "app/Errors.h"
#include "app/Input.h"
#include "app/ModulePath.h"
#include "app/PropertyFilter.h"
#include "app/QueryPlan.h"
#include "cim/Catalogue.h"
#include "os/FileName.h"
#include "text/OrList.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <memory>

namespace strake::app {
namespace {

constexpr int kHighestLogLevel = 4;

std::string RefuseUnknownClass(const std::string& name) {
  return cim::FindClassByAnyName(name) != nullptr ? "" : RefusalOfClass(name);
}

// "0" up to the highest.
std::vector<std::string> LogLevels() {
  std::vector<std::string> levels;
  for (int level = 0; level <= kHighestLogLevel; ++level) {
    levels.push_back(std::to_string(level));
  }
  return levels;
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

struct NamedOrder {
  std::string_view name;
  report::SensorOrder order;
};

constexpr std::array<NamedOrder, 3> kOrders{{
    {"name", report::SensorOrder::ByName},
    {"reading", report::SensorOrder::ByReading},
    {"state", report::SensorOrder::ByState},
}};

// What selects of classes that are not asked for would have no effect.
void RefuseSelectionOfOtherClasses(const Subcommand& command, const CollectOptions& options) {
  const std::vector<const cim::SchemaClass*> asked = ClassesOf(QueriesOf(options));
  const auto isAsked = [&asked](std::string_view name) {
    return std::ranges::find(asked, name, &cim::SchemaClass::name) != asked.end();
  };
  for (const std::string& name : cim::ClassNamesOf(cim::QueryGroup::Sensors)) {
    if (options.selection.sensor && !isAsked(name)) {
      command.Refuse("--sensor: " + name + " is not asked for");
    }
  }
  for (const report::PropertyFilter& filter : options.selection.filters) {
    if (!isAsked(filter.schema->name)) {
      command.Refuse("--filter: " + std::string(filter.schema->name) + " is not asked for");
    }
  }
}

// A mask does not tell a wrong guess from a right one.
void RefuseFiltersOfSecrets(const Subcommand& command, const CollectOptions& options) {
  for (const report::PropertyFilter& filter : options.selection.filters) {
    if (filter.property->role == cim::Role::Secret && !options.showSecrets) {
      command.Refuse("--filter: " + std::string(filter.property->name) +
                     " is a secret, which a filter could guess; expected --show-secrets beside it");
    }
  }
}

void AddDemoAndPlugin(Subcommand& app, CollectOptions& options, const Option& server) {
  app.AddValue("--demo", "NAME",
               "A built-in demonstration server: " + BuiltInServerNames() + "; default: demo-orlo",
               [&options](const std::string& value) { options.demo = value; })
      .OneOf(text::Names(BuiltInServers(), &BuiltInServer::name), "built-in server")
      .Excludes(server);
  app.AddFile("--plugin",
              std::string("The plug-in module; default: ") + kModuleName + " near the command",
              options.plugin);
}

}  // namespace

void AddInput(Subcommand& app, CollectOptions& options) {
  const Option server =
      app.AddFile("--server", "The server description (*.server.json)", options.server);
  AddDemoAndPlugin(app, options, server);
}

void AddInputs(Subcommand& app, CollectOptions& options) {
  const Option servers =
      app.AddValue("--server", "FILE",
                   "The server description (*.server.json); several (repeatable) with --format "
                   "jsonl, each collected in a process of its own",
                   [&options](const std::string& value) {
                     options.many.servers.push_back(os::FileNamed(value));
                   })
          .NamesFile()
          .Repeatable();
  AddDemoAndPlugin(app, options, servers);
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
          .Offers(AllClassNames())
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
}

void AddLayout(Subcommand& app, CollectOptions& options) {
  app.AddValue(
         "--sort", "KEY",
         "How the table's sensors follow each other: " + text::OrList(kOrders, &NamedOrder::name),
         [&options](const std::string& value) {
           options.order = std::ranges::find(kOrders, value, &NamedOrder::name)->order;
         })
      .OneOf(text::Names(kOrders, &NamedOrder::name));
  app.AddFlag("--no-header", "The table's rows alone", [&options] { options.header = false; });
}

void AddLog(Subcommand& app, CollectOptions& options) {
  app.AddFile("--log", "Where log lines go; default: standard error", options.log);
  app.AddValue("--log-level", "N",
               "Log lines up to this level, 0 to 4; default: 1, or 4 with --log",
               [&options](const std::string& value) { options.logLevel = value[0] - '0'; })
      .Check(RefuseLogLevel)
      .Offers(LogLevels());
}

void AddDiscretion(Subcommand& app, CollectOptions& options) {
  app.AddFlag("--show-secrets", "Report passwords, PINs and community names in clear",
              [&options] { options.showSecrets = true; });
  app.AddFlag("--quiet", "No progress on a terminal, no warnings",
              [&options] { options.quiet = true; });
}

void CompleteQueries(const Subcommand& command, CollectOptions& options) {
  if (options.log && !command.HasOption("--log-level")) {
    options.logLevel = kHighestLogLevel;
  }
  if (options.server == kStandardInput && options.limits == kStandardInput) {
    command.Refuse("--server and --limits: both are standard input");
  }
  if (options.selection.sensor && options.classes.empty() && options.queries.empty()) {
    options.classes = cim::ClassNamesOf(cim::QueryGroup::Sensors);
  }
  RefuseSelectionOfOtherClasses(command, options);
  RefuseFiltersOfSecrets(command, options);
}

}  // namespace strake::app
