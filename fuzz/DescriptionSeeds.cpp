#include "fuzz/Seeds.h"

#include <nlohmann/json.hpp>

namespace strake::fuzz {
namespace {

using nlohmann::ordered_json;

constexpr std::size_t kLongestSeed = 3000;

std::string Minified(const std::string& text) { return ordered_json::parse(text).dump(); }

std::string WithSp(const std::string& sp) {
  return R"({"format":"strake-server/1","sp":{"kind":"orlo",)" + sp + "}}";
}

// The reply of a presence test.
std::string WithReply(const std::string& reply) {
  return WithSp(R"("instances":[{"dot_commands":{"1.1":"","2.2.1.1":)" + reply + "}}]");
}

// Every form that is accepted.
Seeds Accepted() {
  return {
      {"minimal", R"({"format":"strake-server/1","sp":{"kind":"none"}})"},
      {"host", R"({"format":"strake-server/1","description":"a \u00e9\n","machine_type_model":)"
               R"({"throws":"no"},"system_name":{"throws":""},"system_creation_class_name":"C",)"
               R"("local_time":"20100615134530.000000-120","sp":{"kind":"both"}})"},
      {"sp", WithSp(R"("communicates":false,"count":-2147483648,"management_server_stopped":false,)"
                    R"("dorn_library":true,"latency_ms":0.5,"command_list":false,"components":)"
                    R"({"4.1.3.1.255":254,"0.0.0.0.0":0},"instances":[{},{"dot_commands":{}}])")},
      {"kestle", R"({"format":"strake-server/1","machine_type_model":"5125","sp":{"kind":"tavit",)"
                 R"("kestle_commands":{"166":"10 A6","0":[""],"255":{"hex":"00","length":-1}}}})"},
      {"reply-object", WithReply(R"({"hex":"F4\t01","length":2147483647,"succeeds":false})")},
      {"reply-text", WithReply(R"({"text":"\u0000\u007f%n\ud83d\ude00"})")},
      {"reply-elements",
       WithReply(R"({"elements":[{"id":255,"header":0,"data":"FF"},{"text":"ab","max":0}]})")},
      {"reply-sequence", WithReply(R"(["00",{},{"text":""},{"elements":[]}])")},
  };
}

Seeds Refused() {
  return {
      {"empty", ""},
      {"no-json", "\xEF\xBB\xBF\xFF\x1B[31m"},
      {"null", "null"},
      {"deep", std::string(70, '[')},
      {"deep-objects", WithSp(R"("components":{"a":{"a":{"a":{"a":{"a":{"a":[[[[1e999]]]]}}}}}})")},
      {"same-key", R"({"format":"strake-server/1","format":""})"},
      {"same-component", WithSp(R"("components":{"4.1.3.1.255":1,"4.1.3.7.255":2})")},
      {"unknown-key", WithSp(R"("\u001b~/0\u0000":0)")},
      {"numbers", WithSp(R"("count":1.0,"latency_ms":-1e308,"communicates":18446744073709551616)")},
      {"lone-surrogate", WithReply(R"({"text":"\ud800"})")},
      {"odd-hex", WithReply(R"("F 4")")},
      {"nested-replies", WithReply("[[]]")},
      {"no-date", R"({"format":"strake-server/1","local_time":"20100230","sp":{}})"},
      {"bad-command", WithSp(R"("instances":[{"dot_commands":{"01..256":""}}])")},
      {"open-string", "{\"format\":\"strake-server/1\n"},
  };
}

}  // namespace

Seeds DescriptionSeeds(const std::vector<NamedServer>& servers) {
  Seeds seeds = Accepted();
  seeds.merge(Refused());
  for (const NamedServer& named : servers) {
    const std::string text = Minified(named.text);
    if (text.size() <= kLongestSeed) {
      seeds[named.name] = text;
      seeds[named.name + "-cut"] = text.substr(0, text.size() * 2 / 3);
    } else {
      seeds[named.name + "-cut"] = text.substr(0, kLongestSeed);
    }
  }
  return seeds;
}

}  // namespace strake::fuzz
