// Lets several observers watch one boundary.
#pragma once

#include "platform/boundary/BoundaryObserver.h"

#include <string>
#include <vector>

namespace strake::app {

class ForwardingObserver : public platform::BoundaryObserver {
 public:
  // They must outlive this one; null ones are left out.
  explicit ForwardingObserver(const std::vector<platform::BoundaryObserver*>& observers);

  // The last fault that any of them wants.
  platform::Fault BeforeCall(platform::BoundaryCall call) override;
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
  void OnReplyBuffer(std::span<const unsigned char> bytes) override;
  void OnDotSend(const platform::DotSend& send) override;
  void OnKestleSend(const platform::KestleSend& send) override;

 private:
  template <typename... Parameters, typename... Arguments>
  void ForEach(void (platform::BoundaryObserver::*call)(Parameters...),
               const Arguments&... arguments) {
    for (platform::BoundaryObserver* const observer : fObservers) {
      (observer->*call)(arguments...);
    }
  }

  std::vector<platform::BoundaryObserver*> fObservers;
};

}  // namespace strake::app
