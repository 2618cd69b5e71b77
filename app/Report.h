// What a report is made from.
#pragma once

#include "platform/hostcore/Repository.h"
#include "platform/server/ServerDescription.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace strake::app {

struct ServerFacts {
  std::string name;  // of the file or of the built-in server
  std::string description;
  platform::SpKind kind = platform::SpKind::None;
};

struct Report {
  ServerFacts server;
  std::span<const platform::StoredInstance> instances;  // in commit order
  std::vector<platform::EqualKeys> equalKeys;
  std::size_t queries = 0;
  bool showSecrets = false;
};

// As the server description names it: "orlo".
std::string_view KindName(platform::SpKind kind);

// "2 instances of CLASS have equal keys: NAME=VALUE, ...", on one line.
std::string EqualKeysWarning(const platform::EqualKeys& equal);

// Passwords, PINs and community names: reported as the mask, empty or not.
bool IsSecret(std::string_view propertyName);
inline constexpr std::string_view kSecretMask = "********";

}  // namespace strake::app
