// The tables of what the plug-in asks for, held against what it asks for.
#include "app/AskedCommands.h"
#include "tests/app/Command.h"
#include "tests/app/System.h"
#include "tests/support/Places.h"
#include "tests/support/TemporaryFolder.h"
#include "text/DotNotation.h"

#include <functional>
#include <gtest/gtest.h>
#include <set>
#include <sstream>

namespace strake::tests {
namespace {

using app::Asked;
using platform::Identifier;

// What stands behind a key in the trace's lines that hold a word.
std::set<std::string> TracedValues(const std::string& demo, const std::string& word,
                                   const std::string& key) {
  const TemporaryFolder folder;
  EXPECT_EQ(Strake({"collect", "--demo", demo, "--output", NullDevice(), "--trace", folder / "t"}),
            (Outcome{0, "", ""}));
  std::set<std::string> values;
  std::istringstream lines(ReadFile(folder / "t"));
  for (std::string line; std::getline(lines, line);) {
    const std::size_t place = line.find("\"" + key + "\":");
    if (line.find("\"call\":\"" + word + "\"") != std::string::npos && place != std::string::npos) {
      const std::string rest = line.substr(place + key.size() + 3);
      values.insert(rest[0] == '"' ? rest.substr(1, rest.find('"', 1) - 1)
                                   : rest.substr(0, rest.find_first_of(",}")));
    }
  }
  return values;
}

platform::SpDescription DemoOrlo() {
  return platform::ReadServerDescription(SourceFolder() + "/servers/demo-orlo.server.json").sp;
}

std::string DotNotation(const Identifier& identifier) {
  return text::DotNotation(std::vector<unsigned char>(identifier.begin(), identifier.end()));
}

// Every identifier out of these bytes, one place after the other.
void ForEachIdentifier(const std::vector<std::vector<int>>& places, const Identifier& begin,
                       const std::function<void(const Identifier&)>& visit) {
  if (places.size() == begin.size()) {
    visit(begin);
    return;
  }
  for (const int byte : places[begin.size()]) {
    ForEachIdentifier(places, begin + static_cast<char>(byte), visit);
  }
}

std::vector<int> UpTo(int last, std::vector<int> more = {}) {
  for (int i = 0; i <= last; ++i) {
    more.push_back(i);
  }
  return more;
}

TEST(AskedCommands, AreTheDotCommandsThatThePluginSends) {
  const platform::SpDescription sp = DemoOrlo();
  std::set<std::string> asked;
  const auto note = [&](const Identifier& identifier) {
    if (app::IsDotCommandAsked(identifier, sp) == Asked::Yes) {
      asked.insert(DotNotation(identifier));
    }
  };
  ForEachIdentifier({UpTo(5), UpTo(9, {255})}, "", note);
  ForEachIdentifier({UpTo(5), UpTo(9), UpTo(20, {255})}, "", note);
  ForEachIdentifier({UpTo(5), UpTo(6), UpTo(6), UpTo(21, {255})}, "", note);
  ForEachIdentifier({{4}, {1, 2, 4, 9}, UpTo(5), UpTo(6), UpTo(10, {16, 255})}, "", note);
  ForEachIdentifier({{4}, {9}, UpTo(4), UpTo(3), UpTo(5, {16}), UpTo(10, {255})}, "", note);
  EXPECT_EQ(asked, TracedValues("demo-orlo", "sendDotCommand", "id"));
  EXPECT_EQ(app::IsDotCommandAsked("", sp), Asked::Never);
}

TEST(AskedCommands, CountTheComponentsThatThePluginCounts) {
  std::set<std::string> counted;
  ForEachIdentifier({{4}, UpTo(10), UpTo(10), {0}, {255}}, "", [&](const Identifier& identifier) {
    if (app::IsComponentCounted(identifier)) {
      counted.insert(DotNotation(identifier));
    }
  });
  std::set<std::string> traced;
  for (const std::string& name : TracedValues("demo-orlo", "getComponentdotCmdList", "id")) {
    Identifier identifier = text::ParseDotNotation(name).value();
    EXPECT_TRUE(app::IsComponentCounted(identifier)) << name;
    identifier.at(3) = '\0';
    traced.insert(DotNotation(identifier));
  }
  EXPECT_EQ(counted, traced);
}

TEST(AskedCommands, AreTheKestleCommandsThatThePluginSends) {
  std::set<std::string> asked;
  for (int code = 0; code <= 255; ++code) {
    if (app::IsKestleCommandAsked(static_cast<unsigned char>(code))) {
      asked.insert(std::to_string(code));
    }
  }
  EXPECT_EQ(asked, TracedValues("demo-tavit", "sendKestleCommand", "code"));
}

TEST(AskedCommands, AreSentToMachinesWithATavitProcessorAlone) {
  for (const char* const machine : {"5120", "5123-AC1", "51289"}) {
    EXPECT_TRUE(app::HasTavitProcessor(machine)) << machine;
  }
  for (const char* const machine : {"", "512", "5119", "5129", " 5120", "9999-AC1"}) {
    EXPECT_FALSE(app::HasTavitProcessor(machine)) << machine;
  }
}

}  // namespace
}  // namespace strake::tests
