#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "files/files_context.h"
#include "files/pictures.h"
#include "interpreter/store.h"

namespace zerimo {

/// Adds the statements of a program's text to the store, from line `number` on, after what the lines hold; `number`
/// moves on with the lines. A line ends with a carriage return; several in a row count as one, and one at the very
/// beginning does not count. Of the other characters only the codes 32 to 126 are kept. Fails (subscript) beyond line
/// 2000, and what was filled stays.
void FillStore(Store& store, std::string_view text, std::int16_t& number);

/// Program files (.ZRM): `LOAD` and `SHOW OPEN`.
/// Behaviour: docs/interpreter.md, "Where programs come in".
class ProgramFiles {
 public:
  ProgramFiles(const FilesContext& context, Pictures& pictures);

  /// Whether a name ends in .ZRM, in any case.
  static bool IsProgramName(const std::string& name);

  /// Binds `LOAD` to its action.
  void Bind();

  /// Adds a file to the editor's text and to the store; the argument is the path without extension. A failure is
  /// reported in a box.
  void FileLoad(const std::string& nameOfTheFileWithoutExtension);

  /// Adds the statements of a file to the store. Fails (file, subscript), and what was filled stays.
  void MakeArray(const std::string& file);

  /// `SHOW OPEN`, under the skip rule.
  void ShowOpen();

  /// The bytes of the file read last.
  std::string LoadedText;
  /// The trimmed input of the last `LOAD`.
  std::string CurrentFileName;

 private:
  void Load(PrimitiveCall& call);
  void OpenProgram(const std::string& name);
  void OpenPicture(const std::string& name);

  FilesContext context_;
  Pictures& pictures_;
};

}  // namespace zerimo
