// A class of the repository as the plug-in sees it.
#pragma once

#include "cim/Catalogue.h"
#include "platform/hostcore/RepositoryState.h"
#include "plugin/host/ICIM.h"

#include <boost/shared_ptr.hpp>
#include <string>

namespace strake::platform {

class RepositoryClass : public NVELKZEV20::ICIMClass {
 public:
  // The schema class is null for a name that the schema does not have.
  RepositoryClass(const boost::shared_ptr<RepositoryState>& state, const std::string& name,
                  const cim::SchemaClass* schemaClass)
      : fState(state), fName(name), fSchemaClass(schemaClass) {}

  [[nodiscard]] std::string GetName() const override;
  void CreateInstance(boost::shared_ptr<NVELKZEV20::ICIMInstance>& instance,
                      const NVELKZEV20::TNameToValueMap& options) override;

 private:
  boost::shared_ptr<RepositoryState> fState;
  std::string fName;
  const cim::SchemaClass* fSchemaClass;
};

}  // namespace strake::platform
