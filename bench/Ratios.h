// The console's table, and behind it what each figure is beside its floor.
#pragma once

#include <benchmark/benchmark.h>
#include <map>
#include <ostream>
#include <string>
#include <vector>

namespace strake::bench {

class RatioReporter : public benchmark::ConsoleReporter {
 public:
  RatioReporter();

  void ReportRuns(const std::vector<Run>& runs) override;
  // Query beside MadeFloor, which is the measure, and beside Floor; Silent the
  // same; the cost an SP beside that at 4.
  void PrintRatios(std::ostream& out) const;

 private:
  std::map<std::string, double> fMedians;  // by benchmark, in microseconds
};

}  // namespace strake::bench
