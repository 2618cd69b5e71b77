// What was seen at the boundary, before anybody draws conclusions.
#pragma once

#include "findings/Commands.h"
#include "findings/TavitLists.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <map>
#include <string>
#include <vector>

namespace strake::findings {

// How often something was asked for, and how often it did not come.
struct Tally {
  std::size_t asked = 0;
  std::size_t failed = 0;

  void Note(bool came) {
    ++asked;
    failed += came ? 0 : 1;
  }
  [[nodiscard]] bool HasFailures() const { return failed > 0; }
  [[nodiscard]] bool SomeCame() const { return failed < asked; }
};

enum class QuestionKind : std::uint8_t {
  Command,  // one dot command
  Count,    // how many instances a component has
  List,     // which commands there are
};

struct Question {
  QuestionKind kind = QuestionKind::Command;
  std::vector<unsigned char> identifier;  // its first bytes; empty: of a list
};

// A question without an answer, and how often that was so. The values of one
// interface share a place.
struct Unanswered {
  Question question;  // the first one
  std::size_t times = 0;
  bool isSeveral = false;  // different ones
};

// The first ones are kept, the others are counted.
inline constexpr std::size_t kUnansweredKept = 5;

struct OrloFacts {
  Tally presence;
  Tally questions;  // all but sensors and presence tests
  std::vector<Unanswered> unanswered;
  std::array<Tally, kOrloSensors> sensors;  // by their place
};

struct TavitListReplies {
  Tally replies;
  std::size_t wrong = 0;          // replies of another length than the family's
  unsigned char firstWrong = 0;   // what the first of them said
  unsigned char lastCorrect = 0;  // 0: none was
};

using TavitFamilyReplies = std::array<TavitListReplies, kTavitLists.size()>;

struct TavitFacts {
  bool isFound = false;
  Tally released;              // by the management server
  Tally knownMachines;         // of those that were released
  std::string unknownMachine;  // for people, of the last one
  std::array<TavitFamilyReplies, std::size(kTavitFamilies)> families;
};

struct Facts {
  Tally processors;     // of either kind, by query
  Tally communication;  // by query with an Orlo card
  Tally discovery;      // by query that counted SPs
  int lastCountOfNone = 0;
  std::map<int, OrloFacts> orlo;  // by the driver's number, from 0
  TavitFacts tavit;
};

}  // namespace strake::findings
