// The boundary trace: one JSON object a line, in the order in which things
// happened. Text is bytes, each written as the code point of its value, so a
// trace loses nothing.
#pragma once

#include "platform/boundary/BoundaryObserver.h"

#include <ostream>

namespace strake::platform {

class TraceWriter : public BoundaryObserver {
 public:
  // The stream must outlive the writer.
  explicit TraceWriter(std::ostream& out) : fOut(&out) {}

  void OnQuery(const std::vector<std::string>& classes) override;
  void OnQueryEnd() override;
  void OnQueryThrew(const std::string& text) override;
  void OnLog(int level, const std::string& message) override;
  void OnHostText(BoundaryCall call, const std::string& result) override;
  void OnHostThrew(BoundaryCall call, const std::string& text) override;
  void OnGetLocalTime() override;
  void OnGetClass(const std::string& name, bool found) override;
  void OnCreateInstance(const std::string& className, unsigned long instance) override;
  void OnSetProperty(unsigned long instance, const std::string& name,
                     const NVELKZEV20::TCIMValue& value) override;
  void OnCommit(unsigned long instance) override;
  void OnSpQuestion(const char* call, bool result) override;
  void OnDiscoverSPs(int result) override;
  void OnComponentCount(std::span<const unsigned char> identifier, int result) override;
  void OnDotSend(const DotSend& send) override;
  void OnKestleSend(const KestleSend& send) override;

 private:
  std::ostream* fOut;
};

}  // namespace strake::platform
