#pragma once

#include <QImage>
#include <QRect>
#include <optional>

#include "graphics/canvas.h"

namespace zerimo::reference {

/// The plain canvas: every operation is worked out from scratch, row by row. It has no text and no picture files.
class ImageCanvas : public Canvas {
 public:
  /// At least one pixel. Fails (invalid argument) if there can be no image of that size.
  void Create(int width, int height, Colour background) override;
  void Clear(Colour background) override;
  void Line(const Stroke& stroke, PixelPoint from, PixelPoint to) override;
  void Box(const Stroke& stroke, const Filling& filling, PixelPoint from, PixelPoint to) override;
  void Ellipse(const Stroke& stroke, const Filling& filling, PixelPoint centre, double halfWidth,
               double halfHeight) override;
  void Point(const Stroke& stroke, PixelPoint at) override;
  std::optional<Colour> ColourAt(PixelPoint at) const override;
  void FloodFill(PixelPoint at, Colour fill, int rows) override;
  void Print(std::string_view, PixelPoint, double, Colour) override {}
  void LoadPicture(const std::filesystem::path&, Colour) override {}
  void SavePicture(const std::filesystem::path&, int, int) const override {}

  const QImage& Image() const { return image; }

  /// The rectangle around everything that may have changed since the last call.
  QRect TakeDirty();

  /// The rectangle around what the last operation may have changed.
  const QRect& LastChange() const { return lastChange; }

 private:
  bool Covers(PixelPoint at) const;
  void Changed(const QRect& area);

  QImage image;
  QRect dirty;
  QRect lastChange;
};

}  // namespace zerimo::reference
