#pragma once

#include <memory>
#include <optional>

#include "graphics/canvas.h"
#include "pixels/ellipse_spans.h"
#include "pixels/picture_files.h"
#include "pixels/pixel_buffer.h"
#include "pixels/raster_operation.h"
#include "pixels/round_pen.h"
#include "pixels/text_drawer.h"
#include "pixels/wide_lines.h"

namespace zerimo {

/// A canvas over a buffer of pixels. Nothing is smoothed, and a closed shape paints each of its pixels once.
class PixelCanvas : public Canvas {
 public:
  PixelCanvas(std::unique_ptr<TextDrawer> text, std::unique_ptr<PictureFiles> files);

  /// At least one pixel. Fails (invalid argument) if there is not enough memory for that size.
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

  const PixelBuffer& Pixels() const noexcept { return pixels_; }
  /// Takes over pixels, whatever was drawn before.
  void PutPixels(const PixelBuffer& pixels);

  /// The rectangle around everything that may have changed since the last call.
  PixelRect TakeDirty() noexcept;

  /// The rectangle around what the last operation may have changed.
  const PixelRect& LastChange() const noexcept { return lastChange_; }

 private:
  /// What lines and outlines are drawn with, kept for as long as the stroke stays the same.
  struct StrokePen {
    Stroke Of;
    RasterOperation Operation;
    RoundPen Round;
  };
  static StrokePen MakePen(const Stroke& stroke);

  const StrokePen& PenOf(const Stroke& stroke);
  bool Covers(PixelPoint at) const noexcept;
  void Changed(const PixelRect& area);
  /// Nothing is drawn.
  void IsClearNow(Pixel ground);

  PixelBuffer pixels_;
  std::unique_ptr<TextDrawer> text_;
  std::unique_ptr<PictureFiles> files_;
  StrokePen pen_ = MakePen({});
  WideLines wideLines_;
  EllipseSpans ellipse_;
  PixelRect dirty_;
  PixelRect lastChange_;
  /// The colour of the last clear, and the rectangle around what was drawn since: all else is of that colour.
  Pixel ground_ = 0;
  PixelRect drawn_;
};

/// The half-axis of an ellipse in whole pixels: it covers the columns or rows from its centre minus that to its centre
/// plus that. A half counts as a pixel.
double WholeHalfAxis(double halfAxis);

}  // namespace zerimo
