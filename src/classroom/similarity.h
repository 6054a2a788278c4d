#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "classroom/pupil.h"

namespace zerimo::classroom {

/// Two programs that are alike but for their names, numbers, texts, colours and the order of their lines.
struct AlikePair {
  /// Their places in the list of runs.
  std::size_t One = 0;
  std::size_t Other = 0;
  /// The share of the shorter program's lines that the other one has too, in per cent.
  double Percent = 0;
  /// The lines of the first one that match.
  QStringList Lines;
};

/// A smaller share means nothing.
inline constexpr double LeastAlike = 80;
/// Programs with fewer lines of their own are alike by chance.
inline constexpr int FewestLines = 6;

/// The pairs, the most alike first. Lines of `given`, a program that everyone was given, do not count.
std::vector<AlikePair> AlikePairs(const std::vector<PupilRun>& runs, const QString& given);

/// A line without what someone who copies would change: "FD 10" and "FD :SIZE" are one.
QString Bare(const QString& line);

}  // namespace zerimo::classroom
