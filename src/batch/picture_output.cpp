#include "batch/picture_output.h"

#include "base/numbers.h"

namespace zerimo::batch {

namespace {

int InPixels(float units) { return static_cast<int>(RoundHalfEven(static_cast<double>(units) / UnitsPerPixel)); }

}  // namespace

void PictureOutput::Write(const Surface& surface, const std::filesystem::path& file) const {
  startToolkit_();
  WriteSurface(canvas_, operations_, file, InPixels(surface.Width), InPixels(surface.Height()), surface.BackColor());
}

}  // namespace zerimo::batch
