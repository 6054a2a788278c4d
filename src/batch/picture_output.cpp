#include "batch/picture_output.h"

namespace zerimo::batch {

void PictureOutput::Write(const Surface& surface, const std::filesystem::path& file) const {
  startToolkit_();
  WriteSurface(canvas_, svgRecorder_, file, WholePixels(surface.Width), WholePixels(surface.Height()),
               surface.BackColor());
}

}  // namespace zerimo::batch
