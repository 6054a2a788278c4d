#include "graphics/canvas.h"

#include <fstream>

#include "base/failure.h"

namespace zerimo {

void EmptyCanvas::Create(int width, int height, Colour background) {
  columns = width;
  rows = height;
  colour = background;
}

void EmptyCanvas::Clear(Colour background) { colour = background; }

std::optional<Colour> EmptyCanvas::ColourAt(PixelPoint at) const {
  if (at.X < 0 || at.Y < 0 || at.X >= columns || at.Y >= rows) return std::nullopt;
  return colour;
}

void EmptyCanvas::LoadPicture(const std::filesystem::path& file, Colour background) {
  if (!std::ifstream(file)) throw Failure(FailureKind::FileNotFound);
  colour = background;
}

void EmptyCanvas::SavePicture(const std::filesystem::path& file, int, int) const {
  if (!std::ofstream(file)) throw Failure(FailureKind::FileAccess);
}

}  // namespace zerimo
