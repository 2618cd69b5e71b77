// Watches the queries of a session and tells what did not answer.
#pragma once

#include "findings/Facts.h"
#include "platform/boundary/BoundaryObserver.h"
#include "report/Report.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace strake::findings {

class CollectionWatch : public platform::BoundaryObserver {
 public:
  // The processors that were found, sensors without a reading, findings.
  void AddTo(report::Collected& collected) const;
  // Forgets what it saw: the next query begins another collection.
  void Restart();

  void OnQuery(const std::vector<std::string>& classes) override;
  void OnHostText(platform::BoundaryCall call, const std::string& result) override;
  void OnHostThrew(platform::BoundaryCall call, const std::string& text) override;
  void OnSpQuestion(const char* call, bool result) override;
  void OnDiscoverSPs(int result) override;
  void OnComponentCount(std::span<const unsigned char> identifier, int result) override;
  void OnDotSend(const platform::DotSend& send) override;
  void OnKestleSend(const platform::KestleSend& send) override;

 private:
  // Where the query stands.
  struct Now {
    bool isKindKnown = false;    // of service processor
    std::optional<int> sp;       // that passed its presence test last
    bool isBehindClock = false;  // the last command asked for an SP's clock
    std::optional<std::size_t> family;
    std::string machine;  // for people, of a machine without a family
  };

  void NoteKind(bool isThere);
  void NoteTavit(bool isReleased);

  Facts fFacts;
  Now fNow;
};

}  // namespace strake::findings
