#include "app/Report.h"

#include "app/TextEscape.h"

#include <algorithm>
#include <array>

namespace strake::app {
namespace {

constexpr std::array<std::string_view, 6> kSecrets{
    "DialoutPassword", "PPPPassword",    "PagerPIN",
    "Community1Name",  "Community2Name", "Community3Name",
};

}  // namespace

std::string_view KindName(platform::SpKind kind) {
  switch (kind) {
    case platform::SpKind::Orlo:
      return "orlo";
    case platform::SpKind::Tavit:
      return "tavit";
    case platform::SpKind::Both:
      return "both";
    case platform::SpKind::None:
      break;
  }
  return "none";
}

std::string EqualKeysWarning(const platform::EqualKeys& equal) {
  return std::to_string(equal.count) + " instances of " + equal.className +
         " have equal keys: " + EscapeForPeople(equal.keys);
}

bool IsSecret(std::string_view propertyName) {
  return std::find(kSecrets.begin(), kSecrets.end(), propertyName) != kSecrets.end();
}

}  // namespace strake::app
