#pragma once

#include <QString>
#include <QStringList>
#include <cstddef>
#include <span>
#include <vector>

#include "classroom/pupil.h"

namespace zerimo::classroom {

/// Two programs that are alike but for their names, numbers, texts, colours and the order of their lines.
struct AlikePair {
  /// Their places in the order in which they were added.
  std::size_t One = 0;
  std::size_t Other = 0;
  /// The share of the shorter program's lines that the other one has too, in per cent.
  double Percent = 0;
  /// How many lines that is.
  std::size_t Lines = 0;
};

/// A line without what someone who copies would change: "FD 10" and "FD :SIZE" are one.
QString Bare(const QString& line);

/// Finds the programs that are alike among any number of them. It keeps four bytes of each line.
class AlikeSearch {
 public:
  /// A smaller share, in per cent, means nothing.
  static constexpr double LeastAlike = 80;
  /// Programs with fewer lines of their own are alike by chance.
  static constexpr std::size_t FewestLines = 6;
  /// So many programs are compared with each other. Of more, two are compared if they have all their lines in common,
  /// or one line that no more than `FewPrograms` have.
  static constexpr std::size_t MostComparedWithAll = 1000;
  static constexpr std::size_t FewPrograms = 10;
  /// So many pairs are reported.
  static constexpr std::size_t MostPairs = 1000;

  /// Lines of `given`, a program that everyone was given, do not count.
  explicit AlikeSearch(const QString& given);

  void Add(const PupilRun& run);
  /// The most alike first, and of those the longest.
  std::vector<AlikePair> Pairs() const;
  /// The lines of one program that the other one has too.
  QStringList SharedLines(const PupilRun& one, const PupilRun& other) const;

 private:
  using Prints = std::vector<quint32>;

  /// The prints of the lines that are a program's own, in ascending order.
  Prints OwnPrints(const PupilRun& run) const;
  std::span<const quint32> PrintsOf(std::size_t program) const;
  void AddPair(std::size_t one, std::size_t other, std::vector<AlikePair>& pairs) const;

  Prints given_;
  /// Of all programs, one after the other; `ends_` has where each ends.
  Prints prints_;
  std::vector<std::size_t> ends_;
};

}  // namespace zerimo::classroom
