// A server put together call by call, and the plug-in run on it through its
// real interfaces.
#pragma once

#include "platform/server/ServerDescription.h"
#include "tests/support/Recorder.h"

#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace strake::tests {

using Classes = std::vector<std::string>;

// Bytes given as numbers 0 to 255.
std::string Bytes(std::initializer_list<int> bytes);
// Elements of a record: a plain one, and a string one with its byte M and a
// closing zero (M defaults to the text's length + 1).
std::string Plain(int vectorId, int header, const std::string& data);
std::string Text(int vectorId, int header, std::string_view text, int maximum = -1);
// An identifier from its dot notation.
std::string Id(std::string_view dotNotation);

platform::Reply Success(const std::string& bytes);
platform::Reply Reported(const std::string& bytes, int length);  // success, another length
platform::Reply Failure(const std::string& bytes = "", int length = 0);

class Scenario {
 public:
  // `sps` instances that answer their presence test.
  static Scenario Orlo(int sps = 1);
  static Scenario Tavit(const std::string& machineTypeModel);

  Scenario& Answer(std::string_view identifier, platform::ReplySequence replies, int sp = 0);
  Scenario& Answer(std::string_view identifier, const std::string& bytes, int sp = 0);
  Scenario& Kestle(int code, platform::Reply reply);
  Scenario& Kestle(int code, const std::string& bytes);
  Scenario& Component(std::string_view identifier, int count);

  // Runs the queries on one fresh plug-in object, its shared identifiers as a
  // fresh process has them. What Initialize and Deinitialize log is left out.
  // A query that throws ends the run; the record holds its text.
  Scenario& RunAll(const std::vector<Classes>& queries);
  Scenario& Run(const Classes& classes) { return RunAll({classes}); }

  [[nodiscard]] const Recorder& Record() const { return *fRecord; }

  platform::ServerDescription server;

 private:
  std::unique_ptr<Recorder> fRecord = std::make_unique<Recorder>();
};

// All log lines from the first that equals `from` to the next that equals `to`.
Lines Between(const Lines& lines, std::string_view from, std::string_view to);

}  // namespace strake::tests
