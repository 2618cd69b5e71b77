// Exceptions of the host: absorbed with their text where the call is guarded,
// handed on unchanged everywhere else, and nothing is left behind.
#include "tests/strict/Classes.h"

#include <map>
#include <new>
#include <ostream>
#include <stdexcept>

namespace strake::strict {
namespace {

enum class Thrown { Nothing, RuntimeError, BadAlloc, Number };

constexpr int kNumber = 4711;

void Throw(Thrown thrown) {
  switch (thrown) {
    case Thrown::Nothing:
      return;
    case Thrown::RuntimeError:
      throw std::runtime_error("as \"told\"");
    case Thrown::BadAlloc:
      throw std::bad_alloc();
    case Thrown::Number:
      throw kNumber;
  }
}

std::string TextOf(Thrown thrown) {
  return thrown == Thrown::RuntimeError ? "as \"told\"" : std::bad_alloc().what();
}

// Runs a query and says what reached the host.
Thrown Reaches(StrictHost& host, const char* className) {
  try {
    host.Query({className});
  } catch (const std::bad_alloc&) {
    return Thrown::BadAlloc;
  } catch (const std::runtime_error&) {
    return Thrown::RuntimeError;
  } catch (int number) {
    return number == kNumber ? Thrown::Number : Thrown::Nothing;
  }
  return Thrown::Nothing;
}

void ExpectNothingAlive(const StrictHost& host) {
  std::size_t tests = 0;
  for (const Event* const made : host.All(Call::NewDotCommand)) tests += made->text == "1.1";
  EXPECT_EQ(host.LiveDotCommands(), tests);
  EXPECT_EQ(host.LiveKestleCommands(), 0U);
  EXPECT_TRUE(LiveValues().empty());
  EXPECT_EQ(host.cimNamespace.use_count(), 1);
}

// A guarded call: `text` begins the event's, and it is the `nth` of them.
struct GuardedCase {
  const char* name;
  const char* classCase;
  Call call;
  const char* text;
  int nth;
  const char* line;  // what begins the line that tells of it; empty: none does
  int level;
  const char* property;  // what an instance then says, or does not say
  const char* value;     // nullptr: it is unset
};

void PrintTo(const GuardedCase& guardedCase, std::ostream* stream) { *stream << guardedCase.name; }

class GuardedCall : public testing::TestWithParam<GuardedCase> {
 protected:
  Thrown Query(Thrown thrown) {
    host.spCount = 1;
    int calls = 0;
    host.onCall = [thrown, calls](const Event& event) mutable {
      const GuardedCase& guarded = GetParam();
      if (event.call == guarded.call && event.text.starts_with(guarded.text) &&
          ++calls == guarded.nth) {
        Throw(thrown);
      }
    };
    return Reaches(host, CaseOf(GetParam().classCase).className);
  }

  void SetUp() override { Prepare(host, CaseOf(GetParam().classCase)); }

  StrictHost host;
};

TEST_P(GuardedCall, AbsorbsWhatHasAText) {
  for (const Thrown thrown : {Thrown::RuntimeError, Thrown::BadAlloc}) {
    host.events.clear();
    EXPECT_EQ(Query(thrown), Thrown::Nothing);
    if (*GetParam().line != '\0') {
      const std::string line = GetParam().line + TextOf(thrown);
      std::size_t told = 0;
      for (const Event* const event : host.All(Call::Log)) {
        if (event->text != line) continue;
        ++told;
        EXPECT_EQ(event->number, GetParam().level);
      }
      EXPECT_EQ(told, 1U) << line;
    }
    EXPECT_EQ(host.CountLines("Strake plugin execution complete."),
              std::string(GetParam().name) == "MachineTypeOfATavit" ? 0U : 1U);
  }
}

TEST_P(GuardedCall, FallsBackToWhatItsReaderSays) {
  EXPECT_EQ(Query(Thrown::BadAlloc), Thrown::Nothing);
  if (*GetParam().property == '\0') return;
  std::size_t said = 0;
  for (const Event* const event : host.All(Call::SetProperty)) {
    if (event->text != GetParam().property) continue;
    if (GetParam().value == nullptr) {
      // The call that threw; nothing behind it sets the property again.
      EXPECT_EQ(GetParam().call, Call::SetProperty);
      continue;
    }
    said += event->value.text == GetParam().value;
  }
  EXPECT_EQ(said > 0, GetParam().value != nullptr);
  EXPECT_GE(host.Count(Call::Commit), 1U);
}

TEST_P(GuardedCall, HandsOnWhatHasNone) {
  EXPECT_EQ(Query(Thrown::Number), Thrown::Number);
  EXPECT_EQ(host.CountLines("Strake plugin execution complete."), 0U);
}

TEST_P(GuardedCall, LeavesNothingAliveWhateverIsThrown) {
  for (const Thrown thrown : {Thrown::RuntimeError, Thrown::BadAlloc, Thrown::Number}) {
    Query(thrown);
    ExpectNothingAlive(host);
  }
}

constexpr const char* kNoMTM = "Unable to obtain MTM due to caught exception ";
constexpr const char* kNoSystemName = "Unable to obtain SystemName due to caught exception ";
constexpr const char* kNoClock = "Unable to set SP Clock due to caught exception ";

constexpr GuardedCase kGuarded[] = {
    {"MachineType", "Alerts", Call::GetMachineTypeFromID, "", 1, kNoMTM, 2, "Name",
     "Unknown MTM-Node1"},
    {"MachineTypeOfATavit", "TavitSensor", Call::GetMachineTypeFromID, "", 1, kNoMTM, 2, "", ""},
    {"MachineTypesFirstLine", "Alerts", Call::Log, "Obtained MTM.", 1, kNoMTM, 2, "Name",
     "Unknown MTM-Node1"},
    {"MachineTypesSecondLine", "Alerts", Call::Log, "5127-ABC", 1, kNoMTM, 2, "Name",
     "Unknown MTM-Node1"},
    {"SystemName", "Alerts", Call::GetSystemName, "", 1, kNoSystemName, 2, "SystemName",
     "Unknown SystemName"},
    {"SystemNamesFirstLine", "Alerts", Call::Log, "Obtained SystemName.", 1, kNoSystemName, 2,
     "SystemName", "Unknown SystemName"},
    {"SystemNamesSecondLine", "Alerts", Call::Log, "a system", 1, kNoSystemName, 2, "SystemName",
     "Unknown SystemName"},
    {"SystemNameOfTheFirstExport", "OrloSensor", Call::GetSystemName, "", 2, kNoSystemName, 2,
     "SystemName", "Unknown SystemName"},
    {"SystemNameOfTheLastExport", "TavitSensor", Call::GetSystemName, "", 4, kNoSystemName, 2,
     "SystemName", "Unknown SystemName"},
    {"ClockSet", "ComputerSystem", Call::DateTimeSet, "", 1, kNoClock, 1, "SPClock", nullptr},
    {"ClockToString", "ComputerSystem", Call::DateTimeToString, "", 1, kNoClock, 1, "SPClock",
     nullptr},
    {"ClockLine", "ComputerSystem", Call::Log, "SPtime = ", 1, kNoClock, 1, "SPClock", nullptr},
    {"ClockProperty", "ComputerSystem", Call::SetProperty, "SPClock", 1, kNoClock, 1, "SPClock",
     nullptr},
    {"LastLoginSet", "Dialin", Call::DateTimeSet, "", 1, "", 0, "LastLogin", "1970-1-2 12:0:0.0 0"},
};

INSTANTIATE_TEST_SUITE_P(Of, GuardedCall, testing::ValuesIn(kGuarded),
                         [](const testing::TestParamInfo<GuardedCase>& each) {
                           return std::string(each.param.name);
                         });

TEST_F(OneSP, HasItsClockCommandsGoneBeforeTheCommitEvenWhenTheClockIsRefused) {
  host.onCall = [](const Event& event) {
    if (event.call == Call::DateTimeSet) throw std::bad_alloc();
  };
  Query("ComputerSystem");
  std::vector<Call> trail;
  for (const Event& event : host.events) {
    if (event.call == Call::DateTimeSet || !trail.empty()) trail.push_back(event.call);
    if (event.call == Call::Commit) break;
  }
  EXPECT_EQ(trail, (std::vector<Call>{Call::DateTimeSet, Call::Log, Call::DeleteDotCommand,
                                      Call::DeleteDotCommand, Call::Commit}));
}

TEST_F(OneSP, HandsOnWhatRefusesTheDateInPlaceOfALastLogin) {
  host.onCall = [](const Event& event) {
    if (event.call == Call::DateTimeSet) throw std::runtime_error("no date at all");
  };
  EXPECT_THROW(Query("Dialin"), std::runtime_error);
  EXPECT_EQ(host.Count(Call::DateTimeSet), 2U);
  EXPECT_EQ(host.Count(Call::Commit), 0U);
  ExpectNothingAlive(host);
}

// Calls of the host and of the library that nothing guards.
TEST_P(EveryClass, HandsOnWhatAnUnguardedCallThrows) {
  Query();
  std::map<Call, bool> isCalled;
  for (const Event& event : host.events) isCalled[event.call] = true;
  for (const Call call :
       {Call::GetName, Call::GetClass, Call::CreateInstance, Call::GetSystemCreationClassName,
        Call::Commit, Call::GetSplibraryInstance, Call::IsDotcommand, Call::IsKestle,
        Call::CheckSPComm, Call::DiscoverSPs, Call::SendDotCommand, Call::SendKestleCommand,
        Call::BuildDotCommandList, Call::GetComponentdotCmdList}) {
    if (!isCalled[call]) continue;
    for (const Thrown thrown : {Thrown::BadAlloc, Thrown::Number}) {
      host.events.clear();
      host.onCall = [call, thrown](const Event& event) {
        if (event.call == call) Throw(thrown);
      };
      EXPECT_EQ(Reaches(host, GetParam().className), thrown) << testing::PrintToString(call);
      EXPECT_EQ(host.Count(call), 1U);
      EXPECT_TRUE(LiveValues().empty());
      EXPECT_EQ(host.cimNamespace.use_count(), 1);
    }
  }
}

// Lines within a guard of their own.
bool IsGuarded(const StrictHost& host, const std::string& line, std::size_t at) {
  constexpr std::size_t kDriversNames = 6;  // the driver's own lines about names
  return (at < kDriversNames && (line == "Obtained MTM." || line == host.machineType ||
                                 line == "Obtained SystemName." || line == host.systemName)) ||
         line.starts_with("SPtime = ");
}

// The logger throws at every line in turn.
TEST_P(EveryClass, HandsOnWhatTheLoggerThrowsAtAnUnguardedLine) {
  const auto setUp = [&](StrictHost& each) {
    Prepare(each, GetParam());
    each.spCount = 1;
    each.counts = {{"4.1.3", 1}, {"4.1.4", 1}, {"4.9.1", 2}};
    if (std::string(GetParam().name) != "OrloSensor") return;
    each.otherReply.bytes.clear();
    for (const char* const sensor : {"2.2.1.1", "2.1.5.1", "2.3.16"}) {
      each.replies[sensor].bytes = {1, 2};
    }
  };
  setUp(host);
  Query();
  const std::vector<std::string> lines = host.Lines();
  for (std::size_t at = 0; at < lines.size(); ++at) {
    StrictHost each;
    setUp(each);
    std::size_t logged = 0;
    each.onCall = [&](const Event& event) {
      if (event.call == Call::Log && logged++ == at) Throw(Thrown::BadAlloc);
    };
    const bool isGuarded = IsGuarded(each, lines[at], at);
    ASSERT_EQ(Reaches(each, GetParam().className), isGuarded ? Thrown::Nothing : Thrown::BadAlloc)
        << at << ": " << lines[at];
    ExpectNothingAlive(each);
  }
}

// The first exception is the one that the host gets.
TEST_P(EveryClass, HandsOnTheFirstExceptionWhenTheLastLineThrowsToo) {
  for (const Thrown thrown : {Thrown::BadAlloc, Thrown::Number}) {
    bool hasThrown = false;
    host.onCall = [&](const Event& event) {
      if (event.call == Call::IsDotcommand) {
        hasThrown = true;
        Throw(thrown);
      }
      if (hasThrown && event.call == Call::Log) throw std::runtime_error("the second");
    };
    EXPECT_EQ(Reaches(host, GetParam().className), thrown);
    EXPECT_EQ(host.Lines().back(), "TSPEnviron destructor entered.");
    ExpectNothingAlive(host);
  }
}

}  // namespace
}  // namespace strake::strict
