#include "plugin/config/Records.h"
#include "tests/findings/WatchCases.h"
#include "text/DotNotation.h"

#include <functional>

namespace strake::tests {
namespace {

using platform::ReplySequence;
using platform::ServerDescription;

const std::string kData = Bytes({1, 2, 3, 4, 5, 6, 7});

// A card that answers every command, with two of each component.
Scenario Answering(int sps = 1) {
  Scenario scenario = Scenario::Orlo(sps);
  for (int sp = 0; sp < sps; ++sp) {
    for (const NamedIdentifier& command : AllIdentifiers()) {
      DotIdentifier identifier = command.identifier;
      for (unsigned char instance = 1; instance <= (command.isNumbered ? 2 : 1); ++instance) {
        if (command.isNumbered) identifier.Address(instance);
        scenario.Answer(text::DotNotation(identifier.Bytes()), kData, sp);
      }
    }
  }
  for (const char* const component : {"4.1.3.1.255", "4.1.4.1.255", "4.9.1.1.255"}) {
    scenario.Component(component, 2);
  }
  return scenario;
}

ServerDescription With(const std::function<void(Scenario&)>& change) {
  Scenario scenario = Answering();
  change(scenario);
  return scenario.server;
}

// An answering card, but for some commands of one SP.
ServerDescription But(const std::vector<std::string>& commands,
                      const ReplySequence& replies = {Failure()}, int sps = 1) {
  Scenario scenario = Answering(sps);
  for (const std::string& command : commands) scenario.Answer(command, replies, sps - 1);
  return scenario.server;
}

ServerDescription Kind(platform::SpKind kind) {
  return With([kind](Scenario& scenario) { scenario.server.sp.kind = kind; });
}

ServerDescription Count(int count) {
  return With([count](Scenario& scenario) { scenario.server.sp.count = count; });
}

const Lines kNone = {};
const std::vector<Classes> kWhole = WholeCollectionQueries();

std::vector<WatchCase> ProcessorCases() {
  return {
      {"an answering card", Answering().server, kWhole, kOneAnswered},
      {"two answering cards", Answering(2).server, kWhole, {"1 answered", "2 answered"}},
      {"a query for no classes", But({"4.4.1", "2.3.1"}), {{}}, kOneAnswered},
      {"no query", But({"1.1"}), {}},
      {"a card that does not communicate",
       With([](Scenario& scenario) { scenario.server.sp.communicates = false; }),
       kWhole,
       kNone,
       {"critical not-communicating: could not communicate with the Orlo card"}},
      {"no service processor",
       Kind(platform::SpKind::None),
       kWhole,
       kNone,
       {"warning no-sp: there was neither an Orlo card nor a Tavit processor"}},
      {"both kinds, of which the card is read", Kind(platform::SpKind::Both), kWhole, kOneAnswered},
      {"a count of 0",
       Count(0),
       kWhole,
       kNone,
       {"warning no-sp: no service processor was found on the Orlo card"}},
      {"a count of 256",
       Count(256),
       {kComputer},
       kNone,
       {"warning no-sp: no service processor was found on the Orlo card (the count was 256, of "
        "which the low eight bits count)"}},
      {"a count of 257", Count(257), kWhole, kOneAnswered},
      {"an SP that never passes its presence test",
       But({"1.1", "4.4.1"}),
       kWhole,
       kOneSilent,
       {"critical sp-silent 1: SP 1 did not answer its presence test"}},
      {"an SP that passes three of four presence tests",
       But({"1.1"}, {Success(kData), Failure(kData, 7), Success(kData)}),
       kWhole,
       kOneAnswered,
       {"warning sp-silent 1: SP 1 did not answer its presence test in 1 of 4 queries"}},
      {"a presence test without data", But({"1.1"}, {Success("")}), kWhole, kOneAnswered},
      {"the second of two SPs is silent",
       But({"1.1"}, {Failure()}, 2),
       kWhole,
       {"1 answered", "2 silent"},
       {"critical sp-silent 2: SP 2 did not answer its presence test"}},
      {"an SP that is counted and not there",
       Count(2),
       kWhole,
       {"1 answered", "2 silent"},
       {"critical sp-silent 2: SP 2 did not answer its presence test"}},
  };
}

std::vector<WatchCase> SensorCases() {
  return {
      {"a sensor whose command fails",
       But({"2.3.1"}),
       {kSensors},
       kOneAnswered,
       {"warning sensor-unanswered 1: 1 of 42 sensors on SP 1 did not answer: Fan 01 speed"},
       {"1 fan Fan 01 speed"}},
      {"a failed command that brought bytes",
       But({"2.2.1.1"}, {Failure(kData, 7)}),
       {kSensors},
       kOneAnswered,
       {"warning sensor-unanswered 1: 1 of 42 sensors on SP 1 did not answer: "
        "Planar Voltage +5v"},
       {"1 voltage Planar Voltage +5v"}},
      {"a reply of length 0, to a name that ends in a blank",
       But({"2.1.4.2"}, {Reported(kData, 0)}),
       {kSensors},
       kOneAnswered,
       {"warning sensor-unanswered 1: 1 of 42 sensors on SP 1 did not answer: "
        "DASD Sensor 2 Temperature"},
       {"1 temperature DASD Sensor 2 Temperature "}},
      {"a reply of a negative length",
       But({"2.3.1"}, {Reported(kData, -1)}),
       {kSensors},
       kOneAnswered},
      {"six sensors, in the order of the plug-in",
       But({"2.3.2", "2.1.2.3", "2.3.16", "2.1.1.1", "2.2.3.2", "2.2.1.13"}),
       {kSensors},
       kOneAnswered,
       {"warning sensor-unanswered 1: 6 of 42 sensors on SP 1 did not answer: Planar Voltage "
        "+1.25v, VRM 02, Center card temperature, CPU 3 temperature, Fan 02 speed and 1 more"},
       {"1 voltage Planar Voltage +1.25v", "1 voltage VRM 02",
        "1 temperature Center card temperature", "1 temperature CPU 3 temperature",
        "1 fan Fan 02 speed", "1 fan Fan 16 speed"}},
      {"a sensor of the second SP",
       But({"2.3.1"}, {Failure()}, 2),
       {kSensors},
       {"1 answered", "2 answered"},
       {"warning sensor-unanswered 2: 1 of 42 sensors on SP 2 did not answer: Fan 01 speed"},
       {"2 fan Fan 01 speed"}},
      {"a sensor that answers one of two times",
       But({"2.3.1"}, {Success(kData), Failure()}),
       {kSensors, kSensors},
       kOneAnswered,
       {"warning sensor-unanswered 1: 1 of 42 sensors on SP 1 did not answer: Fan 01 speed "
        "(1 of 2 times)"}},
      {"a sensor that never answers in two queries",
       But({"2.3.1"}),
       {kSensors, kSensors},
       kOneAnswered,
       {"warning sensor-unanswered 1: 1 of 42 sensors on SP 1 did not answer: Fan 01 speed"},
       {"1 fan Fan 01 speed"}},
      {"sensors alone, of a card without any other command",
       But({"4.4.1", "4.4.2", "4.2.1.1"}),
       {kSensors},
       kOneAnswered},
      {"no sensors asked for",
       But({"2.3.1", "2.2.1.1"}),
       {kNetwork, kDial, kComputer},
       kOneAnswered},
  };
}

// With two of each component the network query asks 29 questions: the list of
// commands, the count of interfaces, 5 values and 2 records of the summary, a
// record and 9 values of each interface. The dial query asks 16: the list, 2
// counts, 2 dial-out entries, 4 commands of each login, 2 ports, the alerts.
std::vector<WatchCase> CommandCases() {
  return {
      {"a card without a clock, whose time zone is not asked for",
       But({"4.4.1", "4.4.2"}),
       {kComputer},
       kOneAnswered,
       {"warning command-unanswered 1: 1 of 1 commands to SP 1 had no reply: SP clock"}},
      {"a clock of a negative length",
       But({"4.4.1"}, {Reported(kData, -1)}),
       {kComputer},
       kOneAnswered,
       {"warning command-unanswered 1: 1 of 1 commands to SP 1 had no reply: SP clock"}},
      {"a time zone of a negative length, for the clock and for two logins",
       But({"4.4.2"}, {Reported(kData, -1)}),
       {kComputer, kDial},
       kOneAnswered,
       {"warning command-unanswered 1: 1 of 18 commands to SP 1 had no reply: SP time zone"}},
      {"a time zone for two logins and the clock",
       But({"4.4.2"}, {Reported(kData, 0)}),
       {kDial, kComputer},
       kOneAnswered,
       {"warning command-unanswered 1: 3 of 18 commands to SP 1 had no reply: "
        "SP time zone (3 times)"}},
      {"records and entries of the dial query",
       But({"4.1.2.2.255", "4.1.3.1.255", "4.1.4.2.9", "4.2.1.1"}),
       {kDial},
       kOneAnswered,
       {"warning command-unanswered 1: 4 of 16 commands to SP 1 had no reply: dial-out settings "
        "1, dial-in authority levels 2, serial port 2, dial-out alerts 1"}},
      {"one DHCP value, and the values and records of the summary",
       But({"4.9.3.1.2", "4.9.3.1.4.255", "4.9.1.1.16.2"}),
       {kNetwork},
       kOneAnswered,
       {"warning command-unanswered 1: 3 of 29 commands to SP 1 had no reply: Location, "
        "SNMP Configuration Summary, DHCP address of interface 1"}},
      {"several DHCP values of each interface",
       But({"4.9.1.1.16.2", "4.9.1.1.16.3", "4.9.1.2.16.2", "4.9.1.2.16.9", "4.9.1.2.16.4"}),
       {kNetwork},
       kOneAnswered,
       {"warning command-unanswered 1: 5 of 29 commands to SP 1 had no reply: DHCP values of "
        "interface 1 (2 times), DHCP values of interface 2 (3 times)"}},
      {"more than five, one of them twice",
       But({"4.4.2", "4.1.2.1.255", "4.1.2.2.255", "4.1.3.1.255", "4.1.3.2.255", "4.1.4.1.3",
            "4.2.1.1"}),
       {kDial},
       kOneAnswered,
       {"warning command-unanswered 1: 8 of 16 commands to SP 1 had no reply: dial-out settings "
        "1, dial-out settings 2, SP time zone (2 times), dial-in last login 1, serial port 1 and "
        "2 more"}},
      {"a component that is not counted",
       With([](Scenario& scenario) { scenario.server.sp.components.erase(Id("4.1.4.0.255")); }),
       {kDial},
       kOneAnswered,
       {"warning command-unanswered 1: 1 of 8 commands to SP 1 had no reply: "
        "number of instances of dial-in login"}},
      {"components that are not counted in two queries",
       With([](Scenario& scenario) { scenario.server.sp.components.clear(); }),
       {kNetwork, kDial, kDial},
       kOneAnswered,
       {"warning command-unanswered 1: 5 of 31 commands to SP 1 had no reply: number of instances "
        "of network interface, number of instances of dial-out settings (2 times), number of "
        "instances of dial-in login (2 times)"}},
      {"a component of which there is none",
       With([](Scenario& scenario) { scenario.Component("4.1.4.1.255", 0); }),
       {kDial},
       kOneAnswered},
      {"a list of commands that cannot be built",
       With([](Scenario& scenario) { scenario.server.sp.commandList = false; }),
       {kNetwork, kDial},
       kOneAnswered,
       {"warning command-unanswered 1: 2 of 22 commands to SP 1 had no reply: "
        "list of commands (2 times)"}},
      {"sensors and commands of two SPs",
       But({"2.3.1", "4.4.1"}, {Failure()}, 2),
       kWhole,
       {"1 answered", "2 answered"},
       {"warning sensor-unanswered 2: 1 of 42 sensors on SP 2 did not answer: Fan 01 speed",
        "warning command-unanswered 2: 1 of 46 commands to SP 2 had no reply: SP clock"},
       {"2 fan Fan 01 speed"}},
  };
}

}  // namespace

const std::vector<WatchCase>& OrloCases() {
  static const std::vector<WatchCase> cases = [] {
    std::vector<WatchCase> all = ProcessorCases();
    for (const auto& more : {SensorCases(), CommandCases()}) {
      all.insert(all.end(), more.begin(), more.end());
    }
    return all;
  }();
  return cases;
}

}  // namespace strake::tests
