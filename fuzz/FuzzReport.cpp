#include "fuzz/Check.h"
#include "fuzz/Harnesses.h"
#include "fuzz/ReportBytes.h"
#include "fuzz/ReportSettings.h"
#include "report/CimXmlReport.h"
#include "report/CsvReport.h"
#include "report/Formats.h"
#include "report/HtmlReport.h"
#include "report/InstanceText.h"
#include "report/JsonReport.h"
#include "report/MofReport.h"
#include "report/TableReport.h"
#include "tests/support/ReadBack.h"
#include "text/TextEscape.h"

#include <algorithm>
#include <map>
#include <nlohmann/json.hpp>
#include <optional>
#include <regex>
#include <set>
#include <sstream>
#include <stdexcept>
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

bool IsMasked(const cim::StoredProperty& property, const ReportCase& reportCase) {
  return !reportCase.showSecrets && property.schema->role == cim::Role::Secret &&
         !cim::ToText(property.value).empty();
}

ordered_json Expected(const cim::StoredProperty& property, const ReportCase& reportCase) {
  if (IsMasked(property, reportCase)) return report::kSecretMask;
  if (const auto* const text = std::get_if<std::string>(&property.value)) {
    return text::ToValidUtf8(*text);
  }
  const std::string text = cim::ToText(property.value);
  return cim::TypeOf(property.value) == cim::CimType::DateTime ? ordered_json(text)
                                                               : ordered_json::parse(text);
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
    Check(instances[i]["class"] == instance.schema->name, "an instance has its class");
    const ordered_json& properties = instances[i]["properties"];
    Check(properties.size() == instance.properties.size(), "an instance has every property");
    auto property = properties.begin();
    for (const cim::StoredProperty& stored : instance.properties) {
      Check(property.key() == stored.schema->name,
            "properties stand in the order in which they were set");
      Check(property.value() == Expected(stored, reportCase), "a property has its value");
      ++property;
    }
  }
}

// What a spreadsheet would calculate has an apostrophe before it, numbers have none.
std::string AsCell(const std::string& value) {
  static const std::regex number("[+-]?[0-9]+(\\.[0-9]+)?([eE][+-]?[0-9]+)?");
  const bool isFormula = !value.empty() &&
                         std::string_view("=+-@\t\r").find(value.front()) != std::string::npos &&
                         !std::regex_match(value, number);
  return isFormula ? '\'' + value : value;
}

void CheckCell(const std::string& cell, const cim::SchemaProperty& column,
               const cim::StoredInstance& instance, const ReportCase& reportCase) {
  std::string expected;
  for (const cim::StoredProperty& stored : instance.properties) {
    if (stored.schema != &column) continue;
    const ordered_json value = Expected(stored, reportCase);
    expected = value.is_string() ? value.get<std::string>() : value.dump();
  }
  Check(cell == AsCell(expected), "a cell has its property's value");
}

// The table of instances of one class.
void CheckCsv(const std::string& text, const cim::SchemaClass& schema, const ReportCase& reportCase,
              bool hasStates) {
  const auto rows = tests::ReadCsv(text);
  const bool isOfSensors = schema.group == cim::QueryGroup::Sensors;
  const std::size_t further = isOfSensors ? (hasStates ? 3 : 2) : 0;
  Check(!rows.empty() && rows.front().size() == schema.properties.size() + further,
        "a table has a column for each property, and three or two for a sensor's reading");
  Check(rows.size() == reportCase.instances.size() + 1, "a table has a row for each instance");
  for (std::size_t row = 1; row < rows.size(); ++row) {
    for (std::size_t i = 0; i < schema.properties.size(); ++i) {
      CheckCell(rows[row][i], schema.properties[i], reportCase.instances[row - 1], reportCase);
    }
  }
}

void CheckText(const std::string& text, const ReportCase& reportCase) {
  Check(IsValidUtf8(text), "a report is UTF-8");
  const bool isShown = reportCase.showSecrets;
  Check(isShown || text.find(kSecretText) == text.npos, "a masked report holds no secret");
}

// Secrets hold the known text, nothing else does.
void MarkSecrets(ReportCase& reportCase) {
  reportCase.serverName = Without(reportCase.serverName, kSecretText);
  reportCase.serverDescription = Without(reportCase.serverDescription, kSecretText);
  for (cim::StoredInstance& instance : reportCase.instances) {
    for (cim::StoredProperty& property : instance.properties) {
      auto* const text = std::get_if<std::string>(&property.value);
      if (text == nullptr) continue;
      *text = Without(*text, kSecretText);
      if (property.schema->role == cim::Role::Secret && !text->empty()) *text += kSecretText;
    }
  }
}

std::string Written(report::Writer writer, const report::Report& report,
                    const report::Layout& layout = {}) {
  std::string out;
  writer(report, layout, [&out](std::string_view text) { out += text; });
  return out;
}

report::Report ReportOf(const ReportCase& reportCase, const ReportSettings& settings,
                        const std::vector<const cim::SchemaClass*>& classes) {
  return report::Report(
      {.facts = {.server = {reportCase.serverName, reportCase.serverDescription, "orlo"},
                 .version = "1.0.0",
                 .collectedAt = {},
                 .queries = 1,
                 .classes = classes},
       .instances = reportCase.instances,
       .processors = settings.processors,
       .silentSensors = settings.silentSensors,
       .findings = settings.findings},
      reportCase.showSecrets ? report::Secrets::Shown : report::Secrets::Masked, settings.limits);
}

// What one format's reader gives is what another one's gives.
void CheckReadBack(const report::Report& report, const std::string& json) {
  const ordered_json instances = tests::ReadJsonInstances(json);
  const std::string mof = Written(report::WriteMof, report);
  Check(!HasControls(mof), "MOF has no control characters");
  Check(tests::ReadMof(mof).instances.dump() == instances.dump(), "MOF says what JSON says");
  const std::string xml = Written(report::WriteCimXml, report);
  Check(tests::ReadCimXml(xml).dump() == tests::AsXmlHolds(instances).dump(),
        "CIM-XML says what JSON says");
}

// A table of each class.
void CheckTables(const ReportCase& reportCase, const ReportSettings& settings) {
  std::map<const cim::SchemaClass*, ReportCase> cases;
  for (const cim::StoredInstance& instance : reportCase.instances) {
    const auto [place, isNew] = cases.try_emplace(instance.schema);
    if (isNew) place->second.showSecrets = reportCase.showSecrets;
    place->second.instances.push_back(instance);
  }
  for (const auto& [schema, ofClass] : cases) {
    const report::Report report = ReportOf(ofClass, settings, {schema});
    CheckCsv(Written(report::WriteCsv, report), *schema, ofClass, settings.limits.has_value());
  }
}

// The numbers of service processors that the report tells of; none: of those that
// it is not known of.
std::set<std::optional<int>> ProcessorsOf(const report::Report& report,
                                          const ReportSettings& settings) {
  std::set<std::optional<int>> numbers;
  for (const report::Processor& one : settings.processors) numbers.insert(one.number);
  for (const report::SilentSensor& one : settings.silentSensors) numbers.insert(one.sp);
  for (const cim::StoredInstance& one : report.Instances()) {
    numbers.insert(report::SourceNode(one));
  }
  return numbers;
}

void CheckPage(const report::Report& report, const ReportSettings& settings) {
  const std::string html = Written(report::WriteHtml, report);
  Check(!HasControls(html), "a page has no control characters");
  const tests::HtmlPage page = tests::ReadHtml(html);
  const auto count = [&page](std::string_view beginning) {
    return static_cast<std::size_t>(std::ranges::count_if(
        page.tags, [beginning](const std::string& tag) { return tag.starts_with(beginning); }));
  };
  const std::size_t sensors =
      static_cast<std::size_t>(std::ranges::count_if(report.Instances(), report::IsSensor));
  Check(count("tr class=\"sensor\"") == sensors, "a page has a row for each sensor");
  Check(count("tr class=\"silent\"") == settings.silentSensors.size(),
        "a page has a row for each sensor that did not answer");
  Check(count("section class=\"processor\"") == ProcessorsOf(report, settings).size(),
        "a page has a section for each service processor");
  for (const std::string& tag : page.tags) {
    if (tag.starts_with("a href=\"#")) {
      Check(html.find(" id=\"" + tag.substr(9)) != html.npos,
            "a link leads to a place of the page");
    }
  }
}

std::multiset<std::string> LinesOf(const std::string& text) {
  std::multiset<std::string> lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) lines.insert(line);
  return lines;
}

void CheckTable(const report::Report& report, const ReportCase& reportCase,
                const ReportSettings& settings) {
  report::Layout layout = settings.layout;
  layout.colour = reportCase.colours ? report::Colour::Terminal : report::Colour::Never;
  std::string table = Written(report::WriteTable, report, layout);
  Check(table.empty() || table.ends_with('\n'), "a table ends with a whole line");
  CheckText(table, reportCase);
  for (const std::string_view colours :
       {"\x1b[1m", "\x1b[31m", "\x1b[33m", "\x1b[34m", "\x1b[0m"}) {
    if (reportCase.colours) table = Without(table, colours);
  }
  Check(!HasControls(table), "a table has no control characters");
  if (layout.header) {
    auto processors = ProcessorsOf(report, settings);
    processors.erase(std::nullopt);
    Check(table.ends_with(processors.size() == 1
                              ? ", 1 service processor\n"
                              : ", " + std::to_string(processors.size()) + " service processors\n"),
          "a table counts the service processors");
  }
}

void CheckOrders(const report::Report& report) {
  using report::SensorOrder;
  const auto lines = [&report](SensorOrder order) {
    return LinesOf(Written(report::WriteTable, report, {.order = order, .header = false}));
  };
  const std::multiset<std::string> asCollected = lines(SensorOrder::AsCollected);
  for (const auto order : {SensorOrder::ByName, SensorOrder::ByReading, SensorOrder::ByState}) {
    Check(lines(order) == asCollected, "an order changes no line");
  }
}

// Readers throw for what is not well-formed.
void CheckFormats(const ReportCase& reportCase, const ReportSettings& settings) {
  const report::Report report = ReportOf(reportCase, settings, {});
  for (const report::Format& format : report::Formats()) {
    const std::string text = Written(format.write, report);
    Check(text.ends_with('\n'), "a report ends with a whole line");
    CheckText(text, reportCase);
  }
  const std::string json = Written(report::WriteJson, report);
  CheckJson(json, reportCase);
  Check(!HasControls(json), "a JSON report has no control characters");
  CheckReadBack(report, json);
  CheckTables(reportCase, settings);
  CheckPage(report, settings);
  CheckTable(report, reportCase, settings);
  CheckOrders(report);
}

}  // namespace

int FuzzReport(const std::uint8_t* data, std::size_t size) {
  ReportCase reportCase = DecodeReport({data, size});
  MarkSecrets(reportCase);
  try {
    CheckFormats(reportCase, SettingsOf({data, size}, reportCase));
  } catch (const std::exception& error) {
    Check(false, error.what());
  }
  return 0;
}

}  // namespace strake::fuzz
