#pragma once

#include <cstdint>
#include <string>

#include "files/files_context.h"
#include "graphics/surface.h"

namespace zerimo {

/// Pictures and the slide show: `SAVEPICTURE`, `LOADPICTURE`, `SLIDESHOW`.
class Pictures {
 public:
  Pictures(const FilesContext& context, Surface& picture1) : context_(context), Picture1(picture1) {}

  /// Binds the primitives to their actions.
  void Bind();

  /// Loads a picture file, named as the system names it, as the background. Fails (file, invalid picture).
  void ShowPicture(const std::string& fileName);

  /// One tick of the slide show; any failure ends the show silently.
  void Timer3Tick();

  /// The next show begins with its first slide.
  void EndSlideShow() noexcept;

  /// `AppFolder`, a slash, and the first word of `SLIDESHOW`.
  std::string SlideBaseName;
  std::int16_t SlideCounter = 0;
  /// The last file name tried.
  std::string SlideFileName;

 private:
  void SavePicture(PrimitiveCall& call);
  void LoadPicture(PrimitiveCall& call);
  void SlideShow(PrimitiveCall& call);

  FilesContext context_;
  Surface& Picture1;
};

}  // namespace zerimo
