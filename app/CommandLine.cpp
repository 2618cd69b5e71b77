#include "app/CommandLine.h"

#include "app/ClassNames.h"
#include "app/Errors.h"
#include "app/NearestName.h"
#include "app/QueryOptions.h"
#include "app/Subcommands.h"
#include "text/OrList.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <functional>
#include <utility>

namespace strake::app {
namespace {

constexpr const char* kVersion = "strake " STRAKE_VERSION;

constexpr const char* kExamples = R"(Examples:
  strake collect                        the demonstration server, as a table
  strake collect --demo demo-tavit      the other demonstration server
  strake collect --server rack7.server.json --class sensors --limits limits.toml
  strake collect --format json --output report.json --trace run.trace
  strake watch --interval 5s            again and again, with what changed
  strake check rack7.server.json        is this server description fine?
  strake diff yesterday.json today.json what changed?
  strake replay run.trace --scrub       a server description out of a trace
  strake init --output my.server.json   a server description to begin with
  strake classes                        what can be asked for
  strake schema                         the same for CIM tools

'strake help collect' says more, and so it is with the others.)";

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

std::string DidYouMeanOption(const std::string& word, const CLI::App& app) {
  std::vector<std::string> options;
  for (const CLI::Option* const option : app.get_options()) {
    options.push_back(option->get_name());
  }
  const std::vector<std::string_view> names(options.begin(), options.end());
  return DidYouMean(word, names);
}

std::string DidYouMeanCommand(const std::string& word, const CLI::App& app) {
  std::vector<std::string_view> names;
  for (const CLI::App* const command : app.get_subcommands({})) {
    names.emplace_back(command->get_name());
  }
  return DidYouMean(word, names);
}

std::string NameOf(const CLI::App* command) { return command->get_name(); }

// For people: "collect, check, help or version".
std::string CommandNames(const CLI::App& app) {
  const std::vector<const CLI::App*> commands = app.get_subcommands({});
  return text::OrList(commands, NameOf);
}

// What is wrong with a word that nothing took.
std::string RefusalOfWord(const std::string& word, const CLI::App& app) {
  if (word.size() > 1 && word.front() == '-') {
    const std::string option = word.substr(0, word.find('='));
    return "there is no option '" + option + "'" + DidYouMeanOption(option, app);
  }
  if (app.get_parent() == nullptr) {
    return "there is no subcommand '" + word + "'" + DidYouMeanCommand(word, app);
  }
  return "nothing takes the word '" + word + "'";
}

[[noreturn]] void Refuse(const CLI::App& app, const CLI::ParseError& error) {
  const std::vector<CLI::App*> given = app.get_subcommands();
  // A word that stands before the subcommand is not the subcommand's.
  const CLI::App& place = given.empty() || app.remaining_size() != 0 ? app : *given.back();
  const std::vector<std::string> words = place.remaining();
  std::string refusal = error.what();
  const bool isForLackOfWords = dynamic_cast<const CLI::ExtrasError*>(&error) != nullptr ||
                                dynamic_cast<const CLI::RequiredError*>(&error) != nullptr;
  if (!words.empty() && isForLackOfWords) {
    refusal = RefusalOfWord(words.front(), place);
  } else if (given.empty()) {
    refusal = "a subcommand was expected: " + CommandNames(app);
  }
  throw UsageError(refusal + " (see strake" + (&place == &app ? "" : " " + place.get_name()) +
                   " --help)");
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
    Refuse(app, error);
  }
  return std::nullopt;
}

// "strake help [SUBCOMMAND]".
TextAnswer Help(CLI::App& app, const std::string& subject) {
  app.clear();  // else it gives the help of the subcommand `help`
  if (subject.empty()) {
    return {app.help()};
  }
  for (const CLI::App* const command : app.get_subcommands({})) {
    if (command->get_name() == subject) {
      return {command->help(app.get_name())};
    }
  }
  throw UsageError("there is no subcommand '" + subject + "'" + DidYouMeanCommand(subject, app) +
                   " (see strake --help)");
}

struct Answer {
  const Subcommand& command;
  std::function<CommandLine()> answer;  // when the command is given
};

// One of them is.
CommandLine FirstGiven(const std::vector<Answer>& answers) {
  const auto given =
      std::ranges::find_if(answers, [](const Answer& answer) { return answer.command.IsGiven(); });
  return given->answer();
}

}  // namespace

CommandLine ParseCommandLine(int argc, const char* const* argv) {
  CLI::App app("Collects what a server's service processors say about themselves.", "strake");
  app.set_version_flag("--version", kVersion);
  app.require_subcommand(1);
  app.allow_windows_style_options(false);

  CollectOptions collect;
  const Subcommand collectCommand = AddCollect(app, collect);
  WatchOptions watch;
  const Subcommand watchCommand = AddWatch(app, watch);
  CheckOptions check;
  const Subcommand checkCommand = AddCheck(app, check);
  DiffOptions diff;
  const Subcommand diffCommand = AddDiff(app, diff);
  SchemaOptions schema;
  const Subcommand schemaCommand = AddSchema(app, schema);
  ReplayOptions replay;
  const Subcommand replayCommand = AddReplay(app, replay);
  InitOptions init;
  const Subcommand initCommand = AddInit(app, init);
  const Subcommand classesCommand(app, "classes", "List the classes and their short names");
  CompletionOptions completion;
  const Subcommand completionCommand = AddCompletion(app, completion);

  std::string subject;
  Subcommand helpCommand(app, "help", "Say how strake or a subcommand is used");
  Option subjectWord =
      helpCommand.AddValue("subcommand", "SUBCOMMAND", "One of the others",
                           [&subject](const std::string& value) { subject = value; });
  const Subcommand versionCommand(app, "version", "Say which version this is");
  subjectWord.Offers(text::Names(app.get_subcommands({}), NameOf));
  app.footer(kExamples);

  if (std::optional<TextAnswer> answer = Parse(app, Words(argc, argv))) {
    return *std::move(answer);
  }
  return FirstGiven({
      {helpCommand, [&] { return Help(app, subject); }},
      {versionCommand, [&] { return TextAnswer{std::string(kVersion) + "\n"}; }},
      {classesCommand, [] { return TextAnswer{ClassList()}; }},
      {completionCommand, [&] { return TextAnswer{completion.shell->write(OutlineOf(app))}; }},
      {collectCommand, [&] { return CompleteCollect(collectCommand, collect), collect; }},
      {watchCommand, [&] { return CompleteQueries(watchCommand, watch.collect), watch; }},
      {checkCommand, [&] { return check; }},
      {diffCommand, [&] { return CompleteDiff(diffCommand, diff), diff; }},
      {replayCommand, [&] { return replay; }},
      {initCommand, [&] { return CompleteInit(initCommand, init), init; }},
      {schemaCommand, [&] { return schema; }},
  });
}

}  // namespace strake::app
