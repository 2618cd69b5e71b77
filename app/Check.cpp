#include "app/Check.h"

#include "app/Server.h"
#include "text/TextEscape.h"

namespace strake::app {

std::string CheckDescription(const CheckOptions& options) {
  const Server server = ReadServer(options.file);
  const platform::SpDescription& sp = server.description.sp;
  std::string line = options.file.string() + " is fine: kind " + server.facts.kind + ", " +
                     std::to_string(sp.count) +
                     (sp.count == 1 ? " service processor" : " service processors");
  if (!server.facts.description.empty()) {
    line += "; " + server.facts.description;
  }
  return text::EscapeForPeople(line) + "\n";
}

}  // namespace strake::app
