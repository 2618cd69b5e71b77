#include "report/TableReport.h"

#include "report/FindingTable.h"
#include "report/FirstScreen.h"
#include "report/InstanceText.h"
#include "report/ProcessorParts.h"
#include "report/RowList.h"
#include "report/SensorTable.h"
#include "report/SensorTally.h"
#include "report/ServerText.h"
#include "report/TableText.h"

namespace strake::report {
namespace {

constexpr std::size_t kTitleIndent = 2;
constexpr std::size_t kRowIndent = 4;
// Of more service processors the silent sensors are told in one line.
constexpr std::size_t kMostSilentLines = 16;

using Parts = std::vector<ProcessorPart>;

void WriteBlocks(std::span<const cim::StoredInstance* const> instances, TableText& out) {
  for (const cim::StoredInstance* const instance : instances) {
    out.Blank();
    Cell title{InstanceTitle(*instance), Shade::Heading};
    out.MarkIf(*instance, title);
    out.Line(kTitleIndent, title);
    std::vector<Cells> rows;
    for (const Row& row : InstanceRows(*instance)) {
      rows.push_back({{row.label}, ValueCell(row, out)});
    }
    out.Rows(kRowIndent, rows, Columns(2));
  }
}

void WritePart(const ProcessorPart& part, const Layout& layout, TableText& out) {
  if (part.answer == Answer::Yes && part.instances.empty() && part.sensors.empty()) {
    return;
  }
  out.Blank();
  out.Line(
      0, part.number ? "Service processor " + std::to_string(*part.number) : "No service processor",
      Shade::Heading);
  if (part.answer != Answer::Yes) {
    out.Blank();
    out.Line(kTitleIndent, AnswerText(part.answer),
             part.answer == Answer::No ? Shade::Warning : Shade::None);
  }
  WriteBlocks(part.ComputerSystems(), out);
  if (!part.sensors.empty()) {
    out.Blank();
    WriteSensorTable(part.sensors, layout.columns, out);
  }
  WriteBlocks(part.OtherInstances(), out);
}

void WriteFindings(std::span<const Finding> findings, TableText& out) {
  if (!findings.empty()) {
    out.Blank();
    out.Line(0, "Findings", Shade::Heading);
    WriteFindingRows(findings, out);
  }
}

// "2 of 42 sensors on SP 1 did not answer".
void WriteSilentSensors(const Parts& parts, TableText& out) {
  const auto write = [&out](std::size_t silent, std::size_t all, const std::string& where) {
    out.Line(0,
             std::to_string(silent) + " of " + Counted(all, "sensor", "sensors") + " on " + where +
                 " did not answer",
             Shade::Warning);
  };
  std::size_t processors = 0;
  std::size_t restSilent = 0;
  std::size_t restAll = 0;
  for (const ProcessorPart& part : parts) {
    const std::size_t silent = TallyOf(part.sensors).silent;
    if (silent == 0) {
      continue;
    }
    if (++processors <= kMostSilentLines) {
      write(silent, part.sensors.size(), ProcessorLabel(part.number, "no SP"));
    } else {
      restSilent += silent;
      restAll += part.sensors.size();
    }
  }
  if (restSilent > 0) {
    write(restSilent, restAll,
          Counted(processors - kMostSilentLines, "further service processor",
                  "further service processors"));
  }
}

void WriteSummary(const Report& report, const Parts& parts, TableText& out) {
  const std::size_t silent = CountNumbered(parts, Answer::No);
  const std::string all = Counted(CountNumbered(parts), "service processor", "service processors");
  out.Blank();
  if (report.Instances().empty()) {
    out.Line(0, "No instances were collected.");
  }
  if (silent > 0) {
    out.Line(0, std::to_string(silent) + " of " + all + " did not answer", Shade::Warning);
  }
  WriteSilentSensors(parts, out);
  out.Line(0, Counted(report.Instances().size(), "instance", "instances") + ", " +
                  Counted(report.Facts().queries, "query", "queries") + ", " + all);
}

}  // namespace

void WriteTable(const Report& report, const Layout& layout, const Sink& sink) {
  TableText out(layout, sink);
  const Parts parts = PartsOf(report, layout.order);
  if (layout.header) {
    out.Line(0, ServerForPeople(report.Facts().server), Shade::Heading);
    WriteFirstScreen(report, parts, out);
    for (const ProcessorPart& part : parts) {
      WritePart(part, layout, out);
    }
    // With nothing between, they would be the first screen's once more.
    if (!report.Instances().empty() || !report.Sensors().empty()) {
      WriteFindings(report.Findings(), out);
    }
    WriteSummary(report, parts, out);
  } else {
    WriteRowList(report, parts, out);
  }
  out.Flush();
}

}  // namespace strake::report
