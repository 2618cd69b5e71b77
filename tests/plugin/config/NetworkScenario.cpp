#include "tests/plugin/config/NetworkScenario.h"

#include <sstream>

namespace strake::tests {

Lines Joined(std::initializer_list<Lines> lists) {
  Lines joined;
  for (const Lines& list : lists) {
    joined.insert(joined.end(), list.begin(), list.end());
  }
  return joined;
}

std::string RecordOf(const Lines& elements) {
  std::string record;
  for (const std::string& element : elements) {
    record += element;
  }
  return record;
}

Lines With(Lines elements, std::size_t place, const std::string& element) {
  elements.at(place - 1) = element;
  return elements;
}

Lines SentLines(const std::string& identifier, int length, int sp) {
  return {
      "4 TStrakePluginCallbacks::sendCommand entered.",
      "4 Sent command: " + identifier + ". Status: ADDR. ReturnDataLen:" + std::to_string(length) +
          " for spInstance#: " + std::to_string(sp) + ".",
      "4 TStrakePluginCallbacks::sendCommand completed.",
  };
}

Lines FailedLines(const std::string& identifier, int length, int sp) {
  Lines lines = SentLines(identifier, length, sp);
  lines.insert(lines.end() - 1,
               "3 Unable to communicate with system management hardware for dot command: " +
                   identifier + ".");
  return lines;
}

Lines LogsOf(const Scenario& scenario, const std::string& builder) {
  const std::string name = "4 TStrakePluginCallbacks::" + builder;
  return Between(scenario.Record().Logs(), name + " entered.", name + " completed.");
}

Lines Commands(const Scenario& scenario) {
  Lines commands;
  for (const std::string& line : scenario.Record().Beginning({"dot ", "count "})) {
    std::istringstream words(line);
    std::string kind;
    std::string commandClass;
    std::string identifier;
    std::string label;
    std::string sp;
    words >> kind;
    if (kind == "count") {
      commands.push_back(line);
      continue;
    }
    words >> commandClass >> identifier >> label >> sp;
    if (identifier != "1.1") {
      commands.push_back(sp.append(" ").append(identifier));
    }
  }
  return commands;
}

Lines InterfaceElements() {
  return {
      Plain(1, 241, Bytes({1})),                                    // LineType
      Plain(2, 242, Bytes({1})),                                    // Enabled
      Text(3, 243, "sp-lab-7"),                                     // HostName
      Plain(4, 244, Bytes({192, 0, 2, 17})),                        // HostIPAddress
      Plain(5, 245, Bytes({5})),                                    // LANDataRate
      Plain(6, 246, Bytes({2})),                                    // Duplex
      Plain(7, 247, Bytes({0x00, 0x1A, 0x2B, 0x3C, 0x4D, 0x5E})),   // LocalAdminMACAddress
      Plain(8, 248, Bytes({2})),                                    // DHCPEnabled
      Plain(9, 249, Bytes({192, 0, 2, 1})),                         // GatewayIPAddress
      Plain(10, 250, Bytes({0x00, 0x1A, 0x2B, 0x3C, 0x4D, 0x5E})),  // BurnedInMACAddress
      Plain(11, 251, Bytes({1})),                                   // PPPModemCOMPort
      Plain(12, 252, Bytes({198, 51, 100, 9})),                     // PPPRemoteIPAddress
      Plain(13, 253, Bytes({200})),                                 // NetworkMTU
      Plain(14, 254, Bytes({255, 255, 255, 0})),                    // HostIPSubnetMask
      Plain(15, 255, Bytes({3})),                                   // PPPAuthenticationProtocol
  };
}

Lines DnsElements() {
  return {
      Plain(1, 101, Bytes({1})),                  // DNS
      Plain(2, 102, Bytes({192, 0, 2, 53})),      // DNSIP1
      Plain(3, 103, Bytes({192, 0, 2, 54})),      // DNSIP2
      Plain(4, 104, Bytes({0, 0, 0, 0})),         // DNSIP3
      Text(5, 105, "one.example"),                // DNSHostName1
      Plain(6, 106, Bytes({198, 51, 100, 1})),    // DNSHostIP1
      Text(7, 107, "two.example", 64),            // DNSHostName2
      Plain(8, 108, Bytes({198, 51, 100, 2})),    // DNSHostIP2
      Text(9, 109, "three.example", 0),           // DNSHostName3
      Plain(10, 110, Bytes({198, 51, 100, 3})),   // DNSHostIP3
      Text(11, 111, ""),                          // DNSHostName4
      Plain(12, 112, Bytes({203, 0, 113, 255})),  // DNSHostIP4
  };
}

Lines CommunityElements() {
  return {
      Text(1, 201, "public"),   Text(2, 202, "192.0.2.100"),  Text(3, 203, "192.0.2.101"),
      Text(4, 204, "0.0.0.0"),  Text(5, 205, "private"),      Text(6, 206, "198.51.100.7"),
      Text(7, 207, ""),         Text(8, 208, "", 0),          Text(9, 209, "trap-sink", 3),
      Text(10, 210, "1.2.3.4"), Text(11, 211, "5.6.7.8", 15), Text(12, 212, "9.10.11.12"),
  };
}

Scenario NetworkServer(int sps) {
  Scenario server = Scenario::Orlo(sps);
  server.Component(kInterfaceList, 2);
  for (int sp = 0; sp < sps; ++sp) {
    server.Answer("4.9.3.1.2", "Rack 4, row B", sp)
        .Answer("4.9.3.1.1", "lab@example.org", sp)
        .Answer("4.9.3.1.3", Bytes({0}), sp)
        .Answer("4.9.3.1.5", Bytes({0}), sp)
        .Answer("4.9.3.1.6", Bytes({1}), sp)
        .Answer("4.9.3.2.255", RecordOf(DnsElements()), sp)
        .Answer("4.9.3.1.4.255", RecordOf(CommunityElements()), sp);
    for (int number = 1; number <= 2; ++number) {
      const std::string interface = "4.9.1." + std::to_string(number);
      server.Answer(interface + ".255", RecordOf(InterfaceElements()), sp);
      for (int value = 1; value <= 9; ++value) {
        server.Answer(interface + ".16." + std::to_string(value), Bytes({10, number, 0, value}),
                      sp);
      }
      server.Answer(interface + ".16.1", "host-" + std::to_string(number), sp);
      server.Answer(interface + ".16.5", "lan-" + std::to_string(number) + ".example", sp);
    }
  }
  return server;
}

}  // namespace strake::tests
