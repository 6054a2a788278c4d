#pragma once

#include <QString>
#include <vector>

#include "classroom/pupil.h"

namespace zerimo::classroom {

/// A class run as a whole.
struct Report {
  QString Folder;
  /// When it was made, as text.
  QString Made;
  QString Version;
  RunLimits Limits;
  /// In the order of the report.
  std::vector<PupilRun> Runs;
};

}  // namespace zerimo::classroom
