#include "tests/faults/Collection.h"

#include "cim/TCIMValueContent.h"
#include "platform/session/HostSession.h"
#include "platform/spdriver/DriverControl.h"
#include "plugin/config/SharedIdentifiers.h"
#include "plugin/frame/ModuleEntry.h"
#include "tests/support/Allocations.h"
#include "tests/support/Places.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <new>

namespace strake::tests {
namespace {

using cim::StoredInstance;
using NVELKZEV20::ICIMClass;
using NVELKZEV20::IPluginBasicQueryCallbacks;
using NVELKZEV20::TCIMValueContent;
using platform::BoundaryCall;
using platform::Fault;

// Watches one run, and troubles one of its calls. Allocates nothing itself.
class Troublemaker : public platform::BoundaryObserver {
 public:
  Troublemaker(const Trouble& trouble, std::vector<BoundaryCall>* calls)
      : fTrouble(trouble), fKept(calls) {}

  Fault BeforeCall(BoundaryCall call) override {
    ++fCalls;
    if (fKept != nullptr) fKept->push_back(call);
    if (fCalls != fTrouble.atCall) return Fault::None;
    NoteTrouble();
    return fTrouble.fault;
  }

  void Watch(const platform::Repository& repository) { fRepository = &repository; }
  void NoteTrouble() { fCommitsBefore = fRepository->Committed().size(); }

  static void NoteAllocationTrouble(void* self) { static_cast<Troublemaker*>(self)->NoteTrouble(); }
  [[nodiscard]] std::size_t CommitsBefore() const { return fCommitsBefore; }
  void StopTrouble() { fTrouble = {}; }

 private:
  Trouble fTrouble;
  std::vector<BoundaryCall>* fKept;
  long fCalls = 0;
  const platform::Repository* fRepository = nullptr;
  std::size_t fCommitsBefore = static_cast<std::size_t>(-1);
};

bool Equal(const NVELKZEV20::TCIMValue& a, const NVELKZEV20::TCIMValue& b) {
  const auto& x = TCIMValueContent::Of(a);
  const auto& y = TCIMValueContent::Of(b);
  if (x.index() != y.index()) return false;
  if (const auto* const time = std::get_if<NVELKZEV20::TCIMDateTime>(&x)) {
    return time->ToString() == std::get<NVELKZEV20::TCIMDateTime>(y).ToString();
  }
  if (const auto* const text = std::get_if<std::string>(&x)) return *text == std::get<1>(y);
  if (const auto* const number = std::get_if<std::int32_t>(&x)) return *number == std::get<2>(y);
  if (const auto* const number = std::get_if<std::uint16_t>(&x)) return *number == std::get<3>(y);
  if (const auto* const number = std::get_if<std::uint8_t>(&x)) return *number == std::get<4>(y);
  return true;
}

bool Equal(const StoredInstance& a, const StoredInstance& b) {
  return a.className == b.className &&
         std::equal(a.properties.begin(), a.properties.end(), b.properties.begin(),
                    b.properties.end(), [](const auto& x, const auto& y) {
                      return x.first == y.first && Equal(x.second, y.second);
                    });
}

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

const std::vector<std::vector<std::string>> kAllQueries = {
    {"VELKSG_ServProc_IPProtocolEndpoint", "VELKSG_ServProc_IPProtocolEndpoint2"},
    {"VELKSG_ServProc_DialProtocolEndpoint1", "VELKSG_ServProc_DialProtocolEndpoint2",
     "VELKSG_ServProc_DialProtocolEndpoint3", "VELKSG_ServProc_DialProtocolEndpoint4"},
    {"VELKSG_SP_NumericSensor"},
    {"VELKSG_SP_ComputerSystem"},
};

}  // namespace

Collection::Collection(const std::string& serverName)
    : fServer(platform::ReadServerDescription(std::filesystem::path(SourceFolder()) / "servers" /
                                              (serverName + ".server.json"))),
      fQueries(kAllQueries),
      fNextQuery(kAllQueries[fServer.sp.kind == platform::SpKind::Orlo ? 3 : 2]) {
  Identifiers() = SharedIdentifiers{};
  Troublemaker observer({}, &fCalls);
  platform::HostSession session(fServer, &observer);
  session.Attach(&StrakeModuleEntry);
  for (const auto& names : fQueries) {
    ArmedQuery query(session, names);
    fCalls.reserve(fCalls.size() + 20000);
    Allocations::Count();
    EXPECT_TRUE(query.Run());
    fAllocations += Allocations::Made();
  }
  const auto calls = fCalls.size();
  fCommitted = session.Instances().Committed();
  EXPECT_TRUE(ArmedQuery(session, fNextQuery).Run());
  const auto& all = session.Instances().Committed();
  fNextCommitted.assign(all.begin() + static_cast<long>(fCommitted.size()), all.end());
  fCalls.resize(calls);
}

std::vector<Fault> Collection::FaultsOf(long call) const {
  switch (fCalls[static_cast<std::size_t>(call - 1)]) {
    case BoundaryCall::DotSend:
    case BoundaryCall::KestleSend:
      return {Fault::SendFails, Fault::SendIsEmpty, Fault::StandardException,
              Fault::OtherException};
    case BoundaryCall::GetClass:
    case BoundaryCall::CreateInstance:
      return {Fault::EmptyHandle, Fault::StandardException, Fault::OtherException};
    default:
      return {Fault::StandardException, Fault::OtherException};
  }
}

void Collection::Run(const Trouble& trouble) const {
  Identifiers() = SharedIdentifiers{};
  const long liveBefore = Allocations::Live();
  const long commandsBefore = platform::LiveDotCommands();
  const long kestleBefore = platform::LiveKestleCommands();
  {
    Troublemaker observer(trouble, nullptr);
    platform::HostSession session(fServer, &observer);
    session.Attach(&StrakeModuleEntry);
    observer.Watch(session.Instances());
    const long held = session.Namespace().use_count();
    long allocations = 0;
    for (const auto& names : fQueries) {
      ArmedQuery query(session, names);
      if (trouble.atAllocation > allocations) {
        Allocations::FailAt(trouble.atAllocation - allocations, trouble.allAllocationsAfter,
                            &Troublemaker::NoteAllocationTrouble, &observer);
      }
      Allocations::Count();
      query.Run();
      Allocations::FailNever();
      allocations += Allocations::Made();
      query.ExpectNoHandleHeld();
    }
    observer.StopTrouble();
    EXPECT_EQ(session.Namespace().use_count(), held);

    const std::size_t committed = session.Instances().Committed().size();
    for (std::size_t i = 0; i < std::min(observer.CommitsBefore(), fCommitted.size()); ++i) {
      EXPECT_TRUE(Equal(session.Instances().Committed().at(i), fCommitted[i])) << "instance " << i;
    }
    EXPECT_TRUE(ArmedQuery(session, fNextQuery).Run());
    const auto& all = session.Instances().Committed();
    ASSERT_EQ(all.size() - committed, fNextCommitted.size());
    for (std::size_t i = 0; i < fNextCommitted.size(); ++i) {
      EXPECT_TRUE(Equal(all[committed + i], fNextCommitted[i])) << "next query, instance " << i;
    }
  }
  const long presenceTests = platform::LiveDotCommands() - commandsBefore;
  EXPECT_EQ(Allocations::Live() - liveBefore, presenceTests) << "a leak";
  EXPECT_EQ(platform::LiveKestleCommands(), kestleBefore);
}

}  // namespace strake::tests
