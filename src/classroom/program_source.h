#pragma once

#include <vector>

#include "classroom/pupil.h"
#include "interpreter/store.h"

namespace zerimo::classroom {

/// The lines of a program's file beside what the store made of them.
class ProgramSource {
 public:
  /// What is kept for the report.
  static constexpr int MostLines = 1000;
  static constexpr qsizetype LongestLine = 500;

  /// `program` is the text of the file; the store is as it stands after the run.
  ProgramSource(const QString& program, const Store& store);

  std::vector<SourceLine> Lines;
  bool IsCut = false;

  /// The line of the file that a line of the store came from, or 0.
  int LineOf(int storeLine) const;

 private:
  void Match(const Store& store);
  /// The store's lines from `first` on that a REPEAT became; 0 of them if there is none.
  static int LengthOfRepeat(const Store& store, int first);

  /// From the line of the store to that of the file.
  std::vector<int> fileLines_;
};

/// The text of a file for people: UTF-8 if it is that, single bytes otherwise.
QString TextOfProgram(const std::string& bytes);

}  // namespace zerimo::classroom
