#pragma once

#include <string>

#include "base/services.h"
#include "controls/form_controls.h"
#include "files/folders.h"
#include "files/pictures.h"
#include "interpreter/dispatch.h"
#include "interpreter/lowering.h"
#include "interpreter/program_store.h"
#include "interpreter/variables.h"

namespace zerimo {

/// Program files (.ZRM): `LOAD` and `SHOW OPEN`.
class ProgramFiles {
 public:
  ProgramFiles(ProgramStore& programStore, Lowering& repeatLowering, Variables& allVariables,
               FormControls& formControls, Services& desktop, Dispatch& dispatcher, const Folders& theFolders,
               Pictures& thePictures);

  /// Whether a name ends in .ZRM, in any case.
  static bool IsProgramName(const std::string& name);

  /// Sets the work of `LOAD`.
  void Bind();

  /// Adds a file to the editor's text and to the store; the argument is the path without extension. A failure is told
  /// in a box.
  void FileLoad(const std::string& nameOfTheFileWithoutExtension);

  /// Adds the statements of a file to the store. Fails (file, subscript), and what was filled stays.
  void MakeArray(const std::string& file);

  /// `SHOW OPEN`, under the skip rule.
  void ShowOpen();

  /// The bytes of the file read last.
  std::string LoadedText;
  /// The trimmed argument of the last `LOAD`.
  std::string CurrentFileName;

 private:
  void Load(PrimitiveCall& call);
  void OpenProgram(const std::string& name);
  void OpenPicture(const std::string& name);

  ProgramStore& store_;
  Lowering& lowering_;
  Variables& variables_;
  FormControls& controls_;
  Services& services_;
  Dispatch& dispatch_;
  const Folders& folders_;
  Pictures& pictures_;
};

}  // namespace zerimo
