// Which queries bring the wanted classes.
#include "app/QueryPlan.h"
#include "cim/Catalogue.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

using app::ClassNames;
using Plan = std::vector<ClassNames>;

const ClassNames kNetwork = {"VELKSG_ServProc_IPProtocolEndpoint",
                             "VELKSG_ServProc_IPProtocolEndpoint2"};
const ClassNames kDial = {
    "VELKSG_ServProc_DialProtocolEndpoint1", "VELKSG_ServProc_DialProtocolEndpoint2",
    "VELKSG_ServProc_DialProtocolEndpoint3", "VELKSG_ServProc_DialProtocolEndpoint4"};
const ClassNames kSensors = {"VELKSG_SP_NumericSensor"};
const ClassNames kSystem = {"VELKSG_SP_ComputerSystem"};

TEST(QueryPlan, AsksForAllEightClassesInFourQueriesByDefault) {
  EXPECT_EQ(app::PlanQueries({}), (Plan{kNetwork, kDial, kSensors, kSystem}));
}

TEST(QueryPlan, KeepsTheOrderOfTheSystemWhateverTheOrderOfTheNames) {
  EXPECT_EQ(
      app::PlanQueries({kSystem[0], kDial[3], kSensors[0], kNetwork[1], kDial[0], kNetwork[0]}),
      (Plan{kNetwork, {kDial[0], kDial[3]}, kSensors, kSystem}));
}

TEST(QueryPlan, AsksForOneClassInOneQuery) {
  EXPECT_EQ(app::PlanQueries({kDial[2]}), (Plan{{kDial[2]}}));
  EXPECT_EQ(app::PlanQueries(kSystem), (Plan{kSystem}));
}

TEST(QueryPlan, CountsAClassThatIsNamedTwiceOnce) {
  EXPECT_EQ(app::PlanQueries({kSystem[0], kSystem[0]}), (Plan{kSystem}));
}

TEST(QueryPlan, KnowsTheClassesOfTheSchemaAndNoOthers) {
  for (const cim::SchemaClass& known : cim::SchemaClasses()) {
    EXPECT_TRUE(app::IsKnownClass(known.name)) << known.name;
  }
  EXPECT_EQ(cim::SchemaClasses().size(), 8U);
  for (const char* const unknown : {"", "velksg_sp_computersystem", "VELKSG_SP_ComputerSystem ",
                                    "VELKSG_ServProc_DialProtocolEndpoint"}) {
    EXPECT_FALSE(app::IsKnownClass(unknown)) << unknown;
  }
}

TEST(QueryPlan, SplitsAListAtItsCommasAndTakesTheBlanksAroundNamesAway) {
  EXPECT_EQ(app::SplitClassList(""), ClassNames{});
  EXPECT_EQ(app::SplitClassList("A"), ClassNames{"A"});
  EXPECT_EQ(app::SplitClassList("B,A,B"), (ClassNames{"B", "A", "B"}));
  EXPECT_EQ(app::SplitClassList("A,,B,"), (ClassNames{"A", "", "B", ""}));
  EXPECT_EQ(app::SplitClassList(" A , B"), (ClassNames{"A", "B"}));
  EXPECT_EQ(app::SplitClassList("A,\t B C ,"), (ClassNames{"A", "B C", ""}));
  EXPECT_EQ(app::SplitClassList(" , "), (ClassNames{"", ""}));
  EXPECT_EQ(app::SplitClassList(" \t"), ClassNames{});
}

}  // namespace
}  // namespace strake::tests
