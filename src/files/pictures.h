#pragma once

#include <cstdint>
#include <string>

#include "controls/form_controls.h"
#include "files/folders.h"
#include "graphics/surface.h"
#include "interpreter/arguments.h"
#include "interpreter/dispatch.h"

namespace zerimo {

/// Pictures and the slide show: `SAVEPICTURE`, `LOADPICTURE`, `SLIDESHOW`.
class Pictures {
 public:
  Pictures(Surface& picture1, FormControls& formControls, const Arguments& arguments, Dispatch& dispatcher,
           const Folders& theFolders)
      : Picture1(picture1), controls_(formControls), inputs_(arguments), dispatch_(dispatcher), folders_(theFolders) {}

  /// Sets the work of the primitives.
  void Bind();

  /// Loads a picture file, named as the system names it, as the background. Fails (file, invalid picture).
  void ShowPicture(const std::string& fileName);

  /// One tick of the slide show; any failure ends the show silently.
  void Timer3Tick();

  /// `AppFolder`, a slash, and the first word of `SLIDESHOW`.
  std::string SlideBaseName;
  std::int16_t SlideCounter = 0;
  /// The last file name tried.
  std::string SlideFileName;

 private:
  void SavePicture(PrimitiveCall& call);
  void LoadPicture(PrimitiveCall& call);
  void SlideShow(PrimitiveCall& call);

  Surface& Picture1;
  FormControls& controls_;
  const Arguments& inputs_;
  Dispatch& dispatch_;
  const Folders& folders_;
};

}  // namespace zerimo
