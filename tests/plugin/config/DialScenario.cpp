#include "tests/plugin/config/DialScenario.h"

#include <algorithm>
#include <cstddef>

namespace strake::tests {

std::string SerialPortReply() {
  return Plain(1, 255, Bytes({3})) + Plain(2, 254, Bytes({1})) + Plain(3, 253, Bytes({1})) +
         Plain(4, 252, Bytes({0})) + Text(5, 251, "ATZ", 40) + Plain(6, 250, Bytes({1})) +
         Text(7, 249, "AT+VCID=1", 40) + Text(8, 248, "AT&F", 40) + Plain(9, 247, Bytes({100})) +
         Text(10, 246, "+++") + Text(11, 245, "AT") + Text(12, 244, "\r") +
         Text(13, 243, "ATS0=1") + Text(14, 242, "ATS0=0") + Text(15, 241, "ATI3") +
         Text(16, 240, "ATH0");
}

std::string DialoutReply() {
  return Plain(17, 0, Bytes({2})) + Text(18, 1, "5550100") + Text(19, 2, "Night desk") +
         Plain(20, 3, Bytes({2})) + Text(21, 4, "desk") + Text(22, 5, "letmein") +
         Text(23, 6, "4711") + Text(24, 7, "desk@example.com") + Text(25, 8, "ppp") +
         Text(26, 9, "pppword") + Plain(27, 10, Bytes({1}));
}

std::string DialinReply() {
  return Text(33, 128, "USERID", 16) + Plain(34, 129, Bytes({1})) + Text(35, 130, "5550199", 20);
}

std::string AlertReply(const std::string& sevenBytes) {
  std::string reply;
  int id = 49;
  for (const char byte : sevenBytes) {
    reply += Plain(id, id + 100, std::string(1, byte));
    ++id;
  }
  return reply;
}

Scenario DialServer(int sps, int dialouts, int dialins) {
  Scenario scenario = Scenario::Orlo(sps);
  scenario.Component("4.1.3.1.255", dialouts).Component("4.1.4.1.255", dialins);
  for (int sp = 0; sp < sps; ++sp) {
    for (const int port : {1, 2}) {
      scenario.Answer("4.1.2." + std::to_string(port) + ".255", SerialPortReply(), sp);
    }
    for (int entry = 1; entry <= dialouts; ++entry) {
      scenario.Answer("4.1.3." + std::to_string(entry) + ".255", DialoutReply(), sp);
    }
    for (int login = 1; login <= dialins; ++login) {
      const std::string identifier = "4.1.4." + std::to_string(login);
      scenario.Answer(identifier + ".255", DialinReply(), sp)
          .Answer(identifier + ".9", Bytes({2, 0}), sp)
          .Answer(identifier + ".3", Bytes({9, 3, 7, 0, 14, 5, 9}), sp);
    }
    scenario.Answer("4.4.2", Bytes({60, 0}), sp)
        .Answer("4.2.1.1", AlertReply(Bytes({1, 0, 0, 1, 1, 0, 1})), sp);
  }
  return scenario;
}

namespace {

std::string SentLine(std::string_view identifier, int length, int sp) {
  return "4 Sent command: " + std::string(identifier) +
         ". Status: ADDR. ReturnDataLen:" + std::to_string(length) +
         " for spInstance#: " + std::to_string(sp) + ".";
}

}  // namespace

Lines Answered(std::string_view identifier, int length, int sp) {
  return {"4 TStrakePluginCallbacks::sendCommand entered.", SentLine(identifier, length, sp),
          "4 TStrakePluginCallbacks::sendCommand completed."};
}

Lines Unanswered(std::string_view identifier, int length, int sp) {
  return {"4 TStrakePluginCallbacks::sendCommand entered.", SentLine(identifier, length, sp),
          "3 Unable to communicate with system management hardware for dot command: " +
              std::string(identifier) + ".",
          "4 TStrakePluginCallbacks::sendCommand completed."};
}

Lines Join(const std::vector<Lines>& pieces) {
  Lines joined;
  for (const Lines& piece : pieces) {
    joined.insert(joined.end(), piece.begin(), piece.end());
  }
  return joined;
}

Lines DriverLines(const Scenario& scenario) {
  static constexpr std::string_view kWords[] = {"4 1.1 command",
                                                "4 TStrakePluginCallbacks::dialcommands",
                                                "4 TStrakePluginCallbacks::get",
                                                "3 DialoutSettings inst",
                                                "3 DialinSettings inst",
                                                "3 SerialPort inst",
                                                "3 DialOutAlerts inst",
                                                "3 Failed to get",
                                                "3 No data retrieved for"};
  Lines lines;
  for (const std::string& line : scenario.Record().Logs()) {
    if (std::any_of(std::begin(kWords), std::end(kWords),
                    [&](std::string_view word) { return line.starts_with(word); })) {
      lines.push_back(line);
    }
  }
  return lines;
}

Lines ReaderLines(const Scenario& scenario, const std::string& reader, int instance) {
  const std::string name = "4 TStrakePluginCallbacks::" + reader;
  return Between(scenario.Record().Logs(), name + " entered. Instance #" + std::to_string(instance),
                 name + " completed.");
}

std::string Property(const Scenario& scenario, unsigned long instance, std::string_view name) {
  const std::string prefix = std::string(name) + " ";
  for (const std::string& property : scenario.Record().Properties(instance)) {
    if (property.starts_with(prefix)) {
      return property.substr(prefix.size());
    }
  }
  return "unset";
}

}  // namespace strake::tests
