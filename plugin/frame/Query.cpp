// The collection driver: finds out which service processor the server has and
// runs the builders and readers that the requested classes call for.
#include "plugin/environ/TSPEnviron.h"
#include "plugin/frame/TStrakePluginCallbacks.h"
#include "plugin/frame/TavitMachines.h"
#include "plugin/frame/base/ClassNames.h"
#include "plugin/frame/base/SystemName.h"
#include "plugin/host/Handle.h"
#include "plugin/host/TOSSpecific.h"
#include "plugin/spaccess/DotIdentifier.h"

#include <array>
#include <exception>
#include <string_view>

// A macro of some C libraries' <stdlib.h>; here it is the sensor collector.
#undef environ

namespace strake {

using NVELKZEV20::ICIMClass;
using NVELKZEV20::ICIMNamespace;
using NVELKZEV20::SPLibrary;
using NVELKZEV20::TOSSpecific;

struct TStrakePluginCallbacks::Request {
  std::string_view className;
  std::string_view flagText;
  bool TStrakePluginCallbacks::*flag;
};

struct TStrakePluginCallbacks::Run {
  const boost::shared_ptr<ICIMNamespace>& cimNamespace;
  const std::string& MTM;
  const std::string& systemName;
  SPLibrary* spLib;
  TSPEnviron& environ;
};

std::span<const TStrakePluginCallbacks::Request> TStrakePluginCallbacks::Requests() {
  using T = TStrakePluginCallbacks;
  static constexpr Request kRequests[] = {
      {kSPComputerSystem, "fSP_ComputerSystem = ", &T::fSP_ComputerSystem},
      {kIPProtocolEndpoint2,
       "\nfServProc_IPProtocolEndpoint2 = ", &T::fServProc_IPProtocolEndpoint2},
      {kIPProtocolEndpoint, "\nfServProc_IPProtocolEndpoint = ", &T::fServProc_IPProtocolEndpoint},
      {kDialProtocolEndpoint3,
       "\nfServProc_DialProtocolEndpoint3 = ", &T::fServProc_DialProtocolEndpoint3},
      {kDialProtocolEndpoint1,
       "\nfServProc_DialProtocolEndpoint1 = ", &T::fServProc_DialProtocolEndpoint1},
      {kDialProtocolEndpoint2,
       "\nfServProc_DialProtocolEndpoint2 = ", &T::fServProc_DialProtocolEndpoint2},
      {kDialProtocolEndpoint4,
       "\nfServProc_DialProtocolEndpoint4 = ", &T::fServProc_DialProtocolEndpoint4},
      {kNumericSensor, "\nfSP_NumericSensor = ", &T::fSP_NumericSensor},
  };
  return kRequests;
}

std::string TStrakePluginCallbacks::FlagsText() const {
  std::string text;
  for (const Request& request : Requests()) {
    AppendPart(text, request.flagText);
    AppendPart(text, this->*request.flag);
  }
  return text;
}

namespace {

// A dot command and the bytes that it points to, which live as long as it does.
struct PresenceTest {
  DotIdentifier identifier = kPresenceTest;
  unsigned char extraData = 0;
  dotCmd command{kCommandClass, static_cast<int>(identifier.length), 0, identifier.bytes.data(),
                 &extraData};
};

// The one object that this plug-in never releases, one an SP and query. All of
// it lies on the heap, so that it outlives the module. Kept out of line so that
// leak reports can tell it by name.
[[gnu::noinline]] PresenceTest* NewPresenceTestCommand() { return new PresenceTest; }

// Whether an SP is there: dot command 1.1, of which only the result counts.
bool AnswersPresenceTest(SPLibrary* spLib, unsigned char sp) {
  // Nobody reads the reply, so nobody clears its room.
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init)
  std::array<unsigned char, 4096> reply;
  int replyLength = 0;
  return spLib->sendDotCommand(&NewPresenceTestCommand()->command, reply.data(), &replyLength, sp,
                               static_cast<int>(reply.size()));
}

}  // namespace

void TStrakePluginCallbacks::Query(boost::shared_ptr<ICIMNamespace> cimNamespace,
                                   const std::vector<boost::shared_ptr<ICIMClass>>& classes) {
  LogLevel3("Strake plugin begin execution.");
  const std::string MTM = ReadMachineType();
  const std::string systemName = ReadSystemName<NameGuard::QuestionAndLines>(*this, cimNamespace);
  NoteRequestedClasses(classes);

  SPLibrary* const spLib = SPLibrary::GetSplibraryInstance(0);
  TSPEnviron environ(cimNamespace, spLib, fProvider);
  LogLevel3("Max_Num_Machines = ", Max_Num_Machines,
            " sizeof(MachineTypeArray) = ", sizeof(MachineTypeArray),
            ", sizeof(char*) = ", sizeof(char*));
  const Run run = {cimNamespace, MTM, systemName, spLib, environ};
  bool isComplete = true;
  if (spLib->isDotcommand()) {
    isComplete = CollectOrlo(run);
  } else if (spLib->isKestle() && fSP_NumericSensor) {
    isComplete = CollectTavit(run);
  } else {
    // Also told of a Tavit processor whose sensors nobody asked for.
    LogLevel3("No Orlo on board. No Tavit on board.");
  }
  if (isComplete) {
    LogLevel3("Strake plugin execution complete.");
  }
}

std::string TStrakePluginCallbacks::ReadMachineType() const {
  try {
    std::string MTM = TOSSpecific::GetMachineTypeFromID();
    LogLevel3("Obtained MTM.");
    LogLevel3(std::string_view(MTM));
    return MTM;
  } catch (const std::exception& error) {
    LogLevel2("Unable to obtain MTM due to caught exception ", error.what());
    return "Unknown MTM";
  }
}

void TStrakePluginCallbacks::NoteRequestedClasses(
    const std::vector<boost::shared_ptr<ICIMClass>>& classes) {
  for (const Request& request : Requests()) {
    this->*request.flag = false;
  }
  for (const boost::shared_ptr<ICIMClass>& handle : classes) {
    const ICIMClass& cimClass = Deref(handle);
    LogLevel3("Current class = ", cimClass.GetName());
    for (const Request& request : Requests()) {
      // The host is asked anew for each comparison.
      if (cimClass.GetName() == request.className) {
        this->*request.flag = true;
        break;
      }
    }
  }
  if (IsLogging()) {
    LogLevel3(FlagsText());
  }
}

bool TStrakePluginCallbacks::CollectOrlo(const Run& run) {
  LogLevel3("Orlo is present on board. Begin collecting TCPIP and dial settings data.");
  if (!run.spLib->checkSPComm()) {
    LogLevel0("Could not communicate with Orlo card.");
    return false;
  }
  // Instances are numbered in eight bits; what is above them is not looked at.
  const auto count = static_cast<unsigned char>(run.spLib->discoverSPs());
  LogLevel3("DiscoverSPs() found SPinstance#: ", count);
  for (unsigned char sp = 0; sp < count; ++sp) {
    const bool answers = AnswersPresenceTest(run.spLib, sp);
    LogLevel3("Checking dotCmd for spInstance#: ", sp, ". cmd_passed = ", answers);
    if (answers) {
      CollectFromOrlo(run, sp);
    }
  }
  if (fSP_NumericSensor) {
    run.environ.ExportOrloVoltages();
    run.environ.ExportOrloTemps();
    run.environ.ExportOrloFans();
  }
  LogLevel3("Orlo collection complete.");
  return true;
}

// One kind of work an SP and query, in this precedence, however many classes
// were requested.
void TStrakePluginCallbacks::CollectFromOrlo(const Run& run, unsigned char sp) {
  if (fServProc_IPProtocolEndpoint2 || fServProc_IPProtocolEndpoint) {
    if (tcpipcommands(run.cimNamespace, run.spLib, run.MTM, run.systemName, sp).Code() != 0) {
      LogLevel3("Did not obtain all tcpip info.");
    }
  } else if (fServProc_DialProtocolEndpoint3 || fServProc_DialProtocolEndpoint1 ||
             fServProc_DialProtocolEndpoint2 || fServProc_DialProtocolEndpoint4) {
    if (dialcommands(run.cimNamespace, run.spLib, run.MTM, run.systemName, sp).Code() != 0) {
      LogLevel3("Did not obtain all dial info.");
    }
  } else if (fSP_NumericSensor) {
    ReadOrloSensors(run, sp);
  } else if (fSP_ComputerSystem) {
    if (CreateVELKSGComputerSystem(run.cimNamespace, run.systemName, run.spLib, sp).Code() != 0) {
      LogLevel2("Could not create VELKSG_SP_ComputerSystem class");
    }
  }
}

void TStrakePluginCallbacks::ReadOrloSensors(const Run& run, unsigned char sp) const {
  run.environ.SetNode(sp);
  LogLevel3("Begin collecting Orlo Environmental data.");
  if (run.environ.GetOrloVoltage().Code() != 0) {
    LogLevel3("Did not obtain all Orlo Voltage data");
  }
  if (run.environ.GetOrloTemps().Code() != 0) {
    LogLevel3("Did not obtain all Orlo Temperature data");
  }
  if (run.environ.GetOrloFans().Code() != 0) {
    LogLevel3("Did not obtain all Orlo Fan data");
  }
}

bool TStrakePluginCallbacks::CollectTavit(const Run& run) const {
  LogLevel3("Tavit is present on board.");
  if (IsHeldByManagementServer(run)) {
    return true;
  }
  LogLevel3("Collecting Tavit data. (No Dornlibrary on board).");
  const std::optional<std::size_t> index = MatchTavitMachine(run.MTM);
  if (!index) {
    LogLevel2("No matching Tavit machine was found.");
    return false;
  }
  LogLevel2("Found matching Tavit machine type");
  LogLevel4("Tavit machine type index=", *index);
  const unsigned int kestleType = KestleTypeOf(*index);
  if (kestleType == kNoKestleType) {
    LogLevel1("Could not find particular Tavit machine.");
  }
  LogLevel3("Tavit_Type = ", kestleType);
  ReadTavitSensors(run, kestleType);
  LogLevel3("Complete collection of Tavit data.");
  return true;
}

// The place of the MTM's machine type among the Tavit machines.
std::optional<std::size_t> TStrakePluginCallbacks::MatchTavitMachine(const std::string& MTM) const {
  const std::string machineType = MTM.substr(0, 4);
  std::size_t index = 0;
  for (const char* const candidate : MachineTypeArray) {
    LogLevel3("CurrentMachineTypeArray = ", candidate);
    if (machineType == candidate) {
      return index;
    }
    ++index;
  }
  return std::nullopt;
}

bool TStrakePluginCallbacks::IsHeldByManagementServer(const Run& run) const {
  if (run.spLib->isQmvStop() || !run.spLib->isDornlibrary()) {
    return false;
  }
  LogLevel3("Dorn Library is present on board.");
  // Asked for; nobody uses it.
  static_cast<void>(TOSSpecific::GetLocalTime());
  LogNotice4(
      "Tavit environmental data is not being collected due to the presence of VELK Ostrel.\n"
      "To stop Ostrel, use command net stop qmvipc.  Then run ZEV.  "
      "Afterwards restart Ostrel with command net start qmvipc.");
  LogLevel1("Dornlibrary is present on the system. Cannot collect Tavit data.");
  return true;
}

void TStrakePluginCallbacks::ReadTavitSensors(const Run& run, unsigned int kestleType) const {
  if (run.environ.GetKestleVoltage(kestleType).Code() != 0) {
    LogLevel3("Did not obtain all Kestle Voltage data");
  }
  if (run.environ.GetKestleFan(kestleType).Code() != 0) {
    LogLevel3("Did not obtain all Tavit Fan data");
  }
  if (run.environ.GetKestleTemperature(kestleType).Code() != 0) {
    LogLevel3("Did not obtain all Tavit Temperature data");
  }
  run.environ.ExportKestleVoltages();
  run.environ.ExportKestleFans();
  run.environ.ExportKestleTemps();
}

}  // namespace strake
