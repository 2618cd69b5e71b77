// A program that is spoken to over a terminal.
#pragma once

#include <string>
#include <sys/types.h>
#include <vector>

namespace strake::tests {

class Conversation {
 public:
  // The first word is the program's path; the environment is these assignments alone.
  Conversation(std::vector<std::string> words, std::vector<std::string> environment);
  Conversation(const Conversation&) = delete;
  Conversation& operator=(const Conversation&) = delete;
  ~Conversation();

  // As if it were typed.
  void Say(const std::string& text) const;
  // As if its window changed.
  void Resize(unsigned short rows, unsigned short columns) const;
  // Gives what it said up to and with this text since the last call; all of it, when
  // it ends or is silent for long before.
  std::string Hear(const std::string& text);

 private:
  pid_t fProcess = -1;
  int fTerminal = -1;
  std::string fHeard;
};

}  // namespace strake::tests
