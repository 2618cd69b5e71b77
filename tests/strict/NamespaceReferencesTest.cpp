// Who holds a reference to the query's namespace, and while what runs.
#include "tests/strict/Classes.h"

#include <algorithm>
#include <functional>
#include <ostream>

namespace strake::strict {
namespace {

using Match = std::function<bool(const Event&)>;

Match Line(const std::string& start) {
  return [start](const Event& event) {
    return event.call == Call::Log && event.text.starts_with(start);
  };
}
Match Send(const std::string& start) {
  return [start](const Event& event) {
    return event.call == Call::SendDotCommand && event.text.starts_with(start);
  };
}
Match Property(const std::string& name) {
  return
      [name](const Event& event) { return event.call == Call::SetProperty && event.text == name; };
}
Match Any(Call call) {
  return [call](const Event& event) { return event.call == call; };
}

struct ReferenceCase {
  const char* name;
  const char* classCase;
  Match outside;
  Match inside;  // the first such event behind `outside`
  Match behind;  // the first such event behind `inside`
};

void PrintTo(const ReferenceCase& referenceCase, std::ostream* stream) {
  *stream << referenceCase.name;
}

class NamespaceReferences : public testing::TestWithParam<ReferenceCase> {};

TEST_P(NamespaceReferences, AreHeldByWhoeverIsCalled) {
  StrictHost host;
  Prepare(host, CaseOf(GetParam().classCase));
  host.Query({CaseOf(GetParam().classCase).className});
  const auto end = host.events.cend();
  const auto outside = std::find_if(host.events.cbegin(), end, GetParam().outside);
  ASSERT_NE(outside, end);
  const auto inside = std::find_if(outside, end, GetParam().inside);
  ASSERT_NE(inside, end);
  const auto behind = std::find_if(inside, end, GetParam().behind);
  ASSERT_NE(behind, end);
  EXPECT_GT(inside->namespaceUses, outside->namespaceUses);
  EXPECT_GT(inside->namespaceUses, behind->namespaceUses);
}

const ReferenceCase kCases[] = {
    {"TheComputerSystem", "ComputerSystem", Send("1.1"),
     Line("CreateVELKSGComputerSystem() entered."), Send("1.1")},
    {"TheNetworkDriver", "IPEndpoint2", Send("1.1"), Line("TStrakePluginCallbacks::tcpipcommands"),
     Send("1.1")},
    {"TheNetworkInterface", "IPEndpoint", Property("SourceNode"),
     Line("TStrakePluginCallbacks::NetworkInterface entered."), Any(Call::Commit)},
    {"TheDhcpValues", "IPEndpoint", Property("SourceNode"),
     Line("TStrakePluginCallbacks::IndividualDHCPValues entered."), Any(Call::Commit)},
    {"TheDialDriver", "Alerts", Send("1.1"), Any(Call::BuildDotCommandList), Send("1.1")},
    {"TheSerialPort", "SerialPort", Line("SerialPort instance #1"),
     Line("TStrakePluginCallbacks::getSerialPortData entered."), Line("SerialPort instance #2")},
    {"TheDialout", "Dialout", Line("DialoutSettings instance #1"),
     Line("TStrakePluginCallbacks::getDialoutSettings entered."),
     Line("DialoutSettings instance #2")},
    {"TheDialin", "Dialin", Line("DialinSettings instance #1"),
     Line("TStrakePluginCallbacks::getDialinSettings entered."),
     Line("DialinSettings instance #2")},
    {"TheAlerts", "Alerts", Line("DialOutAlerts instance #1"),
     Line("TStrakePluginCallbacks::getDialOutAlerts entered."),
     Line("TStrakePluginCallbacks::dialcommands completed.")},
};

INSTANTIATE_TEST_SUITE_P(Of, NamespaceReferences, testing::ValuesIn(kCases),
                         [](const testing::TestParamInfo<ReferenceCase>& each) {
                           return std::string(each.param.name);
                         });

TEST(SensorCollector, HoldsAReferenceToTheNamespaceUntilTheQueryEnds) {
  StrictHost host;
  Prepare(host, CaseOf("Alerts"));
  host.Query({kAlerts});
  const auto before = host.All(Call::GetMachineTypeFromID).front()->namespaceUses;
  for (const Event* const event : host.All(Call::SendDotCommand)) {
    EXPECT_GT(event->namespaceUses, before);
  }
  EXPECT_EQ(host.cimNamespace.use_count(), 1);
}

}  // namespace
}  // namespace strake::strict
