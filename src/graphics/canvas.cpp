#include "graphics/canvas.h"

#include <fstream>

#include "base/failure.h"

namespace zerimo {

void EmptyCanvas::Create(int width, int height, Colour background) {
  columns_ = width;
  rows_ = height;
  colour_ = background;
}

void EmptyCanvas::Clear(Colour background) { colour_ = background; }

std::optional<Colour> EmptyCanvas::ColourAt(PixelPoint at) const {
  if (at.X < 0 || at.Y < 0 || at.X >= columns_ || at.Y >= rows_) return std::nullopt;
  return colour_;
}

void EmptyCanvas::LoadPicture(const std::filesystem::path& file, Colour background) {
  if (!std::ifstream(file)) throw Failure(FailureKind::FileNotFound);
  colour_ = background;
}

void EmptyCanvas::SavePicture(const std::filesystem::path& file, int, int) const {
  if (!std::ofstream(file)) throw Failure(FailureKind::FileAccess);
}

}  // namespace zerimo
