// As few queries as bring every class, and their names.
#pragma once

#include "cim/Catalogue.h"

#include <string>
#include <vector>

namespace strake::tests {

struct NamedQuery {
  std::string name;
  std::vector<std::string> classes;
};

inline const std::vector<NamedQuery>& WholeCollection() {
  using cim::ClassNamesOf;
  using cim::QueryGroup;
  static const std::vector<NamedQuery> queries = {
      {"network", ClassNamesOf(QueryGroup::Network)},
      {"dial", ClassNamesOf(QueryGroup::Dial)},
      {"sensors", ClassNamesOf(QueryGroup::Sensors)},
      {"system", ClassNamesOf(QueryGroup::ComputerSystem)},
  };
  return queries;
}

inline std::vector<std::vector<std::string>> WholeCollectionQueries() {
  std::vector<std::vector<std::string>> queries;
  for (const NamedQuery& query : WholeCollection()) queries.push_back(query.classes);
  return queries;
}

}  // namespace strake::tests
