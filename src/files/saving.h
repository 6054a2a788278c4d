#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

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

  /// Writes the editor's text as it stands to Rescued.ZRM, in `AppFolder` or else in the first of other folders that
  /// takes it; these are made if need be. The file, or nothing if there is no text or no folder took it. Never fails.
  std::optional<std::filesystem::path> RescueEditorText(const std::vector<std::filesystem::path>& others = {}) const;

 private:
  FilesContext context_;
  const ProgramFiles& programFiles_;
};

/// Where a rescue goes that `AppFolder` does not take: the folder of this program's state for the user whose home it
/// is, and a folder with a new name among the temporary files. An empty path is left out.
std::vector<std::filesystem::path> FoldersForRescue(const std::filesystem::path& stateFolder,
                                                    const std::filesystem::path& temporaryFolder);

}  // namespace zerimo
