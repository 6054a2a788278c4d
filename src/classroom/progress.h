#pragma once

#include <QString>
#include <ostream>

namespace zerimo::classroom {

/// Reports how far a class run has come: on a terminal in one line that changes, elsewhere in a line for each program.
class Progress {
 public:
  Progress(std::ostream& stream, bool onTerminal) : output_(stream), terminal_(onTerminal) {}

  /// `words` are about the program that has just ended.
  void Tell(std::size_t done, std::size_t all, const QString& words);
  /// A last line that stays.
  void Close(const QString& words);

  /// Whether standard error is a terminal.
  static bool StandardErrorIsTerminal();

 private:
  void WriteOver(const QString& line);

  std::ostream& output_;
  bool terminal_;
};

}  // namespace zerimo::classroom
