// Puts a server together out of what it answered.
#pragma once

#include "replay/Replay.h"
#include "replay/TraceEvent.h"

#include <array>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace strake::replay {

// The answers to a question of which a description holds one.
template <typename Value>
class OneAnswer {
 public:
  void Take(Value value) {
    if (!fFirst) {
      fFirst = std::move(value);
    } else if (*fFirst != value) {
      fDiffers = true;
    }
  }

  // Empty when nobody asked.
  [[nodiscard]] const std::optional<Value>& First() const { return fFirst; }
  [[nodiscard]] Value Or(Value otherwise) const { return fFirst.value_or(std::move(otherwise)); }
  [[nodiscard]] bool Differs() const { return fDiffers; }

 private:
  std::optional<Value> fFirst;
  bool fDiffers = false;
};

// The lines of a trace in their order, then the replay. What was never asked
// stays what it is in an empty description. Of what a description says once,
// the first answer stays; each later one that differs is warned of.
class ReplayBuilder {
 public:
  void Take(TraceEvent event);
  // The replay of the trace of this name. Throws text::InputError, which names
  // the source: no service processor was looked for.
  Replay Complete(const std::string& source, const std::string& name);

 private:
  static constexpr std::size_t kHostCalls = 3;
  static constexpr std::size_t kQuestions = 6;

  struct Taker;

  [[nodiscard]] OneAnswer<bool>& Asked(Question question) {
    return fQuestions.at(static_cast<std::size_t>(question));
  }
  [[nodiscard]] OneAnswer<platform::HostAnswer>& Told(HostCall call) {
    return fHost.at(static_cast<std::size_t>(call));
  }
  void BuildHost(Replay& replay);
  void BuildSp(Replay& replay);
  void BuildComponents(Replay& replay);
  void BuildInstances(platform::SpDescription& sp);

  std::vector<std::vector<std::string>> fQueries;
  std::array<OneAnswer<platform::HostAnswer>, kHostCalls> fHost;
  std::array<OneAnswer<bool>, kQuestions> fQuestions;
  OneAnswer<int> fCount;
  std::map<platform::Identifier, OneAnswer<int>> fComponents;
  std::vector<std::map<platform::Identifier, platform::ReplySequence>> fInstances;
  std::map<unsigned char, platform::ReplySequence> fKestleCommands;
  std::size_t fQueriesThatThrew = 0;
  bool fLacksClass = false;
};

}  // namespace strake::replay
