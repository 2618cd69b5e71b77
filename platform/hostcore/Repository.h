// An in-memory CIM repository: the namespace that a query fills. It knows the
// eight classes, their properties and the types of these, and refuses anything
// else with an exception that says class, property and type.
#pragma once

#include "cim/StoredInstance.h"
#include "plugin/host/ICIM.h"

#include <boost/shared_ptr.hpp>
#include <memory>
#include <string>
#include <vector>

namespace strake::platform {

struct RepositoryState;

class Repository : public NVELKZEV20::ICIMNamespace {
 public:
  Repository();
  ~Repository() override;
  Repository(const Repository&) = delete;
  Repository& operator=(const Repository&) = delete;

  void GetClass(boost::shared_ptr<NVELKZEV20::ICIMClass>& cimClass, const std::string& name,
                NVELKZEV20::ContextMap context) override;

  // A class as a query asks for it: of any name, in the schema or not.
  boost::shared_ptr<NVELKZEV20::ICIMClass> RequestedClass(const std::string& name);

  // In commit order.
  [[nodiscard]] const std::vector<cim::StoredInstance>& Committed() const;
  // The same, handed over: the repository is empty then.
  [[nodiscard]] std::vector<cim::StoredInstance> TakeCommitted();
  // How many of its classes and instances are held by anybody.
  [[nodiscard]] long HandlesHeld() const;

 private:
  boost::shared_ptr<RepositoryState> fState;
};

}  // namespace strake::platform
