#pragma once

#include <QByteArray>
#include <QImage>
#include <QRgb>
#include <QSize>
#include <string>
#include <variant>
#include <vector>

#include "graphics/canvas.h"
#include "pixels/lines.h"

namespace zerimo {

/// A pen that hides what is below it.
struct SvgPen {
  QRgb Color = 0;
  int Width = 1;
  bool operator==(const SvgPen&) const = default;
};

/// How an inside is painted.
struct SvgInside {
  QRgb Color = 0;
  FillPattern Style = FillPattern::Solid;
};

/// The shapes of a picture, in whole pixels, as they were drawn.
namespace svg_shape {
struct Line {
  SvgPen Pen;
  WholeLine Ends;
};
/// Corners: left and top first.
struct Box {
  SvgPen Pen;
  SvgInside Inside;
  PixelPoint From;
  PixelPoint To;
};
/// Half-axes in whole pixels.
struct Ellipse {
  SvgPen Pen;
  SvgInside Inside;
  PixelPoint Centre;
  double HalfWidth;
  double HalfHeight;
};
/// The top left corner of a line of text.
struct Text {
  std::string Characters;
  PixelPoint At;
  double PointSize;
  QRgb Color;
};
/// Pixels that no shape can express, with their top left corner.
struct Patch {
  QImage Pixels;
  QPoint At;
};
}  // namespace svg_shape

using SvgShape = std::variant<svg_shape::Line, svg_shape::Box, svg_shape::Ellipse, svg_shape::Text, svg_shape::Patch>;

/// Shapes on a background as an SVG file, each over those before it; what is outside the size is cut off. A pixel is a
/// square with a side of 1, so that the coordinates of its middle end in .5.
QByteArray SvgDocument(const std::vector<SvgShape>& shapes, QSize size, QRgb background);

}  // namespace zerimo
