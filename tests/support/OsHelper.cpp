// What the tests of processes start: a program that does what its first word says.
#include "os/ChildProcess.h"
#include "os/CommandFolder.h"
#include "os/CommandWords.h"
#include "os/FileName.h"
#include "os/OutputFile.h"
#include "os/Signals.h"
#include "os/Terminal.h"

#include <chrono>
#include <cstdio>
#include <string>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

using namespace strake;
using Words = std::vector<std::string>;

[[noreturn]] void Stay() {
  for (;;) {
    std::this_thread::sleep_for(std::chrono::hours(1));
  }
}

void SayNumber() { os::WriteStandardOutput(std::to_string(::getpid()) + "\n"); }

// A word of which nothing but this holds: it stands for so many bytes.
std::string Many(const std::string& count) { return std::string(std::stoul(count), 'm'); }

void CopyInput() {
  for (int byte = 0; (byte = std::fgetc(stdin)) != EOF;) {
    os::WriteStandardOutput(std::string(1, static_cast<char>(byte)));
  }
}

// A helper of its own, which says its number behind this one's.
void Start(const Words& words) {
  os::ChildProcess child(os::CommandFile(), words, os::ChildProcess::Input::None);
  SayNumber();
  for (;;) {
    os::ChildProcess* const children[] = {&child};
    os::ChildProcess::Wait(children, std::nullopt);
    os::WriteStandardOutput(child.TakeOutput());
  }
}

int Do(const std::string& role, const Words& words) {
  if (role == "words") {
    for (const std::string& word : words) {
      os::WriteStandardOutput(word + "|");
    }
  } else if (role == "say") {
    os::WriteStandardOutput(words.at(0));
    os::WriteStandardError(words.at(1));
    return std::stoi(words.at(2));
  } else if (role == "much") {
    os::WriteStandardOutput(Many(words.at(0)));
    os::WriteStandardError(Many(words.at(1)));
  } else if (role == "copy") {
    CopyInput();
  } else if (role == "stay") {
    SayNumber();
    Stay();
  } else if (role == "start") {
    Start(words);
  } else if (role == "output") {
    os::OutputFile file(os::FileNamed(words.at(0)), os::Privacy::Usual);
    file.Write(Many(words.at(1)));
    SayNumber();
    Stay();
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  os::OccupyStandardDescriptors();
  os::PrepareForSignals();
  const Words words = os::CommandWords(argc, argv);
  return Do(words.at(1), {words.begin() + 2, words.end()});
}
