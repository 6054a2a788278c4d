#include "ratio_reporter.h"

#include <algorithm>
#include <iomanip>

namespace zerimo {

namespace {

/// Our operation may cost this many times the plain one.
constexpr double Allowed = 1.3;

void KeepQuickest(double& kept, double seconds) { kept = kept == 0 ? seconds : std::min(kept, seconds); }

}  // namespace

bool RatioReporter::ReportContext(const Context&) {
  GetOutputStream() << std::left << std::setw(36) << "operation" << std::right << std::setw(14) << "ours a second"
                    << std::setw(16) << "plain a second" << std::setw(12) << "ours/plain" << '\n';
  return true;
}

void RatioReporter::ReportRuns(const std::vector<Run>& runs) {
  for (const Run& run : runs) {
    if (run.run_type != Run::RT_Iteration || run.error_occurred) continue;
    const std::string& full = run.run_name.function_name;
    const std::string name = full.substr(full.find('/') + 1);
    const double seconds = run.cpu_accumulated_time / static_cast<double>(run.iterations);
    const bool isNew = pairs.count(name) == 0;
    if (isNew) order.push_back(name);
    Pair& pair = pairs[name];
    KeepQuickest(full.rfind("ours/", 0) == 0 ? pair.Ours : pair.Plain, seconds);
  }
}

void RatioReporter::Finalize() {
  std::ostream& out = GetOutputStream();
  for (const std::string& name : order) {
    const Pair& pair = pairs[name];
    if (pair.Ours == 0 || pair.Plain == 0) continue;
    const double ratio = pair.Ours / pair.Plain;
    out << std::left << std::setw(36) << name << std::right << std::fixed << std::setprecision(0) << std::setw(14)
        << 1 / pair.Ours << std::setw(16) << 1 / pair.Plain << std::setprecision(2) << std::setw(12) << ratio
        << (ratio > Allowed ? "  above the limit" : "") << '\n';
  }
}

}  // namespace zerimo
