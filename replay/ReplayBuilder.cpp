#include "replay/ReplayBuilder.h"

#include "text/DotNotation.h"
#include "text/InputError.h"
#include "text/TextEscape.h"

#include <algorithm>
#include <utility>

namespace strake::replay {
namespace {

using platform::Reply;
using platform::ReplySequence;

constexpr std::size_t kNumberPlace = 3;  // of a component's identifier
constexpr std::size_t kComponentBytes = 5;
constexpr int kMostCounted = 254;

// The last reply stays, so that those before it that are the same say nothing.
void Shorten(ReplySequence& replies) {
  while (replies.size() > 1 && replies.back() == replies.at(replies.size() - 2)) {
    replies.pop_back();
  }
  replies.shrink_to_fit();
}

// Whether commands that are not there answer the same.
bool SaysNothing(const std::map<platform::Identifier, ReplySequence>& commands) {
  static const ReplySequence kNothing = {{"", 0, false}};
  return std::ranges::all_of(commands,
                             [](const auto& command) { return command.second == kNothing; });
}

void Warn(Replay& replay, bool holds, const std::string& text) {
  if (holds) {
    replay.warnings.push_back(text);
  }
}

std::string Differs(const std::string& call) {
  return call + " did not always answer the same; its first answer stays";
}

}  // namespace

struct ReplayBuilder::Taker {
  ReplayBuilder& builder;

  void operator()(const NoAnswer& /*line*/) const {}
  void operator()(QueryBegan& query) const { builder.fQueries.push_back(std::move(query.classes)); }
  void operator()(const QueryEnded& query) const {
    builder.fQueriesThatThrew += query.throws ? 1 : 0;
  }
  void operator()(HostAnswered& host) const {
    builder.Told(host.call).Take(std::move(host.answer));
  }
  void operator()(const ClassLookedUp& look) const {
    builder.fLacksClass = builder.fLacksClass || !look.found;
  }
  void operator()(const QuestionAnswered& asked) const {
    builder.Asked(asked.question).Take(asked.answer);
  }
  void operator()(const SpsDiscovered& discovered) const { builder.fCount.Take(discovered.count); }
  void operator()(ComponentCounted& counted) const {
    if (counted.identifier.size() == kComponentBytes) {
      counted.identifier.at(kNumberPlace) = '\0';
    }
    builder.fComponents[std::move(counted.identifier)].Take(counted.count);
  }
  void operator()(DotCommandSent& sent) const {
    const auto sp = static_cast<std::size_t>(sent.sp);
    if (builder.fInstances.size() <= sp) {
      builder.fInstances.resize(sp + 1);
    }
    builder.fInstances.at(sp)[std::move(sent.identifier)].push_back(std::move(sent.reply));
  }
  void operator()(KestleCommandSent& sent) const {
    builder.fKestleCommands[sent.code].push_back(std::move(sent.reply));
  }
};

void ReplayBuilder::Take(TraceEvent event) { std::visit(Taker{*this}, event); }

Replay ReplayBuilder::Complete(const std::string& source, const std::string& name) {
  if (!Asked(Question::IsDotcommand).First()) {
    throw text::InputError(text::EscapeForPeople(source) +
                           ": expected a trace of a query that looked for service processors, "
                           "got no answer of isDotcommand");
  }
  Replay replay;
  replay.server.description = "Replay of " + name;
  replay.source = "the trace " + name;
  replay.queries = std::move(fQueries);
  BuildHost(replay);
  BuildSp(replay);
  Warn(replay, fLacksClass, "a class was not found; the classes of a description are always found");
  Warn(replay, fQueriesThatThrew != 0,
       std::to_string(fQueriesThatThrew) + (fQueriesThatThrew == 1 ? " query" : " queries") +
           " left by an exception, which a description cannot bring about");
  return replay;
}

void ReplayBuilder::BuildHost(Replay& replay) {
  // A description is UTF-8, what a host says need not be.
  const auto settle = [&](HostCall call, const char* name, platform::HostAnswer answer) {
    answer = Told(call).Or(std::move(answer));
    std::string valid = text::ToValidUtf8(answer.text);
    Warn(replay, Told(call).Differs(), Differs(name));
    Warn(replay, valid != answer.text,
         std::string(name) + " answered bytes that are no UTF-8; they stand as \\xNN");
    answer.text = std::move(valid);
    return answer;
  };
  platform::HostSettings& host = replay.server.host;
  host.machineTypeModel =
      settle(HostCall::GetMachineTypeFromID, "GetMachineTypeFromID", host.machineTypeModel);
  host.systemName = settle(HostCall::GetSystemName, "GetSystemName", host.systemName);
  host.systemCreationClassName =
      settle(HostCall::GetSystemCreationClassName, "GetSystemCreationClassName",
             {host.systemCreationClassName, false})
          .text;
}

void ReplayBuilder::BuildSp(Replay& replay) {
  platform::SpDescription& sp = replay.server.sp;
  const auto settle = [&](Question question, const char* name, bool otherwise) {
    Warn(replay, Asked(question).Differs(), Differs(name));
    return Asked(question).Or(otherwise);
  };
  const bool isOrlo = settle(Question::IsDotcommand, "isDotcommand", false);
  const bool isTavit = settle(Question::IsKestle, "isKestle", false);
  if (isOrlo) {
    sp.kind = isTavit ? platform::SpKind::Both : platform::SpKind::Orlo;
  } else {
    sp.kind = isTavit ? platform::SpKind::Tavit : platform::SpKind::None;
  }
  sp.communicates = settle(Question::CheckSPComm, "checkSPComm", sp.communicates);
  sp.managementServerStopped = settle(Question::IsQmvStop, "isQmvStop", sp.managementServerStopped);
  sp.dornLibrary = settle(Question::IsDornlibrary, "isDornlibrary", sp.dornLibrary);
  sp.commandList = settle(Question::BuildDotCommandList, "buildDotCommandList", sp.commandList);
  BuildComponents(replay);
  BuildInstances(sp);
  Warn(replay, fCount.Differs(), Differs("discoverSPs"));
  sp.count = fCount.Or(static_cast<int>(sp.instances.size()));
}

void ReplayBuilder::BuildComponents(Replay& replay) {
  for (const auto& [identifier, count] : fComponents) {
    const int first = *count.First();
    const std::string name = "the count of component " + text::DotNotationOf(identifier);
    Warn(replay, count.Differs(), name + " was not always the same; its first one stays");
    if (first == -1) {
      continue;  // as of a component that is not there
    }
    if (identifier.size() != kComponentBytes || first < 0 || first > kMostCounted) {
      Warn(replay, true, name + " was " + std::to_string(first) + "; a description cannot hold it");
      continue;
    }
    replay.server.sp.components.emplace(identifier, first);
  }
}

void ReplayBuilder::BuildInstances(platform::SpDescription& sp) {
  for (auto& commands : fInstances) {
    for (auto& [identifier, replies] : commands) {
      Shorten(replies);
    }
  }
  // Many may have been asked of a few that there are.
  while (!fInstances.empty() && SaysNothing(fInstances.back())) {
    fInstances.pop_back();
  }
  for (auto& [code, replies] : fKestleCommands) {
    Shorten(replies);
  }
  sp.instances = std::move(fInstances);
  sp.kestleCommands = std::move(fKestleCommands);
}

}  // namespace strake::replay
