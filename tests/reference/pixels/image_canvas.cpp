#include "reference/pixels/image_canvas.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "base/failure.h"
#include "pixels/rgb.h"
#include "reference/pixels/ellipse_spans.h"
#include "reference/pixels/lines.h"
#include "reference/pixels/pixel_flood.h"
#include "reference/pixels/pixel_range.h"

namespace zerimo::reference {

namespace {

int EffectiveWidth(const Stroke& stroke) { return std::clamp(stroke.Width, 1, WidestStroke); }

SpanPainter PainterOf(QImage& image, const Stroke& stroke) {
  return {image, MakeRasterOperation(stroke.DrawMode, stroke.Color)};
}

SpanPainter PainterOf(QImage& image, const Stroke& stroke, const Filling& filling) {
  return {image, MakeRasterOperation(stroke.DrawMode, filling.Color), HatchOf(filling.Style)};
}

void PaintLine(SpanPainter& painter, const WholeLine& line, int width) {
  if (width == 1) {
    PaintThinLine(painter, line);
  } else {
    PaintWideLine(painter, line, width);
  }
}

/// The part of a row of a closed shape that is on the canvas: the outline at its two ends, the inside between them.
struct ShapeRow {
  int First;
  int InsideFirst;
  int InsideLast;
  int Last;
};

/// The columns where shape and inside begin and end may be anywhere. If the inside ends before it begins, the whole row
/// belongs to the outline.
ShapeRow CutRow(double first, double insideFirst, double insideLast, double last, int columns) {
  const auto begin = [columns](double column) { return Clamped(column, 0, columns); };
  const auto end = [columns](double column) { return Clamped(column, -1, columns - 1); };
  const int cutLast = end(last);
  if (insideFirst > insideLast) return {begin(first), cutLast + 1, cutLast, cutLast};
  return {begin(first), begin(insideFirst), end(insideLast), cutLast};
}

void PaintRow(SpanPainter& outline, SpanPainter& inside, int row, const ShapeRow& shape) {
  outline.PaintSpan(row, shape.First, shape.InsideFirst - 1);
  inside.PaintSpan(row, shape.InsideFirst, shape.InsideLast);
  outline.PaintSpan(row, shape.InsideLast + 1, shape.Last);
}

double WholeHalfAxis(double halfAxis) { return std::floor(std::abs(halfAxis) + 0.5); }

}  // namespace

void ImageCanvas::Create(int width, int height, Colour background) {
  image = QImage(std::max(width, 1), std::max(height, 1), QImage::Format_RGB32);
  if (image.isNull()) throw Failure(FailureKind::InvalidArgument);
  Clear(background);
}

void ImageCanvas::Clear(Colour background) {
  image.fill(ToRgb(background));
  Changed(image.rect());
}

void ImageCanvas::Line(const Stroke& stroke, PixelPoint from, PixelPoint to) {
  Changed({});
  const std::optional<WholeLine> line = ClipLine(from, to);
  if (!line) return;
  const int width = EffectiveWidth(stroke);
  SpanPainter painter = PainterOf(image, stroke);
  PaintLine(painter, *line, width);
  const int reach = width / 2;
  Changed(OnCanvas(std::min(line->X1, line->X2) - reach, std::min(line->Y1, line->Y2) - reach,
                   std::max(line->X1, line->X2) + reach, std::max(line->Y1, line->Y2) + reach, image.size()));
}

void ImageCanvas::Box(const Stroke& stroke, const Filling& filling, PixelPoint from, PixelPoint to) {
  const auto [left, right] = std::minmax({from.X, to.X});
  const auto [top, bottom] = std::minmax({from.Y, to.Y});
  const double width = EffectiveWidth(stroke);
  SpanPainter outline = PainterOf(image, stroke);
  SpanPainter inside = PainterOf(image, stroke, filling);
  Changed(OnCanvas(left, top, right, bottom, image.size()));
  const ShapeRow middle = CutRow(left, left + width, right - width, right, image.width());
  const ShapeRow edge = CutRow(left, right + 1, right, right, image.width());
  for (int row = lastChange.top(); row <= lastChange.bottom(); ++row) {
    const bool isEdge = row < top + width || row > bottom - width;
    PaintRow(outline, inside, row, isEdge ? edge : middle);
  }
}

void ImageCanvas::Ellipse(const Stroke& stroke, const Filling& filling, PixelPoint centre, double halfWidth,
                          double halfHeight) {
  const double a = WholeHalfAxis(halfWidth);
  const double b = WholeHalfAxis(halfHeight);
  Changed(OnCanvas(centre.X - a, centre.Y - b, centre.X + a, centre.Y + b, image.size()));
  if (lastChange.isEmpty()) return;
  const auto distance = [&centre](int row) { return std::abs(row - centre.Y); };
  const auto [nearer, farther] = std::minmax({distance(lastChange.top()), distance(lastChange.bottom())});
  const double nearest = centre.Y < lastChange.top() || centre.Y > lastChange.bottom() ? nearer : 0;
  const EllipseSpans spans(a, b, EffectiveWidth(stroke), nearest, static_cast<int>(farther - nearest) + 1);
  std::vector<ShapeRow> rows;
  rows.reserve(static_cast<std::size_t>(spans.Count()));
  for (int n = 0; n < spans.Count(); ++n) {
    const double inner = spans.Inner(n) < 0 ? -1 : spans.Inner(n);
    rows.push_back(CutRow(centre.X - spans.Outer(n), centre.X - inner, centre.X + inner, centre.X + spans.Outer(n),
                          image.width()));
  }
  SpanPainter outline = PainterOf(image, stroke);
  SpanPainter inside = PainterOf(image, stroke, filling);
  for (int row = lastChange.top(); row <= lastChange.bottom(); ++row) {
    PaintRow(outline, inside, row, rows[static_cast<std::size_t>(distance(row) - nearest)]);
  }
}

void ImageCanvas::Point(const Stroke& stroke, PixelPoint at) { Line(stroke, at, at); }

bool ImageCanvas::Covers(PixelPoint at) const {
  return at.X >= 0 && at.Y >= 0 && at.X < image.width() && at.Y < image.height();
}

std::optional<Colour> ImageCanvas::ColourAt(PixelPoint at) const {
  if (!Covers(at)) return std::nullopt;
  return ToColour(image.pixel(static_cast<int>(at.X), static_cast<int>(at.Y)));
}

void ImageCanvas::FloodFill(PixelPoint at, Colour fill, int rows) {
  Changed({});
  if (!Covers(at) || at.Y >= rows) return;
  const int floodRows = std::min(rows, image.height());
  Changed(FloodPixels(image, {static_cast<int>(at.X), static_cast<int>(at.Y)}, ToRgb(fill), floodRows));
}

QRect ImageCanvas::TakeDirty() { return std::exchange(dirty, {}); }

void ImageCanvas::Changed(const QRect& area) {
  lastChange = area.isEmpty() ? QRect() : area;
  dirty |= lastChange;
}

}  // namespace zerimo::reference
