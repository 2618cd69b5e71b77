#include "platform/boundary/TraceWriter.h"

#include "cim/TCIMValueContent.h"
#include "platform/boundary/TraceLine.h"
#include "text/DotNotation.h"

#include <stdexcept>

namespace strake::platform {
namespace {

using NVELKZEV20::TCIMDateTime;

const char* NameOf(BoundaryCall call) {
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
      throw std::logic_error("a host call without a text has no such trace line");
  }
}

TraceLine HostLine(const char* call) {
  TraceLine line("host");
  line.Text("call", call);
  return line;
}

TraceLine SpLine(const char* call) {
  TraceLine line("sp");
  line.Text("call", call);
  return line;
}

// Writes the keys "type" and "value".
struct ValueWriter {
  TraceLine& line;

  void operator()(const std::monostate& /*empty*/) const {
    throw std::logic_error("an empty value has no trace line");
  }
  void operator()(const std::string& text) const {
    line.Text("type", "string").Text("value", text);
  }
  void operator()(std::int32_t number) const { Number("sint32", number); }
  void operator()(std::uint16_t number) const { Number("uint16", number); }
  void operator()(std::uint8_t number) const { Number("uint8", number); }
  void operator()(const TCIMDateTime& dateTime) const {
    line.Text("type", "datetime").Text("value", dateTime.ToString());
  }
  void Number(const char* type, long number) const {
    line.Text("type", type).Number("value", number);
  }
};

}  // namespace

void TraceWriter::OnQuery(const std::vector<std::string>& classes) {
  TraceLine("query").Texts("classes", classes).WriteTo(*fOut);
}

void TraceWriter::OnQueryEnd() { TraceLine("query_end").WriteTo(*fOut); }

void TraceWriter::OnQueryThrew(const std::string& text) {
  TraceLine("query_end").Text("throws", text).WriteTo(*fOut);
}

void TraceWriter::OnLog(int level, const std::string& message) {
  TraceLine("log").Number("level", level).Text("message", message).WriteTo(*fOut);
}

void TraceWriter::OnHostText(BoundaryCall call, const std::string& result) {
  HostLine(NameOf(call)).Text("result", result).WriteTo(*fOut);
}

void TraceWriter::OnHostThrew(BoundaryCall call, const std::string& text) {
  HostLine(NameOf(call)).Text("throws", text).WriteTo(*fOut);
}

void TraceWriter::OnGetLocalTime() { HostLine("GetLocalTime").WriteTo(*fOut); }

void TraceWriter::OnGetClass(const std::string& name, bool found) {
  HostLine("GetClass").Text("class", name).Flag("found", found).WriteTo(*fOut);
}

void TraceWriter::OnCreateInstance(const std::string& className, unsigned long instance) {
  HostLine("CreateInstance")
      .Text("class", className)
      .Number("instance", static_cast<long>(instance))
      .WriteTo(*fOut);
}

void TraceWriter::OnSetProperty(unsigned long instance, const std::string& name,
                                const NVELKZEV20::TCIMValue& value) {
  TraceLine line = HostLine("SetProperty");
  line.Number("instance", static_cast<long>(instance)).Text("name", name);
  std::visit(ValueWriter{line}, NVELKZEV20::TCIMValueContent::Of(value));
  line.WriteTo(*fOut);
}

void TraceWriter::OnCommit(unsigned long instance) {
  HostLine("Commit").Number("instance", static_cast<long>(instance)).WriteTo(*fOut);
}

void TraceWriter::OnSpQuestion(const char* call, bool result) {
  SpLine(call).Flag("result", result).WriteTo(*fOut);
}

void TraceWriter::OnDiscoverSPs(int result) {
  SpLine("discoverSPs").Number("result", result).WriteTo(*fOut);
}

void TraceWriter::OnComponentCount(std::span<const unsigned char> identifier, int result) {
  SpLine("getComponentdotCmdList")
      .Text("id", text::DotNotation(identifier))
      .Number("result", result)
      .WriteTo(*fOut);
}

void TraceWriter::OnDotSend(const DotSend& send) {
  SpLine("sendDotCommand")
      .Number("class", send.commandClass)
      .Text("id", text::DotNotation(send.identifier))
      .Number("sp", send.sp)
      .Number("size", send.size)
      .Flag("result", send.result)
      .Number("length", send.length)
      .Hex("reply", send.reply)
      .WriteTo(*fOut);
}

void TraceWriter::OnKestleSend(const KestleSend& send) {
  SpLine("sendKestleCommand")
      .Number("total", send.total)
      .Number("code", send.code)
      .Number("expected", send.expected)
      .Number("checksum", send.checksum)
      .Number("data_length", send.dataLength)
      .Flag("ack", send.acknowledge)
      .Flag("read", send.isRead)
      .Flag("result", send.result)
      .Number("length", send.length)
      .Hex("reply", send.reply)
      .WriteTo(*fOut);
}

}  // namespace strake::platform
