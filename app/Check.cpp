#include "app/Check.h"

#include "app/Server.h"
#include "app/TextEscape.h"

namespace strake::app {

std::string CheckDescription(const CheckOptions& options) {
  const Server server = ReadServer(options.file);
  const platform::SpDescription& sp = server.description.sp;
  std::string line = options.file.string() + " is fine: kind " +
                     std::string(KindName(server.facts.kind)) + ", " + std::to_string(sp.count) +
                     (sp.count == 1 ? " service processor" : " service processors");
  if (!server.facts.description.empty()) {
    line += "; " + server.facts.description;
  }
  return EscapeForPeople(line) + "\n";
}

}  // namespace strake::app
