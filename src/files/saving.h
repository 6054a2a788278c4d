#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "files/files_context.h"
#include "files/program_files.h"

namespace zerimo {

/// The name of a file with a text that nobody has saved; a second one is called Rescued2.ZRM.
constexpr const char* RescuedName = "Rescued.ZRM";

/// What leaves the editor and the store: the editor's text in .ZRM files, and the procedures in a box.
class Saving {
 public:
  Saving(const FilesContext& context, const ProgramFiles& programFiles)
      : context_(context), programFiles_(programFiles) {}

  /// `SHOW SAVEAS`, under the skip rule.
  void ShowSaveAs();

  /// Writes the filtered text of the editor and a line end under the full name given. Fails (file, overflow).
  void SaveAs(const std::string& saveAsFileName);

  /// F10 in the editor: asks for a name and saves to the current folder. Not under the skip rule.
  void SaveFromEditor();

  /// `SHOW PROCEDURE`: the user's procedures in a box.
  void ShowProcedure();

  /// Writes the editor's text as it is to Rescued.ZRM, in `AppFolder` or else in the first of the other folders
  /// where that works; these are created if need be. Returns the file, or nothing if there is no text or it could not
  /// be written anywhere. Never fails.
  std::optional<std::filesystem::path> RescueEditorText(const std::vector<std::filesystem::path>& others = {}) const;

 private:
  FilesContext context_;
  const ProgramFiles& programFiles_;
};

/// Where a rescue goes if `AppFolder` can't be written: the folder of this program's state in the user's home, and a
/// folder with a new name among the temporary files. An empty path is left out.
std::vector<std::filesystem::path> FoldersForRescue(const std::filesystem::path& stateFolder,
                                                    const std::filesystem::path& temporaryFolder);

}  // namespace zerimo
