// What has another name or other words on each system.
#pragma once

#include <cstddef>
#include <string>

namespace strake::tests {

// The device that takes everything and holds nothing.
std::string NullDevice();

// A word that a shell would take apart, as commands that are told show it.
std::string InQuotes(const std::string& word);

// How the module of the tests ends its process by a fault: the status, and what is
// told of a process that ended so.
int FaultStatus();
std::string FaultText();

// The processes of the built command that have a word with this text in it; where
// the system keeps words from others, all of them.
std::size_t CountProcessesWith(const std::string& text);

}  // namespace strake::tests
