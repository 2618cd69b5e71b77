#include "tests/app/System.h"
#include "tests/support/Processes.h"

#include <csignal>

namespace strake::tests {

std::string NullDevice() { return "/dev/null"; }

std::string InQuotes(const std::string& word) { return '\'' + word + '\''; }

int FaultStatus() { return -SIGABRT; }
std::string FaultText() { return "its process was ended by signal 6 (Aborted)"; }

std::size_t CountProcessesWith(const std::string& text) { return ProcessesWith(text).size(); }

}  // namespace strake::tests
