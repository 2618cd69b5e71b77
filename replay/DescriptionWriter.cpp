#include "replay/DescriptionWriter.h"

#include "describe/DescriptionText.h"
#include "text/ShellWord.h"

namespace strake::replay {

std::string CommandOf(const Replay& replay, std::string_view file, Quote quote) {
  std::string command = "strake collect --server " + quote(file);
  for (const std::vector<std::string>& query : replay.queries) {
    std::string list;
    for (const std::string& name : query) {
      list += list.empty() ? name : "," + name;
    }
    command += " --query " + quote(list);
  }
  return command;
}

std::string WriteDescription(const Replay& replay) {
  describe::Capture capture{replay.source,
                            {"replay it with: " + CommandOf(replay, "FILE", text::ShellWord)}};
  capture.notes.insert(capture.notes.end(), replay.warnings.begin(), replay.warnings.end());
  return describe::DescriptionText(replay.server, capture, describe::ReplyForm::Bytes);
}

}  // namespace strake::replay
