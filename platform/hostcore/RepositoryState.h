// What a repository, its classes and its instances share. They hold it
// together, so that a class or an instance may outlive the repository.
#pragma once

#include "platform/hostcore/Repository.h"

#include <vector>

namespace strake::platform {

struct RepositoryState {
  std::vector<cim::StoredInstance> committed;
  unsigned long created = 0;  // instances, committed or not
};

}  // namespace strake::platform
