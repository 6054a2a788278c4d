#pragma once

#include <QSet>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "classroom/findings/listing.h"
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

/// The procedure that starts a program for which there is no session.
struct FirstCall {
  /// Empty if there is none to call.
  std::string Procedure;
  /// Why there is none, or why it is not the one of the file's name; or empty.
  std::string Note;
};

/// The procedures of a program, as they are in the store once it is loaded.
class ProgramOutline {
 public:
  explicit ProgramOutline(std::string_view programText);

  /// The procedure of the file's name; otherwise the last one that no other of the program's procedures calls. One that
  /// needs inputs does not count. `name` is the file's name without its ending.
  FirstCall FirstCallOf(std::string_view name) const;

  /// The procedure that stands for PROGRAM, with inputs or without: that of the file's name, otherwise the last one
  /// that no other calls. Empty if there is none.
  std::string MainProcedure(std::string_view name) const;

  bool Has(const QString& procedure) const;

 private:
  struct Procedure {
    QString Name;
    bool NeedsInputs = false;
    /// The words of its body, its own name left out.
    QSet<QString> Words;
  };

  bool IsCalledByAnother(const Procedure& one) const;

  std::vector<Procedure> procedures_;
};

}  // namespace zerimo::classroom
