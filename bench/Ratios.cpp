#include "bench/Ratios.h"

#include "bench/Groups.h"

#include <array>
#include <iomanip>
#include <unistd.h>
#include <utility>

namespace strake::bench {

RatioReporter::RatioReporter()
    : ConsoleReporter(isatty(STDOUT_FILENO) != 0 ? OO_ColorTabular : OO_Tabular) {}

void RatioReporter::ReportRuns(const std::vector<Run>& runs) {
  ConsoleReporter::ReportRuns(runs);
  for (const Run& run : runs) {
    const bool isMedian = run.aggregate_name == "median";
    const bool isOnly = run.run_type == Run::RT_Iteration && run.repetitions <= 1;
    if (isMedian || isOnly) {
      fMedians[run.run_name.function_name] = run.GetAdjustedRealTime();
    }
  }
}

void RatioReporter::PrintRatios(std::ostream& out) const {
  const auto ratio = [&](const std::string& what, const std::string& floor) {
    const auto above = fMedians.find(what);
    const auto below = fMedians.find(floor);
    if (above == fMedians.end() || below == fMedians.end()) return;
    out << std::left << std::setw(24) << what << std::setw(30) << floor << std::right << std::fixed
        << std::setprecision(1) << std::setw(10) << above->second << " us" << std::setw(10)
        << below->second << " us  " << std::setprecision(3) << above->second / below->second
        << '\n';
  };
  out << "\nmedians, beside their floors, and the ratio\n";
  for (const auto& [what, floors] :
       {std::pair("Query/", std::array{"MadeFloor/", "Floor/"}),
        std::pair("Silent/", std::array{"SilentMadeFloor/", "SilentFloor/"})}) {
    for (const char* const floor : floors) {
      for (const Group& group : Groups()) {
        ratio(what + std::string(group.name), floor + std::string(group.name));
      }
    }
  }
  const auto few = fMedians.find("Scale/4");
  const auto many = fMedians.find("Scale/255");
  if (few != fMedians.end() && many != fMedians.end()) {
    out << "cost an SP at 255 beside that at 4: " << std::setprecision(3)
        << (many->second / 255) / (few->second / 4) << '\n';
  }
}

}  // namespace strake::bench
