#include "report/TableReport.h"

#include "report/InstanceText.h"
#include "text/TextEscape.h"
#include "text/Utf8.h"

#include <algorithm>

namespace strake::report {
namespace {

constexpr std::string_view kGap = "  ";
constexpr std::string_view kTitleIndent = "  ";
constexpr std::string_view kRowIndent = "    ";

std::string Counted(std::size_t count, const std::string& one, const std::string& many) {
  return std::to_string(count) + " " + (count == 1 ? one : many);
}

// Where an instance stands in the report.
struct Place {
  std::optional<int> node;  // no node stands before all others
  std::size_t classRank = 0;
  const cim::StoredInstance* instance = nullptr;
};

std::size_t ClassRank(const cim::SchemaClass& schema) {
  const auto classes = cim::SchemaClasses();
  const auto found = std::ranges::find(classes, schema.name, &cim::SchemaClass::name);
  return static_cast<std::size_t>(found - classes.begin());
}

std::vector<Place> Arrange(std::span<const cim::StoredInstance> instances) {
  std::vector<Place> places;
  places.reserve(instances.size());
  for (const cim::StoredInstance& instance : instances) {
    places.push_back({SourceNode(instance), ClassRank(*instance.schema), &instance});
  }
  std::stable_sort(places.begin(), places.end(), [](const Place& one, const Place& other) {
    return one.node != other.node ? one.node < other.node : one.classRank < other.classRank;
  });
  return places;
}

class TableWriter {
 public:
  TableWriter(const Report& report, const Layout& layout, const Sink& sink)
      : fReport(&report), fLayout(layout), fSink(&sink) {}

  void Write() {
    WriteServer();
    const std::vector<Place> places = Arrange(fReport->Instances());
    const std::span<const Place> all(places);
    for (std::size_t index = 0; index < all.size();) {
      const std::size_t end = EndOfGroup(all, index);
      WriteGroup(all.subspan(index, end - index));
      index = end;
      Flush();
    }
    WriteSummary();
    Flush();
  }

 private:
  static std::size_t EndOfGroup(std::span<const Place> places, std::size_t begin) {
    std::size_t end = begin;
    while (end < places.size() && places[end].node == places[begin].node) {
      ++end;
    }
    return end;
  }

  void WriteHeading(std::string_view indent, const std::string& text) {
    fOut += indent;
    fOut += fLayout.colour == Colour::Headings ? "\x1b[1m" + text + "\x1b[0m" : text;
    fOut += '\n';
  }

  void WriteServer() {
    const ServerFacts& server = fReport->Facts().server;
    std::string text = text::EscapeForPeople(server.name) + " (" + server.kind + ")";
    if (!server.description.empty()) {
      text += ": " + text::EscapeForPeople(server.description);
    }
    WriteHeading("", text);
  }

  void WriteGroup(std::span<const Place> group) {
    fOut += '\n';
    if (group.front().node) {
      ++fServiceProcessors;
      WriteHeading("", "Service processor " + std::to_string(*group.front().node));
    } else {
      WriteHeading("", "No service processor");
    }
    const auto isSensor = [](const Place& place) { return IsSensor(*place.instance); };
    const auto sensors = std::find_if(group.begin(), group.end(), isSensor);
    const auto rest = std::find_if_not(sensors, group.end(), isSensor);
    WriteBlocks({group.begin(), sensors});
    if (sensors != rest) {
      WriteSensors({sensors, rest});
    }
    WriteBlocks({rest, group.end()});
  }

  void WriteBlocks(std::span<const Place> places) {
    for (const Place& place : places) {
      WriteBlock(*place.instance);
    }
  }

  void WriteBlock(const cim::StoredInstance& instance) {
    fOut += '\n';
    WriteHeading(kTitleIndent, InstanceTitle(instance));
    const std::vector<Row> rows = InstanceRows(instance);
    std::size_t width = 0;
    for (const Row& row : rows) {
      width = std::max(width, text::CountCodePoints(row.label));
    }
    for (const Row& row : rows) {
      fOut += kRowIndent;
      fOut += row.label;
      if (!row.value.empty()) {
        Pad(width - text::CountCodePoints(row.label));
        fOut += kGap;
        fOut += row.value;
      }
      fOut += '\n';
    }
  }

  void WriteSensors(std::span<const Place> sensors) {
    fOut += '\n';
    WriteHeading(kTitleIndent, InstanceTitle(*sensors.front().instance));
    struct SensorRow {
      std::string name;
      std::string reading;
      std::string unit;
    };
    std::vector<SensorRow> rows;
    rows.reserve(sensors.size());
    std::size_t nameWidth = 0;
    std::size_t readingWidth = 0;
    for (const Place& place : sensors) {
      const Sensor& sensor = *fReport->FindSensor(*place.instance);
      rows.push_back(
          {text::EscapeForPeople(sensor.name), ReadingForPeople(sensor), UnitForPeople(sensor)});
      nameWidth = std::max(nameWidth, text::CountCodePoints(rows.back().name));
      readingWidth = std::max(readingWidth, text::CountCodePoints(rows.back().reading));
    }
    for (const SensorRow& row : rows) {
      fOut += kRowIndent;
      fOut += row.name;
      Pad(nameWidth - text::CountCodePoints(row.name));
      fOut += kGap;
      Pad(readingWidth - text::CountCodePoints(row.reading));
      fOut += row.reading;
      fOut += row.unit.empty() ? "" : " " + row.unit;
      fOut += '\n';
    }
  }

  void WriteSummary() {
    fOut += '\n';
    if (fReport->Instances().empty()) {
      fOut += "No instances were collected.\n";
    }
    fOut += Counted(fReport->Instances().size(), "instance", "instances") + ", " +
            Counted(fReport->Facts().queries, "query", "queries") + ", " +
            Counted(fServiceProcessors, "service processor", "service processors") + "\n";
    for (const Finding& finding : fReport->Findings()) {
      fOut += std::string(SeverityName(finding.severity)) + ": " + finding.text + "\n";
    }
  }

  void Flush() {
    (*fSink)(fOut);
    fOut.clear();
  }

  void Pad(std::size_t count) { fOut.append(count, ' '); }

  const Report* fReport;
  Layout fLayout;
  const Sink* fSink;
  std::size_t fServiceProcessors = 0;
  std::string fOut;
};

}  // namespace

void WriteTable(const Report& report, const Layout& layout, const Sink& sink) {
  TableWriter(report, layout, sink).Write();
}

}  // namespace strake::report
