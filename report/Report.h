// What a report is made from.
#pragma once

#include "cim/EqualKeys.h"
#include "cim/StoredInstance.h"

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

struct Report {
  ServerFacts server;
  std::span<const cim::StoredInstance> instances;  // in commit order
  std::vector<cim::EqualKeys> equalKeys;
  std::size_t queries = 0;
  bool showSecrets = false;
};

// "2 instances of CLASS have equal keys: NAME=VALUE, ...", on one line.
std::string EqualKeysWarning(const cim::EqualKeys& equal);

// Passwords, PINs and community names: reported as the mask, empty or not.
bool IsSecret(std::string_view propertyName);
inline constexpr std::string_view kSecretMask = "********";

}  // namespace strake::report
