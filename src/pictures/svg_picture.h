#pragma once

#include <QByteArray>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <vector>

#include "graphics/surface.h"
#include "pictures/image_canvas.h"
#include "pictures/svg_shapes.h"

namespace zerimo {

/// Keeps what is drawn on a surface as a list of shapes, each with the pen in use at the time, so that it can be
/// written as an SVG picture. Clearing and loading a picture start the list again. Floods, and raster operations that
/// depend on what is below, are not shapes: their pixels are kept as they were right after the operation. A list that
/// has grown too long becomes one patch of pixels, so that memory stays bounded.
class SvgRecorder : public SurfaceRecorder {
 public:
  /// The canvas under the surface that will be recorded, with nothing drawn on it yet.
  explicit SvgRecorder(const ImageCanvas& canvas) : canvas_(canvas) {}

  void Record(const Surface& surface, const SurfaceOperation& operation) override;

  const std::vector<SvgShape>& Shapes() const { return shapes_; }

  /// The picture as an SVG file of a size in pixels.
  QByteArray Picture(int width, int height, Colour background) const;

  /// Beyond this many shapes, or this many canvases full of pixels, the list becomes one patch.
  static constexpr std::size_t MostShapes = 400'000;
  static constexpr std::int64_t MostCanvases = 4;

 private:
  struct Keeper;

  void Restart();
  void KeepShape(SvgShape shape);
  void KeepPixels(const PixelRect& area);

  const ImageCanvas& canvas_;
  std::vector<SvgShape> shapes_;
  /// Pixels of the patches among the shapes.
  std::int64_t patchPixels_ = 0;
};

/// Writes what a canvas shows in a size in pixels. The file's ending decides the format: .svg from the recorded shapes,
/// otherwise pixels (.png, .bmp, .jpg, .jpeg). Fails (invalid argument for another ending, file access).
void WriteSurface(const ImageCanvas& canvas, const SvgRecorder& svgRecorder, const std::filesystem::path& file,
                  int width, int height, Colour background);

}  // namespace zerimo
