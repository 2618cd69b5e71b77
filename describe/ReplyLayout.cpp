#include "describe/ReplyLayout.h"

#include "plugin/config/NetworkRecords.h"

#include <algorithm>
#include <iterator>

namespace strake::describe {

const RecordLayout* FindRecord(std::string_view command) {
  for (const NamedRecord& record : AllRecords()) {
    if (record.name == command) {
      return &record.layout;
    }
  }
  const auto* const found = std::ranges::find(kSummaryRecords, command, &SummaryRecord::name);
  return found == std::end(kSummaryRecords) ? nullptr : &found->layout;
}

ValueDecoder FindDecoder(std::string_view command) {
  for (const SummaryValue& value : kSummaryValues) {
    if (value.name == command) {
      return value.decode;
    }
  }
  for (const DhcpValue& value : kDhcpValues) {
    if (value.name == command) {
      return value.decode;
    }
  }
  return nullptr;
}

}  // namespace strake::describe
