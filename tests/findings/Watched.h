// A collection that was watched, for the tests.
#pragma once

#include "findings/CollectionWatch.h"
#include "platform/session/HostSession.h"
#include "plugin/config/SharedIdentifiers.h"
#include "plugin/frame/ModuleEntry.h"
#include "tests/support/Scenario.h"
#include "tests/support/WholeCollection.h"

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace strake::tests {

// Runs the queries on a fresh plug-in object.
inline void Watch(findings::CollectionWatch& watch, const platform::ServerDescription& server,
                  const std::vector<Classes>& queries) {
  Identifiers() = SharedIdentifiers{};
  platform::HostSession session(server, &watch);
  session.Attach(&StrakeModuleEntry);
  for (const Classes& classes : queries) {
    session.Query(classes);
  }
  session.Detach();
}

inline report::Collected WhatItTells(const findings::CollectionWatch& watch) {
  report::Collected collected;
  watch.AddTo(collected);
  return collected;
}

inline report::Collected Watched(const platform::ServerDescription& server,
                                 const std::vector<Classes>& queries) {
  findings::CollectionWatch watch;
  Watch(watch, server, queries);
  return WhatItTells(watch);
}

// "critical sp-silent 1: TEXT" of each, without the number where none is meant.
inline Lines FindingLines(const report::Collected& collected) {
  Lines lines;
  for (const report::Finding& finding : collected.findings) {
    lines.push_back(std::string(report::SeverityName(finding.severity)) + " " +
                    std::string(report::CodeName(finding.code)) +
                    (finding.sp ? " " + std::to_string(*finding.sp) : "") + ": " + finding.text);
  }
  return lines;
}

// "1 answered", "2 silent" or "3 not asked".
inline Lines ProcessorLines(const report::Collected& collected) {
  Lines lines;
  const std::map<report::Answer, std::string> texts = {{report::Answer::Yes, " answered"},
                                                       {report::Answer::No, " silent"},
                                                       {report::Answer::NotAsked, " not asked"}};
  for (const report::Processor& processor : collected.processors) {
    lines.push_back(std::to_string(processor.number) + texts.at(processor.answer));
  }
  return lines;
}

// "1 voltage NAME".
inline Lines SilentLines(const report::Collected& collected) {
  Lines lines;
  for (const report::SilentSensor& sensor : collected.silentSensors) {
    lines.push_back(std::to_string(sensor.sp) + " " + std::string(report::KindName(sensor.kind)) +
                    " " + sensor.name);
  }
  return lines;
}

}  // namespace strake::tests
