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
      : dispatch(dispatcher),
        controls(formControls),
        Picture1(picture1),
        store(programStore),
        services(desktop),
        files(programFiles),
        saving(savingPart) {}

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

  Dispatch& dispatch;
  FormControls& controls;
  Surface& Picture1;
  ProgramStore& store;
  Services& services;
  ProgramFiles& files;
  Saving& saving;
};

}  // namespace zerimo
