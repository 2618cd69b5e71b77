#include "report/Report.h"

#include "text/TextEscape.h"

#include <algorithm>
#include <array>

namespace strake::report {
namespace {

constexpr std::array<std::string_view, 6> kSecrets{
    "DialoutPassword", "PPPPassword",    "PagerPIN",
    "Community1Name",  "Community2Name", "Community3Name",
};

}  // namespace

std::string EqualKeysWarning(const cim::EqualKeys& equal) {
  return std::to_string(equal.count) + " instances of " + equal.className +
         " have equal keys: " + text::EscapeForPeople(equal.keys);
}

bool IsSecret(std::string_view propertyName) {
  return std::find(kSecrets.begin(), kSecrets.end(), propertyName) != kSecrets.end();
}

}  // namespace strake::report
