#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "classroom/language.h"
#include "classroom/pupil.h"
#include "classroom/similarity.h"

namespace zerimo::classroom {

/// Where a report shows a pupil.
struct PupilLink {
  QString Name;
  /// "#p7", or "report-3.html#p7" from another page.
  QString Address;
};

/// Two programs that are alike.
struct AlikePrograms {
  PupilLink One;
  PupilLink Other;
  double Percent = 0;
  std::vector<SharedLine> Lines;
};

/// A part of a class that has fewer programs than it should, or none at all.
struct PartialPart {
  QString Name;
  std::size_t Programs = 0;
  /// 0 if nobody knows.
  std::size_t Wanted = 0;
};

/// The parts of a class that are not there.
struct MissingParts {
  std::vector<int> Indexes;
  /// How many parts the class has.
  int Count = 0;
};

/// A class run as a whole.
struct Report {
  QString Folder;
  /// When it was made, as text.
  QString Made;
  QString Version;
  /// Nothing if they are not the same for all programs.
  std::optional<RunLimits> Limits;
  /// In the order of the report.
  std::vector<PupilRun> Runs;
  /// How many programs there were to run; more than `Runs` if it was interrupted. 0 if nobody counted.
  std::size_t Wanted = 0;
  /// The parts that lack programs, of a report that was made of parts.
  std::vector<PartialPart> Partial;
  std::vector<MissingParts> Missing;
  bool IsOfTornParts() const { return !Partial.empty() || !Missing.empty(); }
  /// The title and words of the task, or empty.
  QString TaskTitle;
  QString TaskWords;
  std::vector<AlikePrograms> Alike;
  const Language* Words = &English;
};

}  // namespace zerimo::classroom
