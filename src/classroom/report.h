#pragma once

#include <QString>
#include <vector>

#include "classroom/language.h"
#include "classroom/pupil.h"
#include "classroom/similarity.h"

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
  /// How many programs there were to run; more than `Runs` if it was interrupted. 0 if nobody counted.
  std::size_t Wanted = 0;
  /// The title and words of the task, or empty.
  QString TaskTitle;
  QString TaskWords;
  std::vector<AlikePair> Alike;
  const Language* Words = &English;
};

}  // namespace zerimo::classroom
