#pragma once

#include <filesystem>
#include <ios>

#include "console/form1.h"
#include "desktop/extension.h"

namespace zerimo {

/// Keeps the lines that are entered, and the programs that are taken over from the editor, in a text file for each
/// session. A line is in the file before it runs. The files of the last ten sessions are kept, each up to a megabyte.
/// What can't be written is left out without a word.
class LineJournal : public Extension {
 public:
  static constexpr int MostFiles = 10;
  static constexpr std::streamoff MostBytes = 1 << 20;

  /// A file is created in the folder when the first line comes.
  LineJournal(Form1& form1, std::filesystem::path folder);

  /// Adds a line or several.
  void Note(const std::string& text);

 private:
  void Begin();
  void MakeRoom() const;

  std::filesystem::path folder_;
  /// This session's file; empty before its first line.
  std::filesystem::path file_;
};

}  // namespace zerimo
