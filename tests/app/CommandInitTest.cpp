// `strake init` from outside.
#include "tests/app/CommandInitTest.h"

#include "cim/Catalogue.h"
#include "tests/app/System.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <set>

namespace strake::tests {
namespace {

const Words kOrlo = {};
const Words kTavit = {"--kind", "tavit"};

std::set<std::string> AllClasses() {
  std::set<std::string> names;
  for (const cim::SchemaClass& schema : cim::SchemaClasses()) names.emplace(schema.name);
  return names;
}

TEST_F(CommandInitTest, WritesWhatIsFineAndGivesAllClassesOfItsKindWithoutFindings) {
  const std::set<std::string> sensors = {"VELKSG_SP_NumericSensor"};
  const struct {
    Words words;
    std::string machine;
    std::set<std::string> classes;
    std::size_t instances;
  } cases[] = {
      {kOrlo, "9999-AC1", AllClasses(), 50},
      {{"--kind", "orlo", "--machine", "5301-AR2"}, "5301-AR2", AllClasses(), 50},
      {{"--machine", "5201"}, "5201-AC1", AllClasses(), 50},
      {kTavit, "5120-AC1", sensors, 19},
      {With(kTavit, {"--machine", "5120"}), "5120-AC1", sensors, 19},
      {With(kTavit, {"--machine", "5121"}), "5121-AC1", sensors, 19},
      {With(kTavit, {"--machine", "5122"}), "5122-AC1", sensors, 19},
      {With(kTavit, {"--machine", "5123"}), "5123-AC1", sensors, 18},
      {With(kTavit, {"--machine", "5124"}), "5124-AC1", sensors, 18},
      {With(kTavit, {"--machine", "5125-K2G"}), "5125-K2G", sensors, 22},
      {With(kTavit, {"--machine", "5126"}), "5126-AC1", sensors, 17},
      {With(kTavit, {"--machine", "5127"}), "5127-AC1", sensors, 17},
      {With(kTavit, {"--machine", "5128"}), "5128-AC1", sensors, 17},
  };
  for (const auto& one : cases) {
    SCOPED_TRACE(testing::PrintToString(one.words));
    const Outcome init = Init(one.words);
    EXPECT_EQ(init.status, 0);
    EXPECT_EQ(init.err, "");
    EXPECT_EQ(nlohmann::json::parse(init.out).at("machine_type_model"), one.machine);
    const std::string file = fFolder.Write("my.server.json", init.out);
    const Outcome check = Strake({"check", file});
    EXPECT_EQ(check.status, 0);
    EXPECT_EQ(check.out.find("warning"), std::string::npos) << check.out;
    EXPECT_EQ(std::ranges::count(check.out, '\n'), 1) << check.out;
    const Outcome collect = Strake({"collect", "--server", file, "--format", "json"});
    EXPECT_EQ(collect.status, 0);
    EXPECT_EQ(collect.err, "");
    const nlohmann::json report = nlohmann::json::parse(collect.out);
    EXPECT_EQ(report.at("findings"), nlohmann::json::array());
    std::set<std::string> classes;
    for (const nlohmann::json& instance : report.at("instances")) {
      classes.insert(instance.at("class"));
    }
    EXPECT_EQ(classes, one.classes);
    EXPECT_EQ(report.at("instances").size(), one.instances);
  }
}

TEST_F(CommandInitTest, SaysInItsDescriptionWhatThereIsToFillIn) {
  for (const Words& words : {kOrlo, kTavit}) {
    const std::string text = nlohmann::json::parse(Init(words).out).at("description");
    for (const char* const part :
         {"to be filled in", "machine type", "system name", "docs/records.md"}) {
      EXPECT_NE(text.find(part), std::string::npos) << text;
    }
  }
}

TEST_F(CommandInitTest, WritesTheSameToStandardOutputAndToAFile) {
  const std::string text = Init({}).out;
  EXPECT_EQ(Init({"--output", "-"}), (Outcome{0, text, ""}));
  const std::string file = fFolder / "two words";
  EXPECT_EQ(Init({"--output", file}),
            (Outcome{0,
                     file + " is written; fill it in, and try it with: strake check " +
                         InQuotes(file) + "\n",
                     ""}));
  EXPECT_EQ(ReadFile(file), text);
}

TEST_F(CommandInitTest, TakesAnEmptyFileAndRefusesOneThatHoldsSomething) {
  const std::string empty = fFolder.Write("empty", "");
  EXPECT_EQ(Init({"--output", empty}).status, 0);
  EXPECT_EQ(ReadFile(empty), Init({}).out);
  const std::string filled = fFolder.Write("filled", "by hand");
  EXPECT_EQ(Init({"--output", filled}), Refusal(filled));
  EXPECT_EQ(ReadFile(filled), "by hand");
}

TEST_F(CommandInitTest, RefusesWhatItDoesNotKnowInOneLine) {
  const std::string help = " (see strake init --help)";
  const std::string form =
      " is no machine type, expected four digits, or these and a model: 9999, 9999-AC1" + help;
  const struct {
    Words words;
    std::string error;
  } cases[] = {
      {{"--kind", "both"}, "--kind: there is no kind 'both', expected orlo or tavit" + help},
      {{"--kind", ""}, "--kind: there is no kind '', expected orlo or tavit" + help},
      {With(kTavit, {"--machine", "5301-AR2"}),
       "--machine: 5301 has no Tavit processor, expected 5120, 5121, 5122, 5123, 5124, 5125, "
       "5126, 5127 or 5128" +
           help},
      {{"--machine", "512"}, "--machine: '512'" + form},
      {{"--machine", ""}, "--machine: ''" + form},
      {{"--machine", "51200"}, "--machine: '51200'" + form},
      {{"--machine", "5120-"}, "--machine: '5120-'" + form},
      {{"--machine", "5120-A B"}, "--machine: '5120-A B'" + form},
      {{"--machine", "512O-AC1"}, "--machine: '512O-AC1'" + form},
      {{"--output", ""}, "--output: the name of a file was expected" + help},
      {{"rack7"}, "nothing takes the word 'rack7'" + help},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(Init(one.words), (Outcome{2, "", "strake: " + one.error + "\n"}));
  }
}

TEST_F(CommandInitTest, FailsWhereNothingCanBeWritten) {
  const Outcome outcome = Init({"--output", fFolder / "absent/my.server.json"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(std::ranges::count(outcome.err, '\n'), 1) << outcome.err;
}

}  // namespace
}  // namespace strake::tests
