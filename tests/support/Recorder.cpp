#include "tests/support/Recorder.h"

#include "cim/TCIMValueContent.h"

#include <sstream>

namespace strake::tests {
namespace {

using platform::BoundaryCall;

std::string Flag(bool value) { return value ? "true" : "false"; }

std::string CallName(BoundaryCall call) {
  switch (call) {
    case BoundaryCall::GetMachineTypeFromID:
      return "GetMachineTypeFromID";
    case BoundaryCall::GetSystemName:
      return "GetSystemName";
    case BoundaryCall::GetSystemCreationClassName:
      return "GetSystemCreationClassName";
    case BoundaryCall::GetName:
      return "GetName";
    default:
      return "?";
  }
}

std::string Dotted(std::span<const unsigned char> identifier) {
  std::string text;
  for (const unsigned char byte : identifier) {
    if (!text.empty()) text += '.';
    text += std::to_string(byte);
  }
  return text;
}

std::string Hex(std::span<const unsigned char> bytes) {
  static constexpr char kDigits[] = "0123456789ABCDEF";
  std::string text;
  for (const unsigned char byte : bytes) {
    text += kDigits[byte >> 4];
    text += kDigits[byte & 15];
  }
  return text;
}

std::string Typed(const NVELKZEV20::TCIMValue& value) {
  struct Visitor {
    std::string operator()(std::monostate) const { return "none"; }
    std::string operator()(const std::string& text) const { return "string " + text; }
    std::string operator()(std::int32_t number) const { return "sint32 " + std::to_string(number); }
    std::string operator()(std::uint16_t number) const {
      return "uint16 " + std::to_string(number);
    }
    std::string operator()(std::uint8_t number) const { return "uint8 " + std::to_string(number); }
    std::string operator()(const NVELKZEV20::TCIMDateTime& time) const {
      return "datetime " + time.ToString();
    }
  };
  return std::visit(Visitor{}, NVELKZEV20::TCIMValueContent::Of(value));
}

// Addresses differ from run to run.
std::string MaskAddress(std::string message) {
  static constexpr std::string_view kBefore = " Status: 0x";
  const auto begin = message.find(kBefore);
  if (begin != std::string::npos) {
    const auto address = begin + kBefore.size() - 2;
    message.replace(address, message.find('.', address) - address, "ADDR");
  }
  return message;
}

}  // namespace

Lines Recorder::Beginning(std::initializer_list<std::string_view> words) const {
  Lines chosen;
  for (const std::string& line : fLines) {
    for (const std::string_view word : words) {
      if (line.starts_with(word)) {
        chosen.push_back(line);
        break;
      }
    }
  }
  return chosen;
}

Lines Recorder::Logs() const {
  Lines logs;
  for (const std::string& line : Beginning({"log "})) {
    logs.push_back(line.substr(4));
  }
  return logs;
}

Lines Recorder::Properties(unsigned long instance) const {
  const std::string prefix = "Set " + std::to_string(instance) + " ";
  Lines properties;
  for (const std::string& line : Beginning({prefix})) {
    properties.push_back(line.substr(prefix.size()));
  }
  return properties;
}

void Recorder::OnQuery(const std::vector<std::string>& classes) {
  std::string list;
  for (const std::string& name : classes) {
    if (!list.empty()) list += ',';
    list += name;
  }
  fLines.push_back("query " + list);
}

void Recorder::OnQueryEnd() { fLines.emplace_back("query_end"); }
void Recorder::OnQueryThrew(const std::string& text) {
  fLines.push_back("query_end throws " + text);
}

void Recorder::OnLog(int level, const std::string& message) {
  fLines.push_back("log " + std::to_string(level) + " " + MaskAddress(message));
}

void Recorder::OnHostText(BoundaryCall call, const std::string& result) {
  fLines.push_back(CallName(call) + " -> " + result);
}

void Recorder::OnHostThrew(BoundaryCall call, const std::string& text) {
  fLines.push_back(CallName(call) + " throws " + text);
}

void Recorder::OnGetLocalTime() { fLines.emplace_back("GetLocalTime"); }

void Recorder::OnGetClass(const std::string& name, bool found) {
  fLines.push_back("GetClass " + name + (found ? "" : " not found"));
}

void Recorder::OnCreateInstance(const std::string& className, unsigned long instance) {
  fLines.push_back("CreateInstance " + std::to_string(instance) + " " + className);
}

void Recorder::OnSetProperty(unsigned long instance, const std::string& name,
                             const NVELKZEV20::TCIMValue& value) {
  fLines.push_back("Set " + std::to_string(instance) + " " + name + " " + Typed(value));
}

void Recorder::OnCommit(unsigned long instance) {
  fLines.push_back("Commit " + std::to_string(instance));
}

void Recorder::OnSpQuestion(const char* call, bool result) {
  fLines.push_back(std::string(call) + " -> " + Flag(result));
}

void Recorder::OnDiscoverSPs(int result) {
  fLines.push_back("discoverSPs -> " + std::to_string(result));
}

void Recorder::OnComponentCount(std::span<const unsigned char> identifier, int result) {
  fLines.push_back("count " + Dotted(identifier) + " -> " + std::to_string(result));
}

void Recorder::OnDotSend(const platform::DotSend& send) {
  std::ostringstream line;
  line << "dot " << send.commandClass << " " << Dotted(send.identifier) << " sp " << send.sp
       << " size " << send.size << " -> " << Flag(send.result) << " " << send.length << " "
       << Hex(send.reply);
  fLines.push_back(line.str());
}

void Recorder::OnKestleSend(const platform::KestleSend& send) {
  std::ostringstream line;
  line << "kestle " << send.total << " " << send.code << " " << send.expected << " "
       << send.checksum << " data " << send.dataLength << " ack " << Flag(send.acknowledge)
       << " read " << Flag(send.isRead) << " -> " << Flag(send.result) << " " << send.length << " "
       << Hex(send.reply);
  fLines.push_back(line.str());
}

}  // namespace strake::tests
