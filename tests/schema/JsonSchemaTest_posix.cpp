// Reports held against their schema by a validator, which a shell starts.
#include "report/JsonReport.h"
#include "schema/JsonSchema.h"
#include "tests/report/Instances.h"
#include "tests/report/RandomInstances.h"
#include "tests/support/Places.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/Tool.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace strake::tests {
namespace {

using nlohmann::ordered_json;

// What the validator says of FOLDER/valid-*.json and FOLDER/wrong-*.json.
ToolEnd Validate(const TemporaryFolder& folder) {
  const std::string schema = folder.Write("schema", schema::JsonSchema());
  return RunTool(Python(), InShellQuotes(SourceFolder() + "/tests/schema/check_json_schema.py") +
                               ' ' + InShellQuotes(schema) + ' ' + InShellQuotes(folder.Path()));
}

ordered_json GoodReport() {
  const report::Report report(
      {.facts = SomeFacts(),
       .instances = {Sensor(1, "Fan", 73, 65, 0),
                     Instance("VELKSG_SP_ComputerSystem",
                              {{"SourceNode", Node(1)}, {"Name", "x"}, {"SPClock", SomeTime()}})},
       .findings = {{report::Severity::Warning, report::FindingCode::SpSilent, 2, "silent"}}},
      report::Secrets::Masked, UpperLimits(50, 60));
  return ordered_json::parse(Written(report::WriteJson, report));
}

TEST(JsonSchema, AdmitsReportsOfTheServersAndOfRandomCollections) {
  const TemporaryFolder folder;
  std::size_t count = 0;
  const Tool strake{BuildFolder() + "/bin/strake", "the command"};
  for (const auto& entry : std::filesystem::directory_iterator(SourceFolder() + "/servers")) {
    if (!entry.path().string().ends_with(".server.json")) continue;
    const std::string name = "valid-server-" + std::to_string(count++) + ".json";
    const ToolEnd end = RunTool(strake, "collect --quiet --log-level 0 --format json --server " +
                                            InShellQuotes(entry.path()) + " --output " +
                                            InShellQuotes(folder / name));
    EXPECT_EQ(end, (ToolEnd{0, ""})) << entry;
  }
  EXPECT_GE(count, 2U);
  std::mt19937 random(20240322);
  for (int round = 0; round < 50; ++round, ++count) {
    const report::Report report({.facts = SomeFacts(), .instances = RandomInstances(random)},
                                report::Secrets::Masked, UpperLimits(0, 1e7));
    static_cast<void>(folder.Write("valid-" + std::to_string(round) + ".json",
                                   Written(report::WriteJson, report)));
  }
  EXPECT_EQ(Validate(folder), (ToolEnd{0, std::to_string(count) + " valid, 0 refused\n"}));
}

// A pointer into a good report and what to put there.
struct Change {
  std::string pointer;
  std::string value;
};

const Change kAdditions[] = {
    {"/new", "1"},
    {"/server/new", "null"},
    {"/findings/0/new", "{}"},
    {"/instances/0/new", "[]"},
    {"/instances/0/properties/New", "true"},
};

const Change kFaults[] = {
    {"/format", R"("strake-report/2")"},
    {"/strake", "1"},
    {"/collected_at", R"("yesterday")"},
    {"/collected_at", R"("2024-03-18T09:41:07+01:00")"},
    {"/server", R"({"name":"","kind":""})"},
    {"/server/name", "null"},
    {"/findings", "{}"},
    {"/findings/0/severity", R"("grave")"},
    {"/findings/0/code", R"("sp-gone")"},
    {"/findings/0/sp", "0"},
    {"/findings/0/sp", R"("2")"},
    {"/findings/0/text", "null"},
    {"/findings/0", R"({"severity":"info","code":"held"})"},
    {"/instances", "null"},
    {"/instances/0/class", R"("VELKSG_SP_Fan")"},
    {"/instances/0", R"({"class":"VELKSG_SP_NumericSensor"})"},
    {"/instances/0", R"({"properties":{}})"},
    {"/instances/0", R"({"class":"VELKSG_SP_NumericSensor","properties":{}})"},
    {"/instances/0/properties", "[]"},
    {"/instances/0/properties/DeviceID", "1"},
    {"/instances/0/properties/CurrentReading", R"("73")"},
    {"/instances/0/properties/CurrentReading", "2147483648"},
    {"/instances/0/properties/CurrentReading", "-2147483649"},
    {"/instances/0/properties/CurrentReading", "1.5"},
    {"/instances/0/properties/BaseUnits", "65536"},
    {"/instances/0/properties/SourceNode", "256"},
    {"/instances/0/properties/SourceNode", "-1"},
    {"/instances/1/properties/SPClock", R"("2010-06-15 13:45:30")"},
    {"/instances/0/reading", R"("73")"},
    {"/instances/0/unit", "65"},
    {"/instances/0/state", R"("fine")"},
};

TEST(JsonSchema, AdmitsAddedKeysAndRefusesEverythingElseThatIsDifferent) {
  const TemporaryFolder folder;
  int count = 0;
  const auto write = [&](const std::string& kind, const Change& change) {
    ordered_json report = GoodReport();
    report[ordered_json::json_pointer(change.pointer)] = ordered_json::parse(change.value);
    static_cast<void>(folder.Write(kind + '-' + std::to_string(count++) + ".json", report.dump()));
  };
  static_cast<void>(folder.Write("valid.json", GoodReport().dump()));
  for (const Change& change : kAdditions) write("valid", change);
  for (const Change& change : kFaults) write("wrong", change);
  const ordered_json good = GoodReport();
  for (const auto& [key, value] : good.items()) {
    ordered_json report = good;
    report.erase(key);
    static_cast<void>(folder.Write("wrong-without-" + key + ".json", report.dump()));
  }
  EXPECT_EQ(Validate(folder),
            (ToolEnd{0, std::to_string(std::size(kAdditions) + 1) + " valid, " +
                            std::to_string(std::size(kFaults) + good.size()) + " refused\n"}));
}

}  // namespace
}  // namespace strake::tests
