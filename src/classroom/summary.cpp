#include "classroom/summary.h"

#include "batch/memory_limit.h"
#include "classroom/record.h"

namespace zerimo::classroom {

namespace {

template <typename Number>
Json LimitOrNull(Number limit) {
  return limit == 0 ? Json() : Json(limit);
}

Json LimitsOf(const RunLimits& limits) {
  return {{"seconds", LimitOrNull(limits.Seconds)},
          {"steps", LimitOrNull(limits.Steps)},
          {"megabytes", LimitOrNull(batch::MemoryLimit::IsThere() ? limits.Memory : 0)}};
}

}  // namespace

QByteArray SummaryOf(const Report& report) {
  Json pupils = Json::array();
  for (const PupilRun& run : report.Runs) pupils.push_back(JsonOf(run));
  return QByteArray::fromStdString(Indented({{"format", 1},
                                             {"version", 2},
                                             {"program", "zerimo-batch " + report.Version.toStdString()},
                                             {"made", ValueOf(report.Made)},
                                             {"folder", ValueOf(report.Folder)},
                                             {"limits", LimitsOf(report.Limits)},
                                             {"pupils", pupils}}));
}

}  // namespace zerimo::classroom
