#include "tests/findings/WatchCases.h"

#include <functional>

namespace strake::tests {
namespace {

using platform::Reply;
using platform::ReplySequence;
using platform::ServerDescription;

constexpr int kVoltages = 0xA6;
constexpr int kFans = 0xA2;
constexpr int kTemperatures = 0xA4;

// A list of this length.
std::string List(int length) { return Bytes({length}) + std::string(31, '\1'); }

struct Lengths {
  int voltages;
  int fans;
  int temperatures;
};

ServerDescription Tavit(
    const std::string& machine, const Lengths& lengths,
    const std::function<void(Scenario&)>& change = [](Scenario&) {}) {
  Scenario scenario = Scenario::Tavit(machine);
  scenario.Kestle(kVoltages, List(lengths.voltages));
  scenario.Kestle(kFans, List(lengths.fans));
  scenario.Kestle(kTemperatures, List(lengths.temperatures));
  change(scenario);
  return scenario.server;
}

const Lengths kPilkarLengths = {18, 16, 10};
const Lengths kTessilLengths = {18, 15, 12};
const Lengths kNembroLengths = {16, 28, 18};
const Lengths kBladeLengths = {30, 6, 9};

ServerDescription Pilkar(int code, const Reply& reply) {
  return Tavit("5120-21X", kPilkarLengths,
               [&](Scenario& scenario) { scenario.Kestle(code, reply); });
}

ServerDescription NembroLists(const ReplySequence& voltages) {
  return Tavit("5125", kNembroLengths, [&](Scenario& scenario) {
    scenario.server.sp.kestleCommands[kVoltages] = voltages;
  });
}

ServerDescription Held(bool isStopped, bool hasDornLibrary) {
  return Tavit("5125-K2G", kNembroLengths, [&](Scenario& scenario) {
    scenario.server.sp.managementServerStopped = isStopped;
    scenario.server.sp.dornLibrary = hasDornLibrary;
  });
}

ServerDescription ThrowingHost(const std::string& text) {
  return Tavit("", kNembroLengths, [&](Scenario& scenario) {
    scenario.server.host.machineTypeModel = {text, true};
  });
}

// Of five sensors, and what stands in front of and behind their names.
const std::string kFiveFans = "Fan 1, Fan 2, Fan 3, Fan 4, Fan 5";
const Lines kFiveFansSilent = {"1 fan Fan 1", "1 fan Fan 2", "1 fan Fan 3", "1 fan Fan 4",
                               "1 fan Fan 5"};
const Lines kNembroVoltagesSilent = {"1 voltage 3.3 Voltage",      "1 voltage 2.5 Voltage",
                                     "1 voltage CPU Core Voltage", "1 voltage 5 Voltage",
                                     "1 voltage 12 Voltage",       "1 voltage -12 Voltage"};

std::vector<WatchCase> ListCases() {
  return {
      {"Pilkar", Tavit("5122", kPilkarLengths), {kSensors}, kOneAnswered},
      {"Pilkar with six fans", Tavit("5120", {18, 18, 10}), {kSensors}, kOneAnswered},
      {"Tessil", Tavit("5123-XY", kTessilLengths), {kSensors}, kOneAnswered},
      {"Nembro, all classes", Tavit("5125", kNembroLengths), WholeCollectionQueries(),
       kOneAnswered},
      {"a blade", Tavit("5128", kBladeLengths), {kSensors}, kOneAnswered},
      {"a blade whose fan list does not come",
       Tavit("5126", kBladeLengths, [](Scenario& scenario) { scenario.Kestle(kFans, Failure()); }),
       {kSensors},
       kOneAnswered},
      {"no sensors asked for",
       Tavit("9999", {0, 0, 0}),
       {kNetwork, kDial, kComputer, {}},
       kOneNotAsked},
      {"sensors asked for in one query of two",
       Tavit("5125", kNembroLengths),
       {kNetwork, kSensors},
       kOneAnswered},
      {"a fan list that does not come",
       Pilkar(kFans, Failure(List(16), 32)),
       {kSensors},
       kOneAnswered,
       {"warning command-unanswered 1: 1 of 3 commands to SP 1 had no reply: ALERT_FAN_INFORMATION",
        "warning sensor-unanswered 1: 5 of 16 sensors on SP 1 did not answer: " + kFiveFans},
       kFiveFansSilent},
      {"a fan list of length 0",
       Pilkar(kFans, Reported(List(16), 0)),
       {kSensors},
       kOneAnswered,
       {"warning command-unanswered 1: 1 of 3 commands to SP 1 had no reply: ALERT_FAN_INFORMATION",
        "warning sensor-unanswered 1: 5 of 16 sensors on SP 1 did not answer: " + kFiveFans},
       kFiveFansSilent},
      {"a fan list of a negative length",
       Pilkar(kFans, Reported(List(16), -1)),
       {kSensors},
       kOneAnswered},
      {"a fan list that states another length",
       Pilkar(kFans, Success(List(17))),
       {kSensors},
       kOneAnswered,
       {"warning list-length 1: the fan list of SP 1 (ALERT_FAN_INFORMATION) stated length 17, "
        "expected 16, 18 or 22 for Pilkar/Mossel/Fendra",
        "warning sensor-unanswered 1: 5 of 16 sensors on SP 1 did not answer: " + kFiveFans},
       kFiveFansSilent},
      {"a temperature list without bytes",
       Pilkar(kTemperatures, Reported("", 10)),
       {kSensors},
       kOneAnswered,
       {"warning list-length 1: the temperature list of SP 1 (MSG_TEMPERATURE_LIST) stated length "
        "0, expected 10 for Pilkar/Mossel/Fendra",
        "warning sensor-unanswered 1: 4 of 16 sensors on SP 1 did not answer: Ambient "
        "Temperature, CPU 1 Temperature, CPU 2 Temperature, DASD 1 Temperature"},
       {"1 temperature Ambient Temperature", "1 temperature CPU 1 Temperature",
        "1 temperature CPU 2 Temperature", "1 temperature DASD 1 Temperature"}},
      {"a voltage list of another family",
       NembroLists({Success(List(30))}),
       {kSensors},
       kOneAnswered,
       {"warning list-length 1: the voltage list of SP 1 (MSG_VOLTAGE_LIST) stated length 30, "
        "expected 16 for Nembro",
        "warning sensor-unanswered 1: 6 of 22 sensors on SP 1 did not answer: 3.3 Voltage, 2.5 "
        "Voltage, CPU Core Voltage, 5 Voltage, 12 Voltage and 1 more"},
       kNembroVoltagesSilent},
      {"a voltage list that is wrong in two different ways",
       NembroLists({Success(List(255)), Success(List(1))}),
       {kSensors, kSensors},
       kOneAnswered,
       {"warning list-length 1: the voltage list of SP 1 (MSG_VOLTAGE_LIST) stated length 255, "
        "expected 16 for Nembro",
        "warning sensor-unanswered 1: 6 of 22 sensors on SP 1 did not answer: 3.3 Voltage, 2.5 "
        "Voltage, CPU Core Voltage, 5 Voltage, 12 Voltage and 1 more"},
       kNembroVoltagesSilent},
      {"a voltage list that is right, then wrong, then does not come",
       NembroLists({Success(List(16)), Success(List(17)), Failure()}),
       {kSensors, kSensors, kSensors},
       kOneAnswered,
       {"warning list-length 1: the voltage list of SP 1 (MSG_VOLTAGE_LIST) stated length 17 in 1 "
        "of 3 queries, expected 16 for Nembro",
        "warning command-unanswered 1: 1 of 9 commands to SP 1 had no reply: MSG_VOLTAGE_LIST (1 "
        "of 3 "
        "times)",
        "warning sensor-unanswered 1: 6 of 22 sensors on SP 1 did not answer: 3.3 Voltage (2 of 3 "
        "times), 2.5 Voltage (2 of 3 times), CPU Core Voltage (2 of 3 times), 5 Voltage (2 of 3 "
        "times), 12 Voltage (2 of 3 times) and 1 more"}},
      {"a processor that answers nothing",
       Scenario::Tavit("5124").server,
       {kSensors},
       kOneSilent,
       {"critical sp-silent 1: SP 1 did not answer: none of 3 commands had a reply: "
        "MSG_VOLTAGE_LIST, ALERT_FAN_INFORMATION, MSG_TEMPERATURE_LIST",
        "warning sensor-unanswered 1: 18 of 18 sensors on SP 1 did not answer: 12 Voltage, -12 "
        "Voltage, 5 Voltage, 3.3 Voltage, 2.5 Voltage and 13 more"},
       {"1 voltage 12 Voltage", "1 voltage -12 Voltage", "1 voltage 5 Voltage",
        "1 voltage 3.3 Voltage", "1 voltage 2.5 Voltage", "1 voltage CPU 1 Core Voltage",
        "1 voltage CPU 2 Core Voltage", "1 fan Fan 1", "1 fan Fan 2", "1 fan Fan 3", "1 fan Fan 4",
        "1 fan Fan 5", "1 temperature Environment Temperature", "1 temperature CPU 1 Temperature",
        "1 temperature CPU 2 Temperature", "1 temperature DASD 1 Temperature",
        "1 temperature DASD 2 Temperature", "1 temperature DASD 3 Temperature"}},
      {"voltages alone do not come, of eight fans",
       Tavit("5121", {18, 22, 10},
             [](Scenario& scenario) { scenario.Kestle(kVoltages, Failure()); }),
       {kSensors},
       kOneAnswered,
       {"warning command-unanswered 1: 1 of 3 commands to SP 1 had no reply: MSG_VOLTAGE_LIST",
        "warning sensor-unanswered 1: 7 of 19 sensors on SP 1 did not answer: 12 Voltage, 5 "
        "Voltage, 3.3 Voltage, 2.5 Voltage, 1.5 Voltage and 2 more"},
       {"1 voltage 12 Voltage", "1 voltage 5 Voltage", "1 voltage 3.3 Voltage",
        "1 voltage 2.5 Voltage", "1 voltage 1.5 Voltage", "1 voltage 1.25 Voltage",
        "1 voltage CPU Core Voltage"}},
  };
}

WatchCase Unknown(const std::string& machine, const std::string& shown) {
  return {"the machine type " + shown,
          Tavit(machine, kNembroLengths),
          WholeCollectionQueries(),
          kOneNotAsked,
          {"warning machine-unknown 1: no family of Tavit machines has the machine type \"" +
           shown + "\", so the sensors of the Tavit processor were not read"}};
}

std::vector<WatchCase> MachineCases() {
  const std::string held =
      "warning held 1: the management server held the Tavit processor, so its sensors were not "
      "read";
  return {
      Unknown("9999-AC1", "9999"),
      Unknown("512", "512"),
      Unknown("", ""),
      Unknown(" 5125", " 512"),
      Unknown("\x1b[2J\xe2\x80\xae", "\\x1B[2J"),
      Unknown("\n\t\xff\"x", "\\x0A\\x09\\xFF\""),
      {"a host that does not tell the machine type",
       ThrowingHost("no such\nfile"),
       {kSensors},
       kOneNotAsked,
       {"warning machine-unknown 1: the host could not tell the machine type (no such\\x0Afile), "
        "so the sensors of the Tavit processor were not read"}},
      {"a processor that is held",
       Held(false, true),
       WholeCollectionQueries(),
       kOneNotAsked,
       {held}},
      {"a management server that is stopped", Held(true, true), {kSensors}, kOneAnswered},
      {"a management server without its library", Held(false, false), {kSensors}, kOneAnswered},
      {"a processor that is held while nobody asks for sensors",
       Held(false, true),
       {kNetwork, kComputer},
       kOneNotAsked},
  };
}

}  // namespace

const std::vector<WatchCase>& TavitCases() {
  static const std::vector<WatchCase> cases = [] {
    std::vector<WatchCase> all = ListCases();
    const auto more = MachineCases();
    all.insert(all.end(), more.begin(), more.end());
    return all;
  }();
  return cases;
}

}  // namespace strake::tests
