#pragma once

#include "base/services.h"
#include "controls/form_controls.h"
#include "files/program_files.h"
#include "files/saving.h"
#include "graphics/surface.h"
#include "interpreter/dispatch.h"
#include "interpreter/program_store.h"

namespace zerimo {

/// The screen modes: `FS`, `SS`, `TS`, `CT`, `HIDE` and `SHOW`. No field holds a mode: it is nothing but which
/// controls are visible and how high the surface is.
class ScreenModes {
 public:
  ScreenModes(Dispatch& dispatcher, FormControls& formControls, Surface& picture1, ProgramStore& programStore,
              Services& desktop, ProgramFiles& programFiles, Saving& savingPart)
      : dispatch_(dispatcher),
        controls_(formControls),
        Picture1(picture1),
        store_(programStore),
        services_(desktop),
        files_(programFiles),
        saving_(savingPart) {}

  /// Sets the work of the primitives.
  void Bind();

  /// Brings back the split screen without `Executor`: F2 on the surface and on the form.
  void RestoreSplitScreen();

 private:
  void FullScreen();
  void SplitScreen();
  void TextScreen();
  void ClearText();
  void Hide();
  void Show(const PrimitiveCall& call);
  void ShowDeveloper();

  Dispatch& dispatch_;
  FormControls& controls_;
  Surface& Picture1;
  ProgramStore& store_;
  Services& services_;
  ProgramFiles& files_;
  Saving& saving_;
};

}  // namespace zerimo
