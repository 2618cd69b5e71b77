// `strake check`, and what it finds that nothing will ask for.
#include "app/UnusedParts.h"
#include "tests/app/Command.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

std::string WithSp(const std::string& members, const std::string& root = "") {
  return R"({"format":"strake-server/1",)" + root + R"("sp":{)" + members + "}}";
}

std::string WithCommands(const std::string& commands, const std::string& more = "") {
  return WithSp(R"("kind":"orlo",)" + more + R"("instances":[{"dot_commands":{)" + commands +
                "}}]");
}

std::vector<std::string> PartsOf(const std::string& text) {
  return app::UnusedParts(platform::ParseServerDescription(text, "test"));
}

TEST(UnusedParts, AreNoneOfADescriptionWhoseEveryPartIsAskedFor) {
  for (const std::string& text :
       {WithSp(R"("kind":"orlo")"), WithSp(R"("kind":"none")"),
        WithSp(R"("kind":"tavit","kestle_commands":{"162":"","164":"","166":""})",
               R"("machine_type_model":"5128",)"),
        WithSp(R"("kind":"tavit")", R"("machine_type_model":{"throws":"x"},)"),
        WithSp(R"("kind":"orlo","instances":[{}])"),
        WithCommands(R"("1.1":[{"succeeds":false},""],"2.3.16":"","4.2.1.1":"","4.1.2.2.255":"",)"
                     R"("4.9.1.1.16.9":"","4.9.1.2.255":"","4.1.3.2.255":"","4.1.4.3.3":"")",
                     R"("components":{"4.1.3.9.255":2,"4.1.4.1.255":3,"4.9.1.1.255":254},)")}) {
    EXPECT_EQ(PartsOf(text), std::vector<std::string>()) << text;
  }
}

TEST(UnusedParts, AreToldWithThePlaceAndTheReason) {
  const std::string never = ": no such command is ever sent";
  const std::string beyond =
      ": there are not so many of this component, so the command is not sent";
  const std::string command = "at /sp/instances/0/dot_commands/";
  const std::string none = ": there is no service processor (kind none)";
  const struct {
    std::string text;
    std::vector<std::string> parts;
  } cases[] = {
      {WithCommands(R"("1.1":"","2.3.17":"","2.3":"","4.1.2.0.255":"","4.1.2.3.255":"",)"
                    R"("4.2.1.2":"","4.9.1.1.16.10":"")"),
       {command + "2.3" + never, command + "2.3.17" + never, command + "4.1.2.0.255" + beyond,
        command + "4.1.2.3.255" + beyond, command + "4.2.1.2" + beyond,
        command + "4.9.1.1.16.10" + never}},
      {WithCommands(R"("1.1":"","4.1.3.1.255":"","4.1.4.3.9":"","4.9.1.2.255":"",)"
                    R"("4.9.1.3.16.1":"")",
                    R"("components":{"4.1.4.1.255":2,"4.9.1.1.255":1},)"),
       {command + "4.1.3.1.255" + beyond, command + "4.1.4.3.9" + beyond,
        command + "4.9.1.2.255" + beyond, command + "4.9.1.3.16.1" + beyond}},
      {WithCommands(R"("1.1":"","4.9.1.3.255":"","4.1.3.1.255":"")",
                    R"("components":{"4.9.1.1.255":3,"4.1.3.1.255":1},)"),
       {command + "4.9.1.3.255" + beyond}},
      {WithCommands(R"("1.1":"","4.1.3.1.255":"")",
                    R"("command_list":false,"components":{"4.1.3.1.255":1},)"),
       {command + "4.1.3.1.255" + beyond}},
      {WithCommands(R"("1.1":{"succeeds":false},"9.9":"")"),
       {"at /sp/instances/0/dot_commands: command 1.1 never succeeds, and without it no other is "
        "sent"}},
      {WithCommands(R"("4.4.1":"")"),
       {"at /sp/instances/0/dot_commands: command 1.1 never succeeds, and without it no other is "
        "sent"}},
      {WithSp(R"("kind":"orlo","components":{"4.1.2.7.255":1,"4.1.3.7.255":1})"),
       {"at /sp/components: nothing counts 4.1.2.0.255, whatever its fourth byte"}},
      {WithSp(R"("kind":"orlo","kestle_commands":{"166":""})"),
       {"at /sp/kestle_commands: an Orlo card is sent no Kestle commands"}},
      {WithSp(R"("kind":"both","kestle_commands":{"166":""})"),
       {"at /sp/kestle_commands: a Tavit processor beside an Orlo card is not read"}},
      {WithSp(R"("kind":"orlo","count":1,"instances":[{},{},{}])"),
       {"at /sp/instances/1: nothing asks this service processor: 1 is counted, 3 described"}},
      {WithSp(R"("kind":"orlo","count":3,"instances":[{}])"),
       {"at /sp/count: 3 are counted, 1 described; the others answer nothing"}},
      {WithSp(R"("kind":"orlo","count":256,"instances":[{}])"),
       {"at /sp/instances/0: nothing asks this service processor: 0 are counted, 1 described"}},
      {WithSp(R"("kind":"orlo","count":-1)"),
       {"at /sp/count: 255 are counted, 0 described; the others answer nothing"}},
      {WithSp(R"("kind":"tavit","count":1,"components":{"4.1.3.1.255":1},)"
              R"("kestle_commands":{"165":"","166":""})",
              R"("machine_type_model":"5129-AC1",)"),
       {"at /machine_type_model: '5129-AC1' is no machine with a Tavit processor, so nothing is "
        "sent to it",
        "at /sp/count: Tavit processors are not counted",
        "at /sp/components: the components of a Tavit processor are not counted",
        "at /sp/kestle_commands/165" + never}},
      {WithSp(R"("kind":"tavit","instances":[{}])", R"("machine_type_model":"5120",)"),
       {"at /sp/instances: a Tavit processor is sent no dot commands"}},
      {WithSp(R"("kind":"none","instances":[{}],"components":{"4.1.3.1.255":1},)"
              R"("kestle_commands":{"166":""})"),
       {"at /sp/instances" + none, "at /sp/components" + none, "at /sp/kestle_commands" + none}},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(PartsOf(one.text), one.parts) << one.text;
  }
}

TEST(Check, CountsTheProcessorsOfEachKind) {
  const TemporaryFolder folder;
  const struct {
    const char* kind;
    const char* processors;
  } cases[] = {
      {"orlo", "2 service processors"},
      {"tavit", "1 Tavit processor"},
      {"both", "2 service processors and 1 Tavit processor"},
      {"none", "2 service processors"},
  };
  for (const auto& one : cases) {
    const std::string file =
        folder.Write("s", WithSp("\"kind\":\"" + std::string(one.kind) + "\",\"count\":2"));
    const std::string line = file + " is fine: kind " + one.kind + ", " + one.processors + "\n";
    EXPECT_EQ(Strake({"check", file}).out.substr(0, line.size()), line);
  }
}

TEST(Check, GivesEveryFileItsLinesAndRefusesWhenOneIsRefused) {
  const TemporaryFolder folder;
  const std::string fine = folder.Write("a", WithSp(R"("kind":"none")", R"("description":"A",)"));
  const std::string wrong = folder.Write("b", "7");
  const std::string warned = folder.Write("c", WithSp(R"("kind":"none","instances":[{}])"));
  const std::string refusal =
      "strake: " + wrong + ": at the top level: expected an object, got 7\n";
  const std::string out =
      fine + " is fine: kind none, 0 service processors; A\n" + warned +
      " is fine: kind none, 1 service processor\n" + warned +
      ": warning: at /sp/instances: there is no service processor (kind none)\n";
  EXPECT_EQ(Strake({"check", fine, wrong, warned}), (Outcome{2, out, refusal}));
  EXPECT_EQ(Strake({"check", fine, warned}), (Outcome{0, out, ""}));
  EXPECT_EQ(Strake({"check", wrong, folder / "absent"}),
            (Outcome{2, "",
                     refusal + "strake: " + (folder / "absent") +
                         ": cannot be read: No such file or directory\n"}));
}

TEST(Check, ReadsStandardInputForADash) {
  const TemporaryFolder folder;
  const std::string server = folder.Write("s", WithSp(R"("kind":"none","instances":[{}])"));
  EXPECT_EQ(Command({"check", "-"}).StandardInput(server).Run(),
            (Outcome{0,
                     "standard input is fine: kind none, 1 service processor\n"
                     "standard input: warning: at /sp/instances: there is no service processor "
                     "(kind none)\n",
                     ""}));
}

TEST(Check, TellsTwentyWarningsOfAFileAndHowManyMoreThereAre) {
  const TemporaryFolder folder;
  std::string commands = R"("1.1":"")";
  for (int i = 0; i < 22; ++i) {
    commands += ",\"9." + std::to_string(i) + "\":\"\"";
  }
  const std::string server = folder.Write("s", WithCommands(commands));
  const std::string out = Strake({"check", server}).out;
  EXPECT_NE(out.find("dot_commands/9.19: "), std::string::npos);
  EXPECT_EQ(out.find("dot_commands/9.20: "), std::string::npos);
  EXPECT_TRUE(out.ends_with("\n" + server + ": warning: 2 more of this kind\n")) << out;
}

}  // namespace
}  // namespace strake::tests
