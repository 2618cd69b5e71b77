// An in-memory CIM repository: the namespace that a query fills. It knows the
// eight classes, their properties and the types of these, and refuses anything
// else with an exception that says class, property and type.
#pragma once

#include "plugin/host/ICIM.h"

#include <boost/shared_ptr.hpp>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace strake::platform {

struct StoredInstance {
  std::string className;
  unsigned long number = 0;
  // In the order in which they were set.
  std::vector<std::pair<std::string, NVELKZEV20::TCIMValue>> properties;
};

// Instances of one class whose key properties are equal.
struct EqualKeys {
  std::string className;
  std::string keys;  // NAME=VALUE, ..., for people
  std::size_t count = 0;
};

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
  [[nodiscard]] const std::vector<StoredInstance>& Committed() const;
  [[nodiscard]] std::vector<EqualKeys> FindEqualKeys() const;
  // How many of its classes and instances are held by anybody.
  [[nodiscard]] long HandlesHeld() const;

 private:
  boost::shared_ptr<RepositoryState> fState;
};

}  // namespace strake::platform
