// An instance under construction; its commit puts it into the repository.
#pragma once

#include "cim/Catalogue.h"
#include "platform/hostcore/RepositoryState.h"
#include "plugin/host/ICIM.h"

#include <bitset>
#include <boost/shared_ptr.hpp>
#include <string>

namespace strake::platform {

class RepositoryInstance : public NVELKZEV20::ICIMInstance {
 public:
  RepositoryInstance(const boost::shared_ptr<RepositoryState>& state,
                     const cim::SchemaClass& schemaClass, unsigned long number);

  void Commit(NVELKZEV20::TNameToValueMap options) override;
  void SetProperty(const std::string& name, const NVELKZEV20::TCIMValue& value,
                   NVELKZEV20::TNameToValueMap qualifiers) override;

 private:
  [[noreturn]] void RefuseCommitted(const std::string& what) const;
  [[nodiscard]] const cim::SchemaProperty& CheckProperty(const std::string& name,
                                                         cim::CimType type) const;
  void Store(const cim::SchemaProperty& property, cim::Value&& value);

  boost::shared_ptr<RepositoryState> fState;
  const cim::SchemaClass& fSchemaClass;
  const unsigned long fNumber;
  cim::StoredInstance fStored;
  std::bitset<cim::kMostProperties> fIsSet;  // by place in the schema
  bool fCommitted = false;
};

}  // namespace strake::platform
