#include "fuzz/Seeds.h"
#include "platform/boundary/TraceWriter.h"
#include "platform/session/HostSession.h"
#include "plugin/config/SharedIdentifiers.h"
#include "plugin/frame/ModuleEntry.h"
#include "tests/support/WholeCollection.h"

#include <set>
#include <sstream>

namespace strake::fuzz {
namespace {

constexpr std::size_t kLongestSeed = 8000;

// Every line that says something of an answer, each once: a sequence of replies is
// the fuzzer's own work.
std::string AnswersOf(const std::string& trace) {
  std::string answers;
  std::set<std::string> seen;
  std::istringstream in(trace);
  for (std::string line; std::getline(in, line);) {
    const bool isTold = line.find(R"("event":"log")") != line.npos ||
                        line.find(R"("call":"SetProperty")") != line.npos ||
                        line.find(R"("call":"CreateInstance")") != line.npos ||
                        line.find(R"("call":"Commit")") != line.npos;
    if (!isTold && seen.insert(line).second) answers += line + '\n';
  }
  return answers;
}

// Without it nothing is known of service processors.
const std::string kLooked = R"({"event":"sp","call":"isDotcommand","result":true})"
                            "\n";

std::string Sent(const std::string& identifier, const std::string& reply) {
  return R"({"event":"sp","call":"sendDotCommand","class":2,"id":")" + identifier +
         R"(","sp":0,"size":350,"result":true,"length":)" + std::to_string(reply.size() / 2) +
         R"(,"reply":")" + reply + "\"}\n";
}

// Every kind of line, and every form of an answer.
Seeds Accepted() {
  return {
      {"looked", kLooked},
      {"host", R"({"event":"host","call":"GetMachineTypeFromID","result":"5301-AR2"})"
               "\n"
               R"({"event":"host","call":"GetSystemName","throws":"\u00ff no"})"
               "\n"
               R"({"event":"host","call":"GetSystemCreationClassName","result":"CIM_\u00c3\u00bc"})"
               "\n" +
                   kLooked},
      {"told",
       R"({"event":"query","classes":["VELKSG_SP_NumericSensor","Other"]})"
       "\n"
       R"({"event":"host","call":"GetName","result":"VELKSG_SP_NumericSensor"})"
       "\n"
       R"({"event":"log","level":3,"message":"\u0000\u0080"})"
       "\n"
       R"({"event":"host","call":"GetLocalTime"})"
       "\n"
       R"({"event":"host","call":"GetClass","class":"A","found":false})"
       "\n"
       R"({"event":"host","call":"CreateInstance","class":"A","instance":1})"
       "\n"
       R"({"event":"host","call":"SetProperty","instance":1,"name":"N","type":"uint8","value":255})"
       "\n"
       R"({"event":"host","call":"SetProperty","instance":1,"name":"T","type":"datetime",)"
       R"("value":"20100615134530.000000-120"})"
       "\n"
       R"({"event":"host","call":"Commit","instance":1})"
       "\n"
       R"({"event":"query_end","throws":"t"})"
       "\n" +
           kLooked},
      {"differs",
       kLooked + R"({"event":"sp","call":"isDotcommand","result":false})"
                 "\n"
                 R"({"event":"sp","call":"discoverSPs","result":-1})"
                 "\n"
                 R"({"event":"sp","call":"discoverSPs","result":2147483647})"
                 "\n"
                 R"({"event":"sp","call":"getComponentdotCmdList","id":"4.1.3.7.255","result":3})"
                 "\n"
                 R"({"event":"sp","call":"getComponentdotCmdList","id":"4.1","result":255})"
                 "\n"},
      {"sequence", kLooked + Sent("4.4.1", "1803120109291B") + Sent("4.4.1", "") +
                       Sent("4.4.1", "") + Sent("", "FF")},
      {"record", kLooked + Sent("4.1.4.1.255", "01000605555345520002000103030006053535353500")},
      {"texts", kLooked + Sent("4.9.3.1.2", "48616C6C2032") + Sent("4.9.3.1.1", "2A2A2A2A") +
                    Sent("7.7", "48616C6C2032") + Sent("4.9.1.1.16.2", "C0000215")},
      {"last-sp", kLooked +
                      R"({"event":"sp","call":"sendDotCommand","class":2,"id":"1.1","sp":255,)"
                      R"("size":4096,"result":false,"length":-2147483648,"reply":""})"
                      "\n"},
      {"kestle",
       R"({"event":"sp","call":"isDotcommand","result":false})"
       "\n"
       R"({"event":"sp","call":"sendKestleCommand","total":2,"code":17,"expected":166,)"
       R"("checksum":90,"data_length":0,"ack":false,"read":true,"result":true,"length":5,)"
       R"("reply":"5241434B37"})"
       "\n"},
  };
}

Seeds Refused() {
  return {
      {"empty", ""},
      {"not-looked", R"({"event":"query_end"})"
                     "\n"},
      {"no-json", "\xEF\xBB\xBF\xFF\x1B[31m"},
      {"open", kLooked + R"({"event":"sp")"},
      {"key-too-many", R"({"event":"query_end","more":1})"},
      {"wide-text", R"({"event":"host","call":"GetSystemName","result":"\u0100"})"},
      {"odd-reply", Sent("1.1", "0")},
      {"no-call", R"({"event":"sp","call":"open"})"},
      {"blank-line", kLooked + "\n" + kLooked},
  };
}

}  // namespace

std::string TraceOf(const platform::ServerDescription& server, const std::vector<Query>& queries) {
  Identifiers() = SharedIdentifiers{};
  std::ostringstream out;
  platform::TraceWriter trace(out);
  platform::HostSession session(server, &trace);
  session.Attach(&StrakeModuleEntry);
  session.Initialize();
  for (const Query& classes : queries) {
    session.Query(classes);
  }
  session.Deinitialize();
  session.Detach();
  return out.str();
}

Seeds ReplaySeeds(const std::vector<NamedServer>& servers) {
  Seeds seeds = Accepted();
  seeds.merge(Refused());
  for (const NamedServer& named : servers) {
    for (const auto& [group, classes] : tests::WholeCollection()) {
      // Of the others a Tavit processor is asked nothing.
      if (named.server.sp.kind == platform::SpKind::Tavit && group != "sensors") continue;
      const ServerCase cut = CutDown(named.server, classes);
      const std::string answers = AnswersOf(TraceOf(cut.server, cut.queries));
      if (answers.size() <= kLongestSeed) seeds[named.name + "-" + group] = answers;
    }
  }
  return seeds;
}

}  // namespace strake::fuzz
