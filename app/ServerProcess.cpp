#include "app/ServerProcess.h"

#include "app/Duration.h"
#include "app/Errors.h"
#include "app/Input.h"
#include "app/Messages.h"
#include "app/Server.h"
#include "report/JsonReport.h"
#include "report/ReadReport.h"

#include <system_error>
#include <utility>

namespace strake::app {
namespace {

// Of descriptors, processes or memory.
bool IsForLackOfRoom(const std::error_code& error) {
  return error == std::errc::too_many_files_open ||
         error == std::errc::too_many_files_open_in_system ||
         error == std::errc::resource_unavailable_try_again ||
         error == std::errc::not_enough_memory;
}

bool HasReport(int status) { return status == kExitDone || status == kExitFindings; }

}  // namespace

ServerProcess::ServerProcess(Plan plan)
    : fPlan(std::move(plan)), fErrors(InputName(fPlan.server)), fStatus(kExitFailed) {}

bool ServerProcess::Start(bool areOthersRunning) {
  std::vector<std::string> words = fPlan.words;
  words.push_back("--server=" + fPlan.server.string());
  try {
    fProcess.emplace(fPlan.command, words,
                     IsStandardInput(fPlan.server) ? os::ChildProcess::Input::Own
                                                   : os::ChildProcess::Input::None);
  } catch (const std::system_error& error) {
    if (areOthersRunning && IsForLackOfRoom(error.code())) {
      return false;
    }
    Fail("its process could not be started: " + error.code().message());
    return true;
  }
  if (fPlan.timeout) {
    fDeadline = Clock::now() + *fPlan.timeout;
  }
  return true;
}

void ServerProcess::Postpone(Clock::duration held) {
  if (fDeadline) {
    *fDeadline += held;
  }
}

void ServerProcess::Wait(std::span<ServerProcess* const> running) {
  std::vector<os::ChildProcess*> processes;
  std::optional<Clock::time_point> nearest;
  for (ServerProcess* const one : running) {
    processes.push_back(&*one->fProcess);
    if (one->fDeadline && (!nearest || *one->fDeadline < *nearest)) {
      nearest = one->fDeadline;
    }
  }
  os::ChildProcess::Wait(processes, nearest);
  for (ServerProcess* const one : running) {
    one->Advance();
  }
}

void ServerProcess::Advance() {
  fOutput += fProcess->TakeOutput();
  fErrors.Take(fProcess->TakeErrors());
  if (const std::optional<os::ChildEnd>& end = fProcess->End()) {
    Conclude(*end);
  } else if (fOutput.size() > report::kMostReportBytes) {
    Fail("its process wrote more than a report can hold");
  } else if (fDeadline && Clock::now() >= *fDeadline) {
    Fail("timed out after " + DurationText(*fPlan.timeout));
  }
}

void ServerProcess::Conclude(const os::ChildEnd& end) {
  if (end.status && HasReport(*end.status) && report::IsJsonReportLine(fOutput)) {
    fErrors.End();
    fStatus = *end.status;
    fLine = std::exchange(fOutput, {});
    fProcess.reset();
  } else {
    Fail(FailureOf(end));
  }
}

std::string ServerProcess::FailureOf(const os::ChildEnd& end) {
  if (!end.status) {
    return "its process was ended by " + end.cause;
  }
  if (HasReport(*end.status)) {
    return "its process wrote something else than a report";
  }
  return fErrors.TakeMessage().value_or("its process ended with status " +
                                        std::to_string(*end.status));
}

void ServerProcess::Fail(const std::string& text) {
  fProcess.reset();
  fOutput = {};
  fErrors.End();
  fErrors.Tell(text);
  fLine = report::JsonFailureLine({ServerName(fPlan.server), fPlan.version, text});
}

}  // namespace strake::app
