// The file of limits: what is taken, and what is refused with which line.
#include "app/LimitsFile.h"
#include "tests/support/Places.h"
#include "tests/support/TemporaryFolder.h"
#include "text/InputError.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

using report::LimitRule;

std::string RefusalOf(const std::string& text) {
  try {
    static_cast<void>(app::ParseLimits(text, "limits.toml"));
  } catch (const text::InputError& error) {
    return error.what();
  }
  return "no refusal";
}

std::string RefusalOfFile(const std::string& file) {
  try {
    static_cast<void>(app::ReadLimits(file));
  } catch (const text::InputError& error) {
    return error.what();
  }
  return "no refusal";
}

TEST(LimitsFile, TakesEveryKey) {
  const report::Limits limits = app::ParseLimits(R"(# of a rack
[[limit]]
sensor = "Planar*"
kind = "voltage"
sp = 255
lower_critical = -12.5
lower_warning = -12
upper_warning = 5.25
upper_critical = 1e2
[[limit]]
upper_warning = 0.1
)",
                                                 "limits.toml");
  ASSERT_EQ(limits.size(), 2U);
  EXPECT_EQ(limits[0].sensor, "Planar*");
  EXPECT_EQ(limits[0].kind, report::SensorKind::Voltage);
  EXPECT_EQ(limits[0].sp, 255);
  const struct {
    const std::optional<report::Bound>& bound;
    double value;
    std::string text;
  } bounds[] = {
      {limits[0].lowerCritical, -12.5, "-12.5"}, {limits[0].lowerWarning, -12, "-12"},
      {limits[0].upperWarning, 5.25, "5.25"},    {limits[0].upperCritical, 100, "100"},
      {limits[1].upperWarning, 0.1, "0.1"},
  };
  for (const auto& one : bounds) {
    ASSERT_TRUE(one.bound);
    EXPECT_EQ(one.bound->value, one.value);
    EXPECT_EQ(one.bound->text, one.text);
  }
  EXPECT_EQ(limits[1].sensor, "*");
  EXPECT_FALSE(limits[1].kind || limits[1].sp || limits[1].lowerCritical);
}

TEST(LimitsFile, RefusesWithTheLineAndWhatWasExpected) {
  const std::string number = " is a number, in the unit in which reports show the sensor";
  const std::string sp = "sp is the number of a service processor, 1 to 255";
  const std::string kind = "kind is temperature, fan, voltage, current, power or other";
  const std::string tables = "limit is an array of tables: [[limit]]";
  const struct {
    std::string text;
    std::string expected;
  } cases[] = {
      {"", "has no [[limit]], and so no limits"},
      {"# nothing\n", "has no [[limit]], and so no limits"},
      {"limit = 3", "line 1: " + tables},
      {"\n[limit]\nsp = 1", "line 2: " + tables},
      {"limit = [3]", "line 1: " + tables},
      {"\nlimit = []", "line 2: there is no rule in limit"},
      {"# " + std::string(998, 'a'), "has no [[limit]], and so no limits"},
      {"\n# " + std::string(999, 'a') + "\n", "line 2: a line has at most 1000 bytes"},
      {"[[limits]]\n", "line 1: there is no key \"limits\", did you mean 'limit'?"},
      {"[[limit]]\nuper_warning = 1",
       "line 2: there is no key \"uper_warning\", did you mean 'upper_warning'?"},
      {"[[limit]]\n\"a\\u001Bb\" = 1", "line 2: there is no key \"a\\x1Bb\""},
      {"\n[[limit]]\nsensor = 'Fan*'",
       "line 2: a limit has at least one bound: lower_critical, lower_warning, upper_warning or "
       "upper_critical"},
      {"[[limit]]\nsensor = 3", "line 2: sensor is a text: the name of sensors, with * and ?"},
      {"[[limit]]\nkind = 'Fan'", "line 2: " + kind},
      {"[[limit]]\nkind = 1", "line 2: " + kind},
      {"[[limit]]\nsp = 0", "line 2: " + sp},
      {"[[limit]]\nsp = 256", "line 2: " + sp},
      {"[[limit]]\nsp = 1.0", "line 2: " + sp},
      {"[[limit]]\nsp = '1'", "line 2: " + sp},
      {"[[limit]]\nlower_warning = '1'", "line 2: lower_warning" + number},
      {"[[limit]]\nupper_critical = true", "line 2: upper_critical" + number},
      {"[[limit]]\nupper_critical = nan", "line 2: upper_critical" + number},
      {"[[limit]]\nupper_critical = inf", "line 2: upper_critical" + number},
      {"[[limit]]\nlower_warning = 3\nlower_critical = 4",
       "line 2: lower_warning is lower than the bound below it, 4"},
      {"[[limit]]\nlower_critical = 3\nupper_critical = 2.5",
       "line 3: upper_critical is lower than the bound below it, 3"},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(RefusalOf(one.text), "limits.toml: " + one.expected) << one.text;
  }
}

TEST(LimitsFile, RefusesBrokenTomlOnOneLineWithItsPlace) {
  for (const std::string text :
       {"x = ", "[[limit]\n", "[[limit]]\nsp = 1\nsp = 2\n", "\xFF = 1", "sensor = \"a\nb\""}) {
    const std::string refusal = RefusalOf(text);
    EXPECT_EQ(refusal.substr(0, 18), "limits.toml: line ") << text;
    EXPECT_EQ(refusal.find('\n'), std::string::npos) << refusal;
  }
}

// The library takes such keys apart by recursion.
TEST(LimitsFile, RefusesDeepKeysOnALineOfAnyLength) {
  for (const std::size_t depth : {std::size_t{2}, std::size_t{490}, std::size_t{120'000}}) {
    std::string key = "a";
    for (std::size_t i = 1; i < depth; ++i) {
      key += ".a";
    }
    for (const std::string& text :
         {key + " = 1", "[" + key + "]", "[[" + key + "]]\n" + key + "=1"}) {
      EXPECT_EQ(RefusalOf(text), depth < 1000
                                     ? "limits.toml: line 1: there is no key \"a\""
                                     : "limits.toml: line 1: a line has at most 1000 bytes");
    }
  }
}

TEST(LimitsFile, RefusesWhatCannotBeReadOrIsTooLong) {
  const TemporaryFolder folder;
  EXPECT_EQ(RefusalOfFile(folder / "none"),
            (folder / "none") + ": cannot be read: No such file or directory");
  const std::string largest = folder.Write("largest", std::string(1U << 20U, '\n'));
  EXPECT_EQ(RefusalOfFile(largest), largest + ": has no [[limit]], and so no limits");
  const std::string larger = folder.Write("larger", std::string((1U << 20U) + 1, '\n'));
  EXPECT_EQ(RefusalOfFile(larger), larger + ": a file of limits has at most 1 MiB");
  const std::string fine = folder.Write("fine", "[[limit]]\nupper_warning = 1\n");
  EXPECT_EQ(app::ReadLimits(fine).size(), 1U);
}

TEST(LimitsFile, TakesTheExamplesOfItsDocument) {
  EXPECT_EQ(app::ReadLimits(SourceFolder() + "/docs/example.limits.toml").size(), 8U);
  const std::string document = ReadFile(SourceFolder() + "/docs/limits.md");
  const std::string fence = "```toml\n";
  const std::size_t begin = document.find(fence) + fence.size();
  const std::string example = document.substr(begin, document.find("```", begin) - begin);
  EXPECT_EQ(app::ParseLimits(example, "limits.md").size(), 2U);
}

}  // namespace
}  // namespace strake::tests
