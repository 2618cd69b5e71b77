// Runs a server's queries through the real module code and holds it to what is
// true whatever a service processor answers and whatever fails.
#pragma once

#include "fuzz/ServerBytes.h"

namespace strake::fuzz {

// Boundary calls of one run; every call behind them fails, so that no input
// takes longer than a fuzzer likes to wait.
inline constexpr long kMostCalls = 8000;

// Checks (fuzz/Check.h): a query throws only when a call failed; log lines have
// a level and a text; no command, class or instance stays alive, save one
// presence-test command for each that was sent; the trace is lines of printable
// JSON.
void RunServer(const ServerCase& serverCase);

}  // namespace strake::fuzz
