#include "report/ServerText.h"

#include "text/TextEscape.h"

namespace strake::report {

std::string ServerForPeople(const ServerFacts& server) {
  std::string text = server.name + " (" + server.kind + ')';
  if (!server.description.empty()) {
    text += ": " + server.description;
  }
  return text::EscapeForPeople(text);
}

}  // namespace strake::report
