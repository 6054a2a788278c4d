#pragma once

#include <QString>
#include <cstddef>
#include <vector>

#include "classroom/likeness.h"
#include "classroom/pupil.h"

namespace zerimo::classroom {

/// Two programs that are alike but for their names, numbers, texts, colours and the order of their lines.
struct AlikePair {
  /// Their places in the order in which they were added.
  std::size_t One = 0;
  std::size_t Other = 0;
  Likeness Alike;
};

/// A line that two programs have in common: where it is in each, from 1, and how it is written there.
struct SharedLine {
  int Number = 0;
  QString Text;
  int OtherNumber = 0;
  QString OtherText;

  bool operator==(const SharedLine&) const = default;
};

/// Finds the programs that are alike among any number of them. It keeps sixteen bytes of each line.
class AlikeSearch {
 public:
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
  /// The lines that two programs have in common, in the order of the first one.
  std::vector<SharedLine> SharedLines(const PupilRun& one, const PupilRun& other) const;

 private:
  ProgramPrints PrintsOf(std::size_t program) const;
  void AddPair(std::size_t one, std::size_t other, std::vector<AlikePair>& pairs) const;

  /// Prints of lines in ascending order.
  std::vector<quint32> given_;
  /// Of all programs, one after the other; `ends_` has where each ends.
  std::vector<quint32> prints_;
  std::vector<LinePrint> lines_;
  std::vector<std::size_t> ends_;
};

}  // namespace zerimo::classroom
