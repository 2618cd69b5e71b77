// Records what crosses the boundary as lines of text that a test can spell out.
#pragma once

#include "platform/boundary/BoundaryObserver.h"

#include <string>
#include <string_view>
#include <vector>

namespace strake::tests {

using Lines = std::vector<std::string>;

// One line a call:
//   query A,B | query_end | query_end throws TEXT
//   log LEVEL MESSAGE                      (a printed status address reads ADDR)
//   GetName -> TEXT | GetSystemName throws TEXT | GetLocalTime
//   GetClass NAME | GetClass NAME not found | CreateInstance 1 NAME
//   Set 1 NAME TYPE VALUE | Commit 1
//   isDotcommand -> true | discoverSPs -> 2 | count 4.1.3.1.255 -> 2
//   dot CLASS ID sp N size N -> true LENGTH HEX
//   kestle TOTAL CODE EXPECTED CHECKSUM data N ack B read B -> true LENGTH HEX
class Recorder : public platform::BoundaryObserver {
 public:
  [[nodiscard]] const Lines& All() const { return fLines; }
  // The lines that begin with one of the words.
  [[nodiscard]] Lines Beginning(std::initializer_list<std::string_view> words) const;
  // "LEVEL MESSAGE" of each log line.
  [[nodiscard]] Lines Logs() const;
  // "NAME TYPE VALUE" of each property of an instance.
  [[nodiscard]] Lines Properties(unsigned long instance) const;
  void Forget() { fLines.clear(); }

  void OnQuery(const std::vector<std::string>& classes) override;
  void OnQueryEnd() override;
  void OnQueryThrew(const std::string& text) override;
  void OnLog(int level, const std::string& message) override;
  void OnHostText(platform::BoundaryCall call, const std::string& result) override;
  void OnHostThrew(platform::BoundaryCall call, const std::string& text) override;
  void OnGetLocalTime() override;
  void OnGetClass(const std::string& name, bool found) override;
  void OnCreateInstance(const std::string& className, unsigned long instance) override;
  void OnSetProperty(unsigned long instance, const std::string& name,
                     const NVELKZEV20::TCIMValue& value) override;
  void OnCommit(unsigned long instance) override;
  void OnSpQuestion(const char* call, bool result) override;
  void OnDiscoverSPs(int result) override;
  void OnComponentCount(std::span<const unsigned char> identifier, int result) override;
  void OnDotSend(const platform::DotSend& send) override;
  void OnKestleSend(const platform::KestleSend& send) override;

 private:
  Lines fLines;
};

}  // namespace strake::tests
