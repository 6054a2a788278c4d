#pragma once

#include "files/editor.h"
#include "files/files_context.h"
#include "files/help_pages.h"
#include "files/pictures.h"
#include "files/program_files.h"
#include "files/saving.h"

namespace zerimo {

/// Program files, the editor, saving, pictures and slides, and the help pages.
class Files {
 public:
  Files(const FilesContext& context, Surface& picture1)
      : pictures(context, picture1),
        programFiles(context, pictures),
        editor(context),
        saving(context, programFiles),
        helpPages(context) {}

  /// Binds the primitives of this room to their actions.
  void Bind() {
    pictures.Bind();
    programFiles.Bind();
    editor.Bind();
    helpPages.Bind();
  }

  Pictures pictures;
  ProgramFiles programFiles;
  Editor editor;
  Saving saving;
  HelpPages helpPages;
};

}  // namespace zerimo
