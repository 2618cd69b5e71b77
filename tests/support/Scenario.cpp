#include "tests/support/Scenario.h"

#include "platform/session/HostSession.h"
#include "plugin/config/SharedIdentifiers.h"
#include "plugin/frame/ModuleEntry.h"

#include <algorithm>

namespace strake::tests {

using platform::Reply;
using platform::ReplySequence;

std::string Bytes(std::initializer_list<int> bytes) {
  std::string text;
  for (const int byte : bytes) {
    text.push_back(static_cast<char>(byte));
  }
  return text;
}

std::string Plain(int vectorId, int header, const std::string& data) {
  return Bytes({vectorId, header, static_cast<int>(data.size())}) + data;
}

std::string Text(int vectorId, int header, std::string_view text, int maximum) {
  const int m = maximum >= 0 ? maximum : static_cast<int>(text.size()) + 1;
  return Plain(vectorId, header, Bytes({m}) + std::string(text) + Bytes({0}));
}

std::string Id(std::string_view dotNotation) {
  std::string bytes;
  int value = 0;
  for (const char character : dotNotation) {
    if (character == '.') {
      bytes.push_back(static_cast<char>(value));
      value = 0;
    } else {
      value = value * 10 + (character - '0');
    }
  }
  bytes.push_back(static_cast<char>(value));
  return bytes;
}

Reply Success(const std::string& bytes) { return {bytes, static_cast<int>(bytes.size()), true}; }
Reply Reported(const std::string& bytes, int length) { return {bytes, length, true}; }
Reply Failure(const std::string& bytes, int length) { return {bytes, length, false}; }

Scenario Scenario::Orlo(int sps) {
  Scenario scenario;
  scenario.server.sp.kind = platform::SpKind::Orlo;
  scenario.server.sp.count = sps;
  scenario.server.sp.instances.resize(static_cast<std::size_t>(sps));
  for (int sp = 0; sp < sps; ++sp) {
    scenario.Answer("1.1", Bytes({1}), sp);
  }
  return scenario;
}

Scenario Scenario::Tavit(const std::string& machineTypeModel) {
  Scenario scenario;
  scenario.server.sp.kind = platform::SpKind::Tavit;
  scenario.server.host.machineTypeModel = {machineTypeModel, false};
  return scenario;
}

Scenario& Scenario::Answer(std::string_view identifier, ReplySequence replies, int sp) {
  server.sp.instances.at(static_cast<std::size_t>(sp))[Id(identifier)] = std::move(replies);
  return *this;
}

Scenario& Scenario::Answer(std::string_view identifier, const std::string& bytes, int sp) {
  return Answer(identifier, {Success(bytes)}, sp);
}

Scenario& Scenario::Kestle(int code, Reply reply) {
  server.sp.kestleCommands[static_cast<unsigned char>(code)] = {std::move(reply)};
  return *this;
}

Scenario& Scenario::Kestle(int code, const std::string& bytes) {
  return Kestle(code, Success(bytes));
}

Scenario& Scenario::Component(std::string_view identifier, int count) {
  std::string component = Id(identifier);
  component.at(3) = 0;
  server.sp.components[component] = count;
  return *this;
}

Scenario& Scenario::RunAll(const std::vector<Classes>& queries) {
  Identifiers() = SharedIdentifiers{};
  fRecord->Forget();
  platform::HostSession session(server, fRecord.get());
  session.Attach(&StrakeModuleEntry);
  for (const Classes& classes : queries) {
    try {
      session.Query(classes);
    } catch (...) {
      break;
    }
  }
  session.Detach();
  return *this;
}

Lines Between(const Lines& lines, std::string_view from, std::string_view to) {
  const auto begin = std::find(lines.begin(), lines.end(), from);
  const auto end = std::find(begin, lines.end(), to);
  return {begin, end == lines.end() ? end : end + 1};
}

}  // namespace strake::tests
