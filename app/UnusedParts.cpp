#include "app/UnusedParts.h"

#include "app/AskedCommands.h"
#include "text/DotNotation.h"

#include <algorithm>

namespace strake::app {
namespace {

using platform::Identifier;
using platform::Reply;
using platform::ReplySequence;
using platform::SpDescription;
using platform::SpKind;
using Commands = std::map<Identifier, ReplySequence>;
using Parts = std::vector<std::string>;

void Tell(Parts& parts, const std::string& pointer, const std::string& reason) {
  parts.push_back("at " + pointer + ": " + reason);
}

// One line for a whole part that nothing looks at.
void TellIf(bool isWritten, Parts& parts, const std::string& pointer, const std::string& reason) {
  if (isWritten) {
    Tell(parts, pointer, reason);
  }
}

bool AnswersPresenceTest(const Commands& commands) {
  const auto test = commands.find(Identifier("\1\1"));
  return test != commands.end() &&
         std::ranges::any_of(test->second, [](const Reply& reply) { return reply.succeeds; });
}

void TellCommands(Parts& parts, const std::string& pointer, const Commands& commands,
                  const SpDescription& sp) {
  if (!commands.empty() && !AnswersPresenceTest(commands)) {
    Tell(parts, pointer, "command 1.1 never succeeds, and without it no other is sent");
    return;
  }
  for (const auto& [identifier, replies] : commands) {
    const Asked asked = IsDotCommandAsked(identifier, sp);
    const std::string place = pointer + "/" + text::DotNotationOf(identifier);
    if (asked == Asked::Never) {
      Tell(parts, place, "no such command is ever sent");
    } else if (asked == Asked::BeyondCount) {
      Tell(parts, place, "there are not so many of this component, so the command is not sent");
    }
  }
}

void TellInstances(Parts& parts, const SpDescription& sp) {
  const std::size_t counted = CountedProcessors(sp);
  const std::size_t described = sp.instances.size();
  const std::string count =
      std::to_string(counted) + (counted == 1 ? " is counted" : " are counted");
  if (counted < described) {
    Tell(parts, "/sp/instances/" + std::to_string(counted),
         "nothing asks this service processor: " + count + ", " + std::to_string(described) +
             " described");
  } else if (counted > described) {
    Tell(parts, "/sp/count",
         count + ", " + std::to_string(described) + " described; the others answer nothing");
  }
  for (std::size_t i = 0; i < std::min(counted, described); ++i) {
    TellCommands(parts, "/sp/instances/" + std::to_string(i) + "/dot_commands", sp.instances[i],
                 sp);
  }
}

void TellOrlo(Parts& parts, const SpDescription& sp) {
  TellIf(!sp.kestleCommands.empty(), parts, "/sp/kestle_commands",
         sp.kind == SpKind::Both ? "a Tavit processor beside an Orlo card is not read"
                                 : "an Orlo card is sent no Kestle commands");
  TellInstances(parts, sp);
  for (const auto& [identifier, count] : sp.components) {
    TellIf(!IsComponentCounted(identifier), parts, "/sp/components",
           "nothing counts " + text::DotNotationOf(identifier) + ", whatever its fourth byte");
  }
}

void TellTavit(Parts& parts, const platform::ServerDescription& server) {
  const SpDescription& sp = server.sp;
  const platform::HostAnswer& machine = server.host.machineTypeModel;
  TellIf(!machine.throws && !HasTavitProcessor(machine.text), parts, "/machine_type_model",
         "'" + machine.text + "' is no machine with a Tavit processor, so nothing is sent to it");
  TellIf(!sp.instances.empty(), parts, "/sp/instances",
         "a Tavit processor is sent no dot commands");
  TellIf(static_cast<std::size_t>(sp.count) != sp.instances.size(), parts, "/sp/count",
         "Tavit processors are not counted");
  TellIf(!sp.components.empty(), parts, "/sp/components",
         "the components of a Tavit processor are not counted");
  for (const auto& [code, replies] : sp.kestleCommands) {
    TellIf(!IsKestleCommandAsked(code), parts, "/sp/kestle_commands/" + std::to_string(code),
           "no such command is ever sent");
  }
}

void TellNone(Parts& parts, const SpDescription& sp) {
  const std::string reason = "there is no service processor (kind none)";
  TellIf(!sp.instances.empty(), parts, "/sp/instances", reason);
  TellIf(!sp.components.empty(), parts, "/sp/components", reason);
  TellIf(!sp.kestleCommands.empty(), parts, "/sp/kestle_commands", reason);
}

}  // namespace

Parts UnusedParts(const platform::ServerDescription& server) {
  Parts parts;
  switch (server.sp.kind) {
    case SpKind::Orlo:
    case SpKind::Both:
      TellOrlo(parts, server.sp);
      break;
    case SpKind::Tavit:
      TellTavit(parts, server);
      break;
    case SpKind::None:
      TellNone(parts, server.sp);
      break;
  }
  return parts;
}

}  // namespace strake::app
