#pragma once

#include <QImage>
#include <QRect>
#include <optional>

#include "graphics/canvas.h"
#include "pixels/text_painter.h"

namespace zerimo {

/// A canvas whose pixels are an image (Format_RGB32). Nothing is smoothed, and a closed shape gives each of its pixels
/// once. Printing text needs a QGuiApplication.
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
  void Print(std::string_view text, PixelPoint at, double pointSize, Colour color) override;
  void LoadPicture(const std::filesystem::path& file, Colour background) override;
  void SavePicture(const std::filesystem::path& file, int width, int height) const override;

  const QImage& Image() const { return image; }

  /// The rectangle around all that may have changed since this was last asked.
  QRect TakeDirty();

  /// The rectangle around what the last operation may have changed.
  const QRect& LastChange() const { return lastChange; }

 private:
  bool Covers(PixelPoint at) const;
  void Changed(const QRect& area);
  const TextFont& FontOf(double pointSize);

  QImage image;
  QRect dirty;
  QRect lastChange;
  std::optional<TextFont> lastFont;
};

/// The half-axis of an ellipse in whole pixels: it covers the columns or rows from its centre less that to its centre
/// and that. A half counts as a pixel.
double WholeHalfAxis(double halfAxis);

}  // namespace zerimo
