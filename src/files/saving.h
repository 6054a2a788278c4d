#pragma once

#include <string>

#include "files/files_context.h"
#include "files/program_files.h"

namespace zerimo {

/// Writes the editor's text to .ZRM files.
class Saving {
 public:
  Saving(const FilesContext& context, const ProgramFiles& programFiles)
      : context_(context), programFiles_(programFiles) {}

  /// `SHOW SAVEAS`, under the skip rule.
  void ShowSaveAs();

  /// Writes the filtered text of the editor and a line end under the full name given. Fails (file, overflow).
  void SaveAs(const std::string& saveAsFileName);

  /// F10 in the editor: asks for a name and saves in the current folder. Not under the skip rule.
  void SaveFromEditor();

  /// `SHOW PROCEDURE`: the user's procedures in a box.
  void ShowProcedure();

  /// The editor's text as it stands to Rescued.ZRM in `AppFolder`, if there is any. Tells whether a file was written;
  /// never fails.
  bool RescueEditorText() const;

 private:
  FilesContext context_;
  const ProgramFiles& programFiles_;
};

}  // namespace zerimo
