// A finished collection, as the writers of reports see it.
#pragma once

#include "cim/EqualKeys.h"
#include "cim/StoredInstance.h"
#include "report/Finding.h"
#include "report/Limits.h"
#include "report/Sensor.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
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
  // Those that were asked for, in the catalogue's order.
  std::vector<const cim::SchemaClass*> classes = {};
  // What the host's clock said at collectedAt.
  std::chrono::sys_seconds hostTime = collectedAt;
};

// Whether a service processor answered, or nothing was asked of it. What says
// more is greater.
enum class Answer : std::uint8_t { NotAsked, No, Yes };

// A service processor that was found.
struct Processor {
  int number = 0;  // from 1
  Answer answer = Answer::NotAsked;

  friend bool operator==(const Processor&, const Processor&) = default;
};

// What a collection brought.
struct Collected {
  CollectionFacts facts = {};
  std::vector<cim::StoredInstance> instances = {};  // in commit order
  std::vector<Processor> processors = {};           // by number
  std::vector<SilentSensor> silentSensors = {};     // in the order in which they were asked for
  std::vector<Finding> findings = {};
};

enum class Secrets { Masked, Shown };

// What a secret that is not empty is masked with.
inline constexpr std::string_view kSecretMask = "********";

// Holds no secret, unless it was made to show them: passwords, PINs and
// community names are masked here, once for all writers. An empty one stays
// empty. What limits and equal keys tell is added to the findings.
class Report {
 public:
  Report(Collected collected, Secrets secrets, const std::optional<Limits>& limits = std::nullopt);
  // Sensors point into the instances.
  Report(const Report&) = delete;
  Report& operator=(const Report&) = delete;
  Report(Report&&) = default;
  Report& operator=(Report&&) = default;
  ~Report() = default;

  [[nodiscard]] const CollectionFacts& Facts() const { return fCollected.facts; }
  // In commit order.
  [[nodiscard]] std::span<const cim::StoredInstance> Instances() const {
    return fCollected.instances;
  }
  [[nodiscard]] std::span<const Processor> Processors() const { return fCollected.processors; }
  // Those of the instances, in their order, and behind them those that did not
  // answer.
  [[nodiscard]] std::span<const Sensor> Sensors() const { return fSensors; }
  // Null when the instance is no sensor. It is one of this report's.
  [[nodiscard]] const Sensor* FindSensor(const cim::StoredInstance& instance) const;
  // The gravest first.
  [[nodiscard]] std::span<const Finding> Findings() const { return fCollected.findings; }
  // Whether limits were given, so that sensors have states.
  [[nodiscard]] bool HasStates() const { return fHasStates; }

 private:
  Collected fCollected;
  std::vector<Sensor> fSensors;
  bool fHasStates;
};

}  // namespace strake::report
