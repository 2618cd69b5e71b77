// What the host is handed with each call of every class' query.
#include "plugin/host/TCIMSchemaHelper.h"
#include "tests/strict/Classes.h"

#include <map>

namespace strake::strict {
namespace {

using NVELKZEV20::TCIMSchemaHelper;

INSTANTIATE_TEST_SUITE_P(Of, EveryClass, testing::ValuesIn(AllClasses()), NameOf);

TEST_P(EveryClass, LooksItsClassUpInTheQueryContext) {
  Query();
  const HeldMap context = {
      {TCIMSchemaHelper::kContextName, {Made::FromText, TCIMSchemaHelper::kPluginNSPName}}};
  ASSERT_EQ(host.Count(Call::GetClass), GetParam().instances);
  for (const Event* const event : host.All(Call::GetClass)) {
    EXPECT_EQ(event->text, GetParam().className);
    EXPECT_EQ(event->map, context);
  }
}

TEST_P(EveryClass, HandsOverNoOptionsAndNoQualifiers) {
  Query();
  for (const Call call : {Call::CreateInstance, Call::SetProperty, Call::Commit}) {
    ASSERT_GE(host.Count(call), GetParam().instances);
    for (const Event* const event : host.All(call)) {
      EXPECT_EQ(event->map, HeldMap()) << event->text;
    }
  }
}

TEST_P(EveryClass, HandsOverEmptyHandlesToFill) {
  Query();
  for (const Call call : {Call::GetClass, Call::CreateInstance}) {
    ASSERT_EQ(host.Count(call), GetParam().instances);
    for (const Event* const event : host.All(call)) EXPECT_TRUE(event->gotEmpty);
  }
}

TEST_P(EveryClass, CommitsEachInstanceOnceBehindItsProperties) {
  Query();
  std::map<int, std::vector<std::pair<std::string, Made>>> set;
  std::map<int, int> commits;
  for (const Event& event : host.events) {
    if (event.call == Call::CreateInstance) set[event.number];
    if (event.call == Call::SetProperty) {
      EXPECT_EQ(commits[event.number], 0) << event.text;
      set[event.number].emplace_back(event.text, event.value.made);
    }
    if (event.call == Call::Commit) ++commits[event.number];
  }
  ASSERT_EQ(set.size(), GetParam().instances);
  for (const auto& [instance, properties] : set) {
    EXPECT_EQ(commits[instance], 1) << instance;
    EXPECT_EQ(properties, GetParam().properties) << instance;
  }
}

TEST_P(EveryClass, SetsPropertiesFromValuesThatLiveOnlyForTheCall) {
  Query();
  for (const Event& event : host.events) {
    const std::size_t alive = event.call == Call::SetProperty ? 1 : 0;
    ASSERT_EQ(event.otherValues, alive) << testing::PrintToString(event.call) << " " << event.text;
    ASSERT_FALSE(event.value.isCopy) << event.text;
  }
  EXPECT_TRUE(LiveValues().empty());
}

// Only a builder or an export holds the query context.
TEST_P(EveryClass, HoldsNoContextBetweenItsBuilders) {
  Query();
  std::size_t looked = 0;
  for (const Event& event : host.events) {
    const bool isDrivers =
        event.call == Call::GetName || event.call == Call::GetSplibraryInstance ||
        (event.call == Call::SendDotCommand && event.text == "1.1") ||
        (event.call == Call::Log &&
         (event.text.starts_with("Checking dotCmd for spInstance") ||
          event.text.starts_with("Export") || event.text == "Strake plugin execution complete."));
    if (!isDrivers) continue;
    ++looked;
    EXPECT_EQ(event.contextValues, 0U) << event.text;
  }
  EXPECT_GT(looked, 4U);
}

TEST_P(EveryClass, AsksForNamesInItsOwnNamespace) {
  Query();
  const bool isSensor = std::string(GetParam().className) == kSensor;
  const bool asksForTheSystemsClass = std::string(GetParam().className) != kComputerSystem;
  EXPECT_EQ(host.Count(Call::GetSystemName), isSensor ? 4U : 1U);
  EXPECT_EQ(host.Count(Call::GetSystemCreationClassName),
            asksForTheSystemsClass ? GetParam().instances : 0U);
  for (const Call call : {Call::GetSystemName, Call::GetSystemCreationClassName}) {
    for (const Event* const event : host.All(call)) EXPECT_TRUE(event->gotNamespace);
  }
}

TEST_P(EveryClass, LetsItsNamespaceGo) {
  const long uses = host.cimNamespace.use_count();
  Query();
  EXPECT_EQ(host.cimNamespace.use_count(), uses);
}

TEST(StrictHostTest, MakesInstancesOfNothingWhenNothingIsAskedFor) {
  StrictHost host;
  Prepare(host, CaseOf("Alerts"));
  host.Query({});
  EXPECT_EQ(host.Count(Call::GetClass), 0U);
  EXPECT_EQ(host.Count(Call::SendDotCommand), 2U);
}

}  // namespace
}  // namespace strake::strict
