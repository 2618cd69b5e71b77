#include "platform/hostcore/RepositoryClass.h"

#include "platform/boundary/BeginCall.h"
#include "platform/hostcore/HostControl.h"
#include "platform/hostcore/RepositoryInstance.h"

#include <boost/make_shared.hpp>
#include <stdexcept>

namespace strake::platform {

std::string RepositoryClass::GetName() const {
  BoundaryObserver* const observer = HostObserver();
  BeginCall(observer, BoundaryCall::GetName);
  if (observer != nullptr) {
    observer->OnHostText(BoundaryCall::GetName, fName);
  }
  return fName;
}

void RepositoryClass::CreateInstance(boost::shared_ptr<NVELKZEV20::ICIMInstance>& instance,
                                     const NVELKZEV20::TNameToValueMap& /*options*/) {
  BoundaryObserver* const observer = HostObserver();
  const Fault fault = BeginCall(observer, BoundaryCall::CreateInstance);
  if (fault == Fault::UntouchedHandle) {
    return;
  }
  if (fault == Fault::EmptyHandle) {
    instance.reset();
    return;
  }
  if (fSchemaClass == nullptr) {
    throw std::invalid_argument("there is no class " + fName + " to make an instance of");
  }
  const auto made =
      boost::make_shared<RepositoryInstance>(fState, *fSchemaClass, fState->created + 1);
  ++fState->created;
  if (observer != nullptr) {
    observer->OnCreateInstance(fName, fState->created);
  }
  instance = made;
}

}  // namespace strake::platform
