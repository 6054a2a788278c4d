#pragma once

#include <cstdint>
#include <vector>

#include "classroom/pupil.h"
#include "interpreter/store.h"

namespace zerimo::classroom {

/// Bytes of a file that is run.
inline constexpr std::uintmax_t LargestProgram = std::uintmax_t{4} << 20;

/// The lines of a program's file beside what the store made of them.
class ProgramSource {
 public:
  /// What is kept for the report.
  static constexpr int MostLines = 1000;
  static constexpr qsizetype LongestLine = 500;

  /// `program` is the text of the file.
  explicit ProgramSource(const QString& program);

  /// Adds what the store has, which is as it is after the run.
  void Match(const Store& store);

  std::vector<SourceLine> Lines;
  bool IsCut = false;

  /// The line of the file that a line of the matched store came from, or 0.
  int LineOf(int storeLine) const;

 private:
  /// How many lines of the store, from `first` on, a REPEAT became; 0 if they are not from one.
  static int LengthOfRepeat(const Store& store, int first);

  /// From the line of the store to that of the file.
  std::vector<int> fileLines_;
};

/// The text of a file for people: read as UTF-8 if it is valid, otherwise as single bytes.
QString TextOfProgram(const std::string& bytes);

}  // namespace zerimo::classroom
