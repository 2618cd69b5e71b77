// What somebody who mistyped a name may have meant.
#include "app/NearestName.h"

#include <array>
#include <gtest/gtest.h>

namespace strake::tests {
namespace {

constexpr std::array<std::string_view, 5> kKnown = {"collect", "check", "--log", "--log-level",
                                                    "--trace"};

TEST(NearestName, IsTheOneWithTheFewestChanges) {
  const struct {
    const char* name;
    const char* nearest;
  } cases[] = {
      {"collect", "collect"}, {"colect", "collect"},         {"ccollect", "collect"},
      {"callect", "collect"}, {"oclletc", "collect"},        {"chekc", "check"},
      {"--lgo", "--log"},     {"--loglevel", "--log-level"}, {"--log-lvl", "--log-level"},
      {"--tarce", "--trace"},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(app::NearestName(one.name, kKnown), one.nearest) << one.name;
  }
}

TEST(NearestName, IsNoneWhenMoreThanAThirdWouldChange) {
  for (const std::string& name :
       {std::string(), std::string("x"), std::string("gather"), std::string("COLLECT"),
        std::string("--output"), std::string("chxxy"), std::string(100000, '-')}) {
    EXPECT_EQ(app::NearestName(name, kKnown), "") << name.substr(0, 20);
  }
  EXPECT_EQ(app::NearestName("check", {}), "");
  // Two of six letters, and two of five.
  EXPECT_EQ(app::NearestName("chaekk", kKnown), "check");
  EXPECT_EQ(app::NearestName("chakk", kKnown), "");
}

TEST(NearestName, IsAskedForInAMessage) {
  EXPECT_EQ(app::DidYouMean("chek", kKnown), ", did you mean 'check'?");
  EXPECT_EQ(app::DidYouMean("gather", kKnown), "");
}

}  // namespace
}  // namespace strake::tests
