// A finished collection, as the writers of reports see it.
#pragma once

#include "cim/EqualKeys.h"
#include "cim/StoredInstance.h"

#include <chrono>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace strake::report {

struct ServerFacts {
  std::string name;  // of the file or of the built-in server
  std::string description;
  std::string kind;  // as the server description names it: "orlo"
};

struct CollectionFacts {
  ServerFacts server;
  std::string version;  // of Strake: "1.0.0"
  std::chrono::sys_seconds collectedAt;
  std::size_t queries = 0;
};

enum class Secrets { Masked, Shown };

// What a secret that is not empty is masked with.
inline constexpr std::string_view kSecretMask = "********";

// Holds no secret, unless it was made to show them: passwords, PINs and
// community names are masked here, once for all writers. An empty one stays
// empty.
class Report {
 public:
  Report(CollectionFacts facts, std::vector<cim::StoredInstance> instances, Secrets secrets);

  [[nodiscard]] const CollectionFacts& Facts() const { return fFacts; }
  // In commit order.
  [[nodiscard]] std::span<const cim::StoredInstance> Instances() const { return fInstances; }
  [[nodiscard]] const std::vector<cim::EqualKeys>& EqualKeys() const { return fEqualKeys; }

 private:
  CollectionFacts fFacts;
  std::vector<cim::StoredInstance> fInstances;
  std::vector<cim::EqualKeys> fEqualKeys;
};

// "2 instances of CLASS have equal keys: NAME=VALUE, ...", on one line.
std::string EqualKeysWarning(const cim::EqualKeys& equal);

}  // namespace strake::report
