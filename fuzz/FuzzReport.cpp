#include "cim/TCIMValueContent.h"
#include "fuzz/Check.h"
#include "fuzz/Harnesses.h"
#include "fuzz/ReportBytes.h"
#include "report/JsonReport.h"
#include "report/TableReport.h"
#include "text/TextEscape.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <string_view>

namespace strake::fuzz {
namespace {

using nlohmann::ordered_json;

// What every secret holds, so that it is known when it is seen.
constexpr std::string_view kSecretText = "s3cr3t-t3xt";

bool IsValidUtf8(const std::string& text) {
  try {
    static_cast<void>(ordered_json(text).dump());
    return true;
  } catch (const nlohmann::json::exception&) {
    return false;
  }
}

// U+0000 to U+001F but for the line feed, and U+007F to U+009F.
bool HasControls(std::string_view text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    if ((byte < 0x20 && byte != '\n') || byte == 0x7F) return true;
    if (byte == 0xC2 && i + 1 < text.size() && static_cast<unsigned char>(text[i + 1]) < 0xA0) {
      return true;
    }
  }
  return false;
}

std::string Without(std::string text, std::string_view part) {
  for (std::size_t at = text.find(part); at != text.npos; at = text.find(part, at)) {
    text.erase(at, part.size());
  }
  return text;
}

ordered_json Expected(const NVELKZEV20::TCIMValue& value) {
  struct Values {
    ordered_json operator()(std::monostate /*none*/) const { return nullptr; }
    ordered_json operator()(const std::string& text) const { return text::ToValidUtf8(text); }
    ordered_json operator()(const NVELKZEV20::TCIMDateTime& time) const { return time.ToString(); }
    ordered_json operator()(int number) const { return number; }
  };
  return std::visit(Values{}, NVELKZEV20::TCIMValueContent::Of(value));
}

void CheckJson(const std::string& text, const ReportCase& reportCase) {
  const ordered_json json = ordered_json::parse(text, nullptr, false);
  Check(!json.is_discarded(), "a JSON report is JSON");
  Check(json["server"]["name"] == text::ToValidUtf8(reportCase.serverName),
        "a JSON report has the server's name");
  Check(json["server"]["description"] == text::ToValidUtf8(reportCase.serverDescription),
        "a JSON report has the server's description");
  const ordered_json& instances = json["instances"];
  Check(instances.size() == reportCase.instances.size(), "a JSON report has every instance");
  for (std::size_t i = 0; i < instances.size(); ++i) {
    const cim::StoredInstance& instance = reportCase.instances[i];
    Check(instances[i]["class"] == instance.className, "an instance has its class");
    const ordered_json& properties = instances[i]["properties"];
    Check(properties.size() == instance.properties.size(), "an instance has every property");
    auto property = properties.begin();
    for (const auto& [name, value] : instance.properties) {
      Check(property.key() == name, "properties stand in the order in which they were set");
      const bool isMasked = !reportCase.showSecrets && report::IsSecret(name);
      Check(property.value() == (isMasked ? ordered_json(report::kSecretMask) : Expected(value)),
            "a property has its value");
      ++property;
    }
  }
}

void CheckText(const std::string& text, const ReportCase& reportCase) {
  Check(text.ends_with('\n'), "a report ends with a whole line");
  Check(IsValidUtf8(text), "a report is UTF-8");
  const bool isShown = reportCase.showSecrets;
  Check(isShown || text.find(kSecretText) == text.npos, "a masked report holds no secret");
}

// Secrets hold the known text, nothing else does.
void MarkSecrets(ReportCase& reportCase) {
  reportCase.serverName = Without(reportCase.serverName, kSecretText);
  reportCase.serverDescription = Without(reportCase.serverDescription, kSecretText);
  for (cim::StoredInstance& instance : reportCase.instances) {
    for (auto& [name, value] : instance.properties) {
      const auto* const text = std::get_if<std::string>(&NVELKZEV20::TCIMValueContent::Of(value));
      if (text == nullptr) continue;
      value =
          report::IsSecret(name) ? *text + std::string(kSecretText) : Without(*text, kSecretText);
    }
  }
}

}  // namespace

int FuzzReport(const std::uint8_t* data, std::size_t size) {
  ReportCase reportCase = DecodeReport({data, size});
  MarkSecrets(reportCase);
  report::Report report;
  report.server = {reportCase.serverName, reportCase.serverDescription, "orlo"};
  report.instances = reportCase.instances;
  report.equalKeys = cim::FindEqualKeys(reportCase.instances);
  report.queries = 1;
  report.showSecrets = reportCase.showSecrets;

  const std::string json = report::JsonReport(report);
  CheckText(json, reportCase);
  CheckJson(json, reportCase);
  const auto colour = reportCase.colours ? report::Colour::Headings : report::Colour::Never;
  std::string table = report::TableReport(report, colour);
  CheckText(table, reportCase);
  if (reportCase.colours) table = Without(Without(table, "\x1b[1m"), "\x1b[0m");
  Check(!HasControls(table), "a table has no control characters");
  return 0;
}

}  // namespace strake::fuzz
