#include "findings/CollectionWatch.h"

#include "findings/Findings.h"
#include "plugin/config/SpClock.h"
#include "plugin/environ/SensorDecoding.h"
#include "text/Quote.h"

#include <algorithm>
#include <string_view>

namespace strake::findings {
namespace {

using platform::BoundaryCall;
using platform::DotSend;
using platform::KestleSend;

constexpr std::uint64_t kPackedPresenceTest = Packed(kPresenceTest.Bytes());
constexpr std::uint64_t kPackedClock = Packed(kReadClock.Bytes());
constexpr std::uint64_t kPackedTimeZone = Packed(kReadTimeZone.Bytes());

// More than the plug-in's identifiers have, so that a longer one shows as such.
constexpr std::size_t kIdentifierKept = 9;

// Two components that differ in the instance number alone are one.
std::vector<unsigned char> ComponentOf(std::span<const unsigned char> identifier) {
  std::vector<unsigned char> component(identifier.begin(), identifier.end());
  if (component.size() > DotIdentifier::kInstancePlace) {
    component[DotIdentifier::kInstancePlace] = 0;
  }
  return component;
}

// The plug-in's commands of six bytes differ in the last one when they ask for
// the values of one interface.
bool SharePlace(const Question& one, const Question& other) {
  constexpr std::size_t kValueBytes = 6;
  if (one.kind != other.kind || one.identifier.size() != other.identifier.size()) {
    return false;
  }
  const std::size_t shared =
      one.identifier.size() == kValueBytes ? kValueBytes - 1 : one.identifier.size();
  return std::ranges::equal(std::span(one.identifier).first(shared),
                            std::span(other.identifier).first(shared));
}

void NoteQuestion(OrloFacts& sp, bool isAnswered, QuestionKind kind,
                  std::span<const unsigned char> identifier) {
  sp.questions.Note(isAnswered);
  if (isAnswered) {
    return;
  }
  const auto kept = identifier.first(std::min(identifier.size(), kIdentifierKept));
  Question question{kind, {kept.begin(), kept.end()}};
  const auto known = std::ranges::find_if(sp.unanswered, [&question](const Unanswered& one) {
    return SharePlace(one.question, question);
  });
  if (known != sp.unanswered.end()) {
    ++known->times;
    known->isSeveral |= known->question.identifier != question.identifier;
  } else if (sp.unanswered.size() < kUnansweredKept) {
    sp.unanswered.push_back({std::move(question), 1});
  }
}

}  // namespace

void CollectionWatch::Restart() {
  fFacts = {};
  fNow = {};
}

void CollectionWatch::AddTo(report::Collected& collected) const { AddFindings(fFacts, collected); }

void CollectionWatch::OnQuery(const std::vector<std::string>& /*classes*/) { fNow = {}; }

void CollectionWatch::OnHostText(BoundaryCall call, const std::string& result) {
  if (call == BoundaryCall::GetMachineTypeFromID) {
    fNow.family = FindTavitFamily(result);
    fNow.machine =
        "no family of Tavit machines has the machine type " + text::Quoted(MachineType(result));
  }
}

void CollectionWatch::OnHostThrew(BoundaryCall call, const std::string& text) {
  if (call == BoundaryCall::GetMachineTypeFromID) {
    fNow.family.reset();
    fNow.machine = "the host could not tell the machine type (" + text::Printable(text) + ")";
  }
}

// An Orlo card is looked for first; it is asked about again before each command.
void CollectionWatch::OnSpQuestion(const char* call, bool result) {
  const std::string_view question(call);
  if (question == "isDotcommand") {
    if (result) {
      NoteKind(true);
    }
  } else if (question == "isKestle") {
    NoteKind(result);
    fFacts.tavit.isFound |= result;
  } else if (question == "checkSPComm") {
    fFacts.communication.Note(result);
  } else if (question == "isQmvStop") {
    if (result) {
      NoteTavit(true);
    }
  } else if (question == "isDornlibrary") {
    NoteTavit(!result);
  } else if (question == "buildDotCommandList" && fNow.sp) {
    NoteQuestion(fFacts.orlo[*fNow.sp], result, QuestionKind::List, {});
  }
}

void CollectionWatch::NoteKind(bool isThere) {
  if (!fNow.isKindKnown) {
    fNow.isKindKnown = true;
    fFacts.processors.Note(isThere);
  }
}

void CollectionWatch::NoteTavit(bool isReleased) {
  fFacts.tavit.released.Note(isReleased);
  if (isReleased) {
    fFacts.tavit.knownMachines.Note(fNow.family.has_value());
    if (!fNow.family) {
      fFacts.tavit.unknownMachine = fNow.machine;
    }
  }
}

// The plug-in numbers its SPs in eight bits, and takes the count so.
void CollectionWatch::OnDiscoverSPs(int result) {
  const bool hasSome = static_cast<unsigned char>(result) != 0;
  fFacts.discovery.Note(hasSome);
  if (!hasSome) {
    fFacts.lastCountOfNone = result;
  }
}

// The plug-in takes counts in 16 bits.
void CollectionWatch::OnComponentCount(std::span<const unsigned char> identifier, int result) {
  if (fNow.sp) {
    NoteQuestion(fFacts.orlo[*fNow.sp], static_cast<short>(result) != -1, QuestionKind::Count,
                 ComponentOf(identifier));
  }
}

void CollectionWatch::OnDotSend(const DotSend& send) {
  OrloFacts& sp = fFacts.orlo[send.sp];
  const std::uint64_t command = Packed(send.identifier);
  if (command == kPackedPresenceTest) {  // of which only the result counts
    sp.presence.Note(send.result);
    fNow.sp = send.result ? std::optional(send.sp) : std::nullopt;
    fNow.isBehindClock = false;
    return;
  }
  // The clock's reply length is a signed number, and so is that of the time zone
  // which is asked for right behind it.
  const bool isClock =
      command == kPackedClock || (command == kPackedTimeZone && fNow.isBehindClock);
  fNow.isBehindClock = command == kPackedClock;
  const bool isAnswered = send.result && (isClock ? send.length > 0 : send.length != 0);
  if (const std::optional<std::size_t> sensor = FindOrloSensor(command)) {
    sp.sensors.at(*sensor).Note(isAnswered);
  } else {
    NoteQuestion(sp, isAnswered, QuestionKind::Command, send.identifier);
  }
}

void CollectionWatch::OnKestleSend(const KestleSend& send) {
  const std::optional<TavitList> list = FindTavitList(send.code);
  if (!list || !fNow.family) {
    return;
  }
  const auto place = static_cast<std::size_t>(*list);
  TavitListReplies& replies = fFacts.tavit.families.at(*fNow.family).at(place);
  const bool isAnswered = send.result && send.length != 0;
  replies.replies.Note(isAnswered);
  if (!isAnswered) {
    return;
  }
  const unsigned char length = KestleReturnLength(ByteView(send.reply));
  const auto expected = ExpectedLengths(std::span(kTavitFamilies)[*fNow.family], *list);
  if (std::ranges::find(expected, length) != expected.end()) {
    replies.lastCorrect = length;
  } else if (!expected.empty()) {
    replies.firstWrong = replies.wrong == 0 ? length : replies.firstWrong;
    ++replies.wrong;
  }
}

}  // namespace strake::findings
