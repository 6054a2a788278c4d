#pragma once

#include "files/files_context.h"

namespace zerimo {

/// The editor `Text2`: `EDIT`, and the fold of its text into the store.
/// Behaviour: docs/interpreter.md, "The fold (F2 in the editor)".
class Editor {
 public:
  explicit Editor(const FilesContext& context) : interpreter_(context.interpreter), controls_(context.controls) {}

  /// Binds `EDIT` to its action.
  void Bind();

  /// F2: goes back to the split screen, tidies the editor's text and fills the store from it. Not under the skip rule.
  void Fold();

  /// Fills the store from the editor's text. Fails (subscript) beyond line 2000.
  void FillFiledataArrayFromEdit();

 private:
  Interpreter& interpreter_;
  Controls& controls_;
};

}  // namespace zerimo
