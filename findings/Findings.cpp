#include "findings/Findings.h"

#include "findings/SensorReplies.h"
#include "text/OrList.h"
#include "text/TextEscape.h"

#include <algorithm>
#include <limits>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <utility>

namespace strake::findings {
namespace {

using report::Answer;
using report::FindingCode;
using report::Severity;

// The one Tavit processor of a server.
constexpr int kTavitNumber = 1;

// The driver counts from 0, people from 1.
int NumberOf(int sp) { return sp < std::numeric_limits<int>::max() ? sp + 1 : sp; }

std::string SpText(int number) { return "SP " + std::to_string(number); }

// Empty when it failed in all of them.
std::string InSome(const Tally& queries) {
  return queries.SomeCame() ? " in " + std::to_string(queries.failed) + " of " +
                                  std::to_string(queries.asked) + " queries"
                            : "";
}

std::string InSomeTimes(const Tally& times) {
  return times.SomeCame() ? " (" + std::to_string(times.failed) + " of " +
                                std::to_string(times.asked) + " times)"
                          : "";
}

Severity CriticalUnlessSomeCame(const Tally& tally) {
  return tally.SomeCame() ? Severity::Warning : Severity::Critical;
}

Answer AnswerOf(const Tally& tally) {
  if (tally.asked == 0) {
    return Answer::NotAsked;
  }
  return tally.SomeCame() ? Answer::Yes : Answer::No;
}

// The first names, and how many others there are.
class NameList {
 public:
  void Add(const std::string& name, std::size_t count = 1) {
    fCount += count;
    if (fShown < kMostShown) {
      fText += (fShown == 0 ? "" : ", ") + name;
      fShownCount += count;
      ++fShown;
    }
  }
  void AddUnnamed(std::size_t count) { fCount += count; }
  [[nodiscard]] std::size_t Count() const { return fCount; }
  [[nodiscard]] std::string Text() const {
    const std::size_t more = fCount - fShownCount;
    return more == 0 ? fText : fText + " and " + std::to_string(more) + " more";
  }

 private:
  static constexpr std::size_t kMostShown = kUnansweredKept;

  std::string fText;
  std::size_t fShown = 0;
  std::size_t fShownCount = 0;
  std::size_t fCount = 0;
};

std::string NameOf(const SensorReplies& sensor) {
  return text::EscapeForPeople(report::WithoutBlanksAtItsEnd(sensor.name)) +
         InSomeTimes(sensor.tally);
}

std::string NameOf(const Unanswered& unanswered) {
  const Question& question = unanswered.question;
  const std::span<const unsigned char> identifier(question.identifier);
  std::string name;
  switch (question.kind) {
    case QuestionKind::Command:
      name = unanswered.isSeveral ? CommandsForPeople(identifier) : CommandForPeople(identifier);
      break;
    case QuestionKind::Count:
      name = "number of instances of " + ComponentForPeople(identifier);
      break;
    case QuestionKind::List:
      name = "list of commands";
      break;
  }
  return unanswered.times == 1 ? name : name + " (" + std::to_string(unanswered.times) + " times)";
}

class Deduction {
 public:
  Deduction(const Facts& facts, report::Collected& collected)
      : fFacts(&facts), fCollected(&collected) {}

  void Draw() {
    fCollected->silentSensors.clear();
    AddServer();
    AddTavit();
    for (const auto& [sp, facts] : fFacts->orlo) {
      AddOrlo(NumberOf(sp), facts);
    }
    fCollected->processors.clear();
    for (const auto& [number, answer] : fProcessors) {
      fCollected->processors.push_back({number, answer});
    }
  }

 private:
  void Add(Severity severity, FindingCode code, std::optional<int> sp, std::string text) {
    fCollected->findings.push_back({severity, code, sp, std::move(text)});
  }

  // Of several answers the best one counts.
  void AddProcessor(int number, Answer answer) {
    Answer& known = fProcessors.try_emplace(number, answer).first->second;
    known = std::max(known, answer);
  }

  void AddServer() {
    const Tally& communication = fFacts->communication;
    if (communication.HasFailures()) {
      Add(CriticalUnlessSomeCame(communication), FindingCode::NotCommunicating, std::nullopt,
          "could not communicate with the Orlo card" + InSome(communication));
    }
    if (fFacts->processors.HasFailures()) {
      Add(Severity::Warning, FindingCode::NoSp, std::nullopt,
          "there was neither an Orlo card nor a Tavit processor" + InSome(fFacts->processors));
    }
    const Tally& discovery = fFacts->discovery;
    if (discovery.HasFailures()) {
      const int count = fFacts->lastCountOfNone;
      Add(Severity::Warning, FindingCode::NoSp, std::nullopt,
          "no service processor was found on the Orlo card" + InSome(discovery) +
              (count == 0 ? ""
                          : " (the count was " + std::to_string(count) +
                                ", of which the low eight bits count)"));
    }
  }

  void AddTavit() {
    const TavitFacts& tavit = fFacts->tavit;
    if (!tavit.isFound && tavit.released.asked == 0) {
      return;
    }
    AddProcessor(kTavitNumber, Answer::NotAsked);
    if (tavit.released.HasFailures()) {
      Add(Severity::Warning, FindingCode::Held, kTavitNumber,
          "the management server held the Tavit processor" + InSome(tavit.released) +
              ", so its sensors were not read");
    }
    if (tavit.knownMachines.HasFailures()) {
      Add(Severity::Warning, FindingCode::MachineUnknown, kTavitNumber,
          tavit.unknownMachine + InSome(tavit.knownMachines) +
              ", so the sensors of the Tavit processor were not read");
    }
    for (std::size_t family = 0; family < tavit.families.size(); ++family) {
      for (std::size_t list = 0; list < kTavitLists.size(); ++list) {
        AddTavitList(family, static_cast<TavitList>(list));
      }
    }
    AddTavitCommands(tavit);
    AddSensors(kTavitNumber, SensorRepliesOf(tavit));
  }

  // Lists that no reply came for. It has no presence test: one that answers
  // nothing at all is silent.
  void AddTavitCommands(const TavitFacts& tavit) {
    NameList names;
    std::size_t asked = 0;
    for (std::size_t family = 0; family < tavit.families.size(); ++family) {
      for (std::size_t list = 0; list < kTavitLists.size(); ++list) {
        // A list that the family does not have does not come.
        if (ExpectedLengths(std::span(kTavitFamilies)[family], static_cast<TavitList>(list))
                .empty()) {
          continue;
        }
        const Tally& replies = tavit.families.at(family).at(list).replies;
        asked += replies.asked;
        if (replies.HasFailures()) {
          names.Add(kTavitLists.at(list).request->name + InSomeTimes(replies), replies.failed);
        }
      }
    }
    if (names.Count() == 0) {
      return;
    }
    if (names.Count() == asked) {
      Add(Severity::Critical, FindingCode::SpSilent, kTavitNumber,
          SpText(kTavitNumber) + " did not answer: none of " + std::to_string(asked) +
              " commands had a reply: " + names.Text());
    } else {
      AddOfMany(FindingCode::CommandUnanswered, kTavitNumber, names, asked, "commands to ",
                "had no reply");
    }
  }

  void AddTavitList(std::size_t family, TavitList list) {
    const auto place = static_cast<std::size_t>(list);
    const TavitListReplies& replies = fFacts->tavit.families.at(family).at(place);
    AddProcessor(kTavitNumber, AnswerOf(replies.replies));
    if (replies.wrong == 0) {
      return;
    }
    const TavitListFacts& facts = kTavitLists.at(place);
    const TavitFamily& layout = std::span(kTavitFamilies)[family];
    const std::string expected = text::OrList(
        ExpectedLengths(layout, list), [](unsigned char length) { return std::to_string(length); });
    Add(Severity::Warning, FindingCode::ListLength, kTavitNumber,
        "the " + std::string(facts.name) + " of " + SpText(kTavitNumber) + " (" +
            facts.request->name + ") stated length " + std::to_string(replies.firstWrong) +
            InSome({replies.replies.asked, replies.wrong}) + ", expected " + expected + " for " +
            layout.name);
  }

  void AddOrlo(int number, const OrloFacts& facts) {
    const Tally& presence = facts.presence;
    AddProcessor(number, AnswerOf(presence));
    if (presence.HasFailures()) {
      Add(CriticalUnlessSomeCame(presence), FindingCode::SpSilent, number,
          SpText(number) + " did not answer its presence test" + InSome(presence));
    }
    AddProcessor(number, AnswerOf(facts.questions));
    AddSensors(number, SensorRepliesOf(facts));
    if (facts.questions.HasFailures()) {
      NameList names;
      for (const Unanswered& unanswered : facts.unanswered) {
        names.Add(NameOf(unanswered), unanswered.times);
      }
      names.AddUnnamed(facts.questions.failed - names.Count());
      AddOfMany(FindingCode::CommandUnanswered, number, names, facts.questions.asked,
                "commands to ", "had no reply");
    }
  }

  void AddSensors(int number, const std::vector<SensorReplies>& sensors) {
    NameList names;
    for (const SensorReplies& sensor : sensors) {
      AddProcessor(number, AnswerOf(sensor.tally));
      if (sensor.tally.HasFailures()) {
        names.Add(NameOf(sensor));
      }
      if (!sensor.tally.SomeCame()) {
        fCollected->silentSensors.push_back({number, std::string(sensor.name), sensor.kind});
      }
    }
    if (names.Count() > 0) {
      AddOfMany(FindingCode::SensorUnanswered, number, names, sensors.size(), "sensors on ",
                "did not answer");
    }
  }

  // "2 of 42 sensors on SP 1 did not answer: ...".
  void AddOfMany(FindingCode code, int number, const NameList& names, std::size_t all,
                 const std::string& what, const std::string& predicate) {
    Add(Severity::Warning, code, number,
        std::to_string(names.Count()) + " of " + std::to_string(all) + " " + what + SpText(number) +
            " " + predicate + ": " + names.Text());
  }

  const Facts* fFacts;
  report::Collected* fCollected;
  std::map<int, Answer> fProcessors;  // by number
};

}  // namespace

void AddFindings(const Facts& facts, report::Collected& collected) {
  Deduction(facts, collected).Draw();
}

}  // namespace strake::findings
