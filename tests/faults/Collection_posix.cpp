#include "platform/boundary/BoundaryObserver.h"
#include "platform/session/HostSession.h"
#include "platform/spdriver/DriverControl.h"
#include "plugin/config/SharedIdentifiers.h"
#include "plugin/frame/ModuleEntry.h"
#include "tests/faults/Collection.h"
#include "tests/support/Allocations.h"
#include "tests/support/FaultyObserver.h"
#include "tests/support/Places.h"
#include "tests/support/WholeCollection.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <span>

namespace strake::tests {
namespace {

using cim::StoredInstance;
using NVELKZEV20::ICIMClass;
using NVELKZEV20::IPluginBasicQueryCallbacks;
using platform::BoundaryCall;
using platform::Fault;

// Troubles one call of a run, and keeps what was committed before it. Allocates
// nothing itself.
class Troublemaker : public FaultyObserver<> {
 public:
  void Watch(const platform::Repository& repository) { fRepository = &repository; }

  Fault BeforeCall(BoundaryCall call) override {
    const Fault fault = FaultyObserver::BeforeCall(call);
    if (fault != Fault::None) NoteTrouble();
    return fault;
  }

  static void NoteAllocationTrouble(void* self) { static_cast<Troublemaker*>(self)->NoteTrouble(); }
  [[nodiscard]] std::size_t CommitsBefore() const { return fCommitsBefore; }

 private:
  void NoteTrouble() { fCommitsBefore = fRepository->Committed().size(); }

  const platform::Repository* fRepository = nullptr;
  std::size_t fCommitsBefore = static_cast<std::size_t>(-1);
};

// Keeps the kind of every call.
class CallRecorder : public platform::BoundaryObserver {
 public:
  explicit CallRecorder(std::vector<BoundaryCall>& calls) : fCalls(calls) {}

  Fault BeforeCall(BoundaryCall call) override {
    fCalls.push_back(call);
    return Fault::None;
  }

 private:
  std::vector<BoundaryCall>& fCalls;
};

// One query through the plug-in's own face; the class handles stay ours.
class ArmedQuery {
 public:
  ArmedQuery(platform::HostSession& session, const std::vector<std::string>& names)
      : fFace(dynamic_cast<IPluginBasicQueryCallbacks&>(session.Plugin())),
        fNamespace(session.Namespace()) {
    for (const std::string& name : names) {
      fClasses.push_back(session.Namespace()->RequestedClass(name));
    }
  }

  // False: something was thrown.
  bool Run() {
    try {
      fFace.Query(fNamespace, fClasses);
      return true;
    } catch (...) {
      return false;
    }
  }

  void ExpectNoHandleHeld() const {
    for (const auto& handle : fClasses) EXPECT_EQ(handle.use_count(), 1);
  }

 private:
  IPluginBasicQueryCallbacks& fFace;
  boost::shared_ptr<NVELKZEV20::ICIMNamespace> fNamespace;
  std::vector<boost::shared_ptr<ICIMClass>> fClasses;
};

const std::vector<std::string>& QueryNamed(const std::string& name) {
  return std::ranges::find(WholeCollection(), name, &NamedQuery::name)->classes;
}

void ExpectEqual(std::span<const StoredInstance> actual,
                 const std::vector<StoredInstance>& expected, const char* what) {
  ASSERT_EQ(actual.size(), expected.size()) << what;
  for (std::size_t i = 0; i < expected.size(); ++i) {
    // Numbers go on over what the trouble left behind.
    EXPECT_EQ(actual[i].schema, expected[i].schema) << what << ", instance " << i;
    EXPECT_EQ(actual[i].properties, expected[i].properties) << what << ", instance " << i;
  }
}

// Gives how many calls and allocations failed.
long RunTroubled(const std::vector<std::string>& classes, platform::HostSession& session,
                 Troublemaker& observer, const Trouble& trouble) {
  ArmedQuery query(session, classes);
  observer.Plan({.fault = trouble.fault, .atCall = trouble.atCall});
  if (trouble.atAllocation > 0) {
    Allocations::FailAt(trouble.atAllocation, trouble.allAllocationsAfter,
                        &Troublemaker::NoteAllocationTrouble, &observer);
  }
  query.Run();
  Allocations::FailNever();
  observer.Plan({});
  query.ExpectNoHandleHeld();
  return observer.Faults() + (trouble.atAllocation > 0 ? Allocations::Failed() : 0);
}

}  // namespace

Collection::Collection(const std::string& serverName, const std::string& queryName)
    : fServer(platform::ReadServerDescription(std::filesystem::path(SourceFolder()) / "servers" /
                                              (serverName + ".server.json"))),
      fQuery(QueryNamed(queryName)),
      fNextQuery(QueryNamed(fServer.sp.kind == platform::SpKind::Orlo ? "system" : "sensors")) {
  Identifiers() = SharedIdentifiers{};
  CallRecorder observer(fCalls);
  platform::HostSession session(fServer, &observer);
  session.Attach(&StrakeModuleEntry);
  ArmedQuery query(session, fQuery);
  fCalls.clear();
  fCalls.reserve(20000);
  Allocations::Count();
  EXPECT_TRUE(query.Run());
  fAllocations = Allocations::Made();
  const auto calls = fCalls.size();
  fCommitted = session.Instances().Committed();
  EXPECT_TRUE(ArmedQuery(session, fNextQuery).Run());
  const auto& all = session.Instances().Committed();
  fNextCommitted.assign(all.begin() + static_cast<long>(fCommitted.size()), all.end());
  fCalls.resize(calls);
}

std::vector<Fault> Collection::FaultsOf(long call) const {
  std::vector<Fault> faults = {Fault::StandardException, Fault::OtherException, Fault::OutOfMemory};
  switch (fCalls[static_cast<std::size_t>(call - 1)]) {
    case BoundaryCall::DotSend:
    case BoundaryCall::KestleSend:
      faults.insert(faults.end(), {Fault::SendFails, Fault::SendIsEmpty, Fault::UntouchedLength});
      break;
    case BoundaryCall::GetClass:
    case BoundaryCall::CreateInstance:
      faults.insert(faults.end(), {Fault::EmptyHandle, Fault::UntouchedHandle});
      break;
    default:
      break;
  }
  return faults;
}

long Collection::Run(const Trouble& trouble) const {
  Identifiers() = SharedIdentifiers{};
  const long liveBefore = Allocations::Live();
  const long commandsBefore = platform::LiveDotCommands();
  const long kestleBefore = platform::LiveKestleCommands();
  long met = 0;
  {
    Troublemaker observer;
    platform::HostSession session(fServer, &observer);
    session.Attach(&StrakeModuleEntry);
    observer.Watch(session.Instances());
    const long held = session.Namespace().use_count();
    met = RunTroubled(fQuery, session, observer, trouble);
    EXPECT_EQ(session.Namespace().use_count(), held);

    const std::span<const StoredInstance> committed = session.Instances().Committed();
    const std::size_t kept = std::min(observer.CommitsBefore(), fCommitted.size());
    ExpectEqual(committed.first(kept),
                {fCommitted.begin(), fCommitted.begin() + static_cast<long>(kept)},
                "before the trouble");
    const std::size_t before = committed.size();
    EXPECT_TRUE(ArmedQuery(session, fNextQuery).Run());
    ExpectEqual(std::span(session.Instances().Committed()).subspan(before), fNextCommitted,
                "next query");
  }
  const long presenceTests = platform::LiveDotCommands() - commandsBefore;
  EXPECT_EQ(Allocations::Live() - liveBefore, presenceTests) << "a leak";
  EXPECT_EQ(platform::LiveKestleCommands(), kestleBefore);
  return met;
}

}  // namespace strake::tests
