// As few queries as bring every class, and their names.
#pragma once

#include <string>
#include <vector>

namespace strake::tests {

struct NamedQuery {
  std::string name;
  std::vector<std::string> classes;
};

inline const std::vector<NamedQuery>& WholeCollection() {
  static const std::vector<NamedQuery> queries = {
      {"network", {"VELKSG_ServProc_IPProtocolEndpoint", "VELKSG_ServProc_IPProtocolEndpoint2"}},
      {"dial",
       {"VELKSG_ServProc_DialProtocolEndpoint1", "VELKSG_ServProc_DialProtocolEndpoint2",
        "VELKSG_ServProc_DialProtocolEndpoint3", "VELKSG_ServProc_DialProtocolEndpoint4"}},
      {"sensors", {"VELKSG_SP_NumericSensor"}},
      {"system", {"VELKSG_SP_ComputerSystem"}},
  };
  return queries;
}

inline std::vector<std::vector<std::string>> WholeCollectionQueries() {
  std::vector<std::vector<std::string>> queries;
  for (const NamedQuery& query : WholeCollection()) queries.push_back(query.classes);
  return queries;
}

}  // namespace strake::tests
