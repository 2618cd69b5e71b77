#include "platform/hostcore/Repository.h"

#include "cim/Catalogue.h"
#include "platform/boundary/BeginCall.h"
#include "platform/hostcore/HostControl.h"
#include "platform/hostcore/RepositoryClass.h"
#include "platform/hostcore/RepositoryState.h"

#include <boost/make_shared.hpp>
#include <utility>

namespace strake::platform {

using NVELKZEV20::ICIMClass;

Repository::Repository() : fState(boost::make_shared<RepositoryState>()) {}
Repository::~Repository() = default;

void Repository::GetClass(boost::shared_ptr<ICIMClass>& cimClass, const std::string& name,
                          NVELKZEV20::ContextMap /*context*/) {
  BoundaryObserver* const observer = HostObserver();
  const Fault fault = BeginCall(observer, BoundaryCall::GetClass);
  const bool makesNone = fault == Fault::EmptyHandle || fault == Fault::UntouchedHandle;
  const cim::SchemaClass* const found = makesNone ? nullptr : cim::FindSchemaClass(name);
  if (fault != Fault::UntouchedHandle) {
    cimClass.reset();
  }
  if (found != nullptr) {
    cimClass = boost::make_shared<RepositoryClass>(fState, name, found);
  }
  if (observer != nullptr) {
    observer->OnGetClass(name, found != nullptr);
  }
}

boost::shared_ptr<ICIMClass> Repository::RequestedClass(const std::string& name) {
  return boost::make_shared<RepositoryClass>(fState, name, cim::FindSchemaClass(name));
}

const std::vector<cim::StoredInstance>& Repository::Committed() const { return fState->committed; }

std::vector<cim::StoredInstance> Repository::TakeCommitted() {
  return std::exchange(fState->committed, {});
}

long Repository::HandlesHeld() const { return fState.use_count() - 1; }

}  // namespace strake::platform
