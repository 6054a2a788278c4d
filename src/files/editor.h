#pragma once

#include "controls/form_controls.h"
#include "interpreter/dispatch.h"
#include "interpreter/lowering.h"
#include "interpreter/program_store.h"

namespace zerimo {

/// The editor `Text2`: `EDIT` and the fold of its text into the store.
class Editor {
 public:
  Editor(ProgramStore& programStore, Lowering& repeatLowering, FormControls& formControls, Dispatch& dispatcher)
      : store_(programStore), lowering_(repeatLowering), controls_(formControls), dispatch_(dispatcher) {}

  /// Sets the work of `EDIT`.
  void Bind();

  /// F2: back to the split screen, tidies the editor's text and fills the store from it. Not under the skip rule.
  void Fold();

  /// Fills the store from the editor's text. Fails (subscript) beyond line 2000.
  void FillFiledataArrayFromEdit();

 private:
  ProgramStore& store_;
  Lowering& lowering_;
  FormControls& controls_;
  Dispatch& dispatch_;
};

}  // namespace zerimo
