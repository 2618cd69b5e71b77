#include "app/ForwardingObserver.h"

namespace strake::app {

ForwardingObserver::ForwardingObserver(const std::vector<platform::BoundaryObserver*>& observers) {
  for (platform::BoundaryObserver* const observer : observers) {
    if (observer != nullptr) {
      fObservers.push_back(observer);
    }
  }
}

platform::Fault ForwardingObserver::BeforeCall(platform::BoundaryCall call) {
  platform::Fault fault = platform::Fault::None;
  for (platform::BoundaryObserver* const observer : fObservers) {
    const platform::Fault wanted = observer->BeforeCall(call);
    fault = wanted == platform::Fault::None ? fault : wanted;
  }
  return fault;
}

void ForwardingObserver::OnQuery(const std::vector<std::string>& classes) {
  ForEach(&BoundaryObserver::OnQuery, classes);
}
void ForwardingObserver::OnQueryEnd() { ForEach(&BoundaryObserver::OnQueryEnd); }
void ForwardingObserver::OnQueryThrew(const std::string& text) {
  ForEach(&BoundaryObserver::OnQueryThrew, text);
}
void ForwardingObserver::OnLog(int level, const std::string& message) {
  ForEach(&BoundaryObserver::OnLog, level, message);
}
void ForwardingObserver::OnHostText(platform::BoundaryCall call, const std::string& result) {
  ForEach(&BoundaryObserver::OnHostText, call, result);
}
void ForwardingObserver::OnHostThrew(platform::BoundaryCall call, const std::string& text) {
  ForEach(&BoundaryObserver::OnHostThrew, call, text);
}
void ForwardingObserver::OnGetLocalTime() { ForEach(&BoundaryObserver::OnGetLocalTime); }
void ForwardingObserver::OnGetClass(const std::string& name, bool found) {
  ForEach(&BoundaryObserver::OnGetClass, name, found);
}
void ForwardingObserver::OnCreateInstance(const std::string& className, unsigned long instance) {
  ForEach(&BoundaryObserver::OnCreateInstance, className, instance);
}
void ForwardingObserver::OnSetProperty(unsigned long instance, const std::string& name,
                                       const NVELKZEV20::TCIMValue& value) {
  ForEach(&BoundaryObserver::OnSetProperty, instance, name, value);
}
void ForwardingObserver::OnCommit(unsigned long instance) {
  ForEach(&BoundaryObserver::OnCommit, instance);
}
void ForwardingObserver::OnSpQuestion(const char* call, bool result) {
  ForEach(&BoundaryObserver::OnSpQuestion, call, result);
}
void ForwardingObserver::OnDiscoverSPs(int result) {
  ForEach(&BoundaryObserver::OnDiscoverSPs, result);
}
void ForwardingObserver::OnComponentCount(std::span<const unsigned char> identifier, int result) {
  ForEach(&BoundaryObserver::OnComponentCount, identifier, result);
}
void ForwardingObserver::OnReplyBuffer(std::span<const unsigned char> bytes) {
  ForEach(&BoundaryObserver::OnReplyBuffer, bytes);
}
void ForwardingObserver::OnDotSend(const platform::DotSend& send) {
  ForEach(&BoundaryObserver::OnDotSend, send);
}
void ForwardingObserver::OnKestleSend(const platform::KestleSend& send) {
  ForEach(&BoundaryObserver::OnKestleSend, send);
}

}  // namespace strake::app
