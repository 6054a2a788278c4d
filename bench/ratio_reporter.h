#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace zerimo {

/// Prints the benchmarks in pairs: `ours/NAME` beside `plain/NAME`, in operations a second, and how many times as long
/// our operation takes. Of several repetitions the quickest counts, since other programs on the machine disturbed it
/// least.
class RatioReporter : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context& context) override;
  void ReportRuns(const std::vector<Run>& runs) override;
  void Finalize() override;

 private:
  struct Pair {
    /// Seconds for one operation; 0 if there was no such benchmark.
    double Ours = 0;
    double Plain = 0;
  };

  std::vector<std::string> order;
  std::map<std::string, Pair> pairs;
};

}  // namespace zerimo
