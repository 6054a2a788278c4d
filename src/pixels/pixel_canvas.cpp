#include "pixels/pixel_canvas.h"

#include <algorithm>
#include <cmath>
#include <new>
#include <utility>

#include "base/failure.h"
#include "pixels/lines.h"
#include "pixels/pixel_flood.h"
#include "pixels/span_painter.h"

namespace zerimo {

namespace {

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

SpanPainter InsidePainter(PixelBuffer& pixels, const Stroke& stroke, const Filling& filling) {
  return {pixels, MakeRasterOperation(stroke.DrawMode, filling.Color), HatchOf(filling.Style)};
}

PixelBuffer MakeBuffer(int width, int height, Pixel background) {
  try {
    return {std::max(width, 1), std::max(height, 1), background};
  } catch (const std::bad_alloc&) {
    throw Failure(FailureKind::InvalidArgument);
  }
}

}  // namespace

double WholeHalfAxis(double halfAxis) { return std::floor(std::abs(halfAxis) + 0.5); }

PixelCanvas::PixelCanvas(std::unique_ptr<TextDrawer> text, std::unique_ptr<PictureFiles> files)
    : text_(std::move(text)), files_(std::move(files)) {}

void PixelCanvas::Create(int width, int height, Colour background) {
  pixels_ = MakeBuffer(width, height, ToRgb(background));
  IsClearNow(ToRgb(background));
}

void PixelCanvas::Clear(Colour background) {
  const Pixel ground = ToRgb(background);
  if (ground == ground_) {
    pixels_.Fill(drawn_, ground);
  } else {
    pixels_.Fill(ground);
  }
  IsClearNow(ground);
}

void PixelCanvas::IsClearNow(Pixel ground) {
  Changed(pixels_.Bounds());
  ground_ = ground;
  drawn_ = {};
}

void PixelCanvas::Line(const Stroke& stroke, PixelPoint from, PixelPoint to) {
  lastChange_ = {};
  const std::optional<WholeLine> line = ClipLine(from, to);
  if (!line) return;
  const StrokePen& pen = PenOf(stroke);
  SpanPainter painter(pixels_, pen.Operation);
  if (pen.Round.Width() == 1) {
    PaintThinLine(painter, *line);
  } else {
    wideLines_.Paint(painter, *line, pen.Round);
  }
  const int reach = pen.Round.Above();
  Changed({std::max(std::min(line->X1, line->X2) - reach, 0), std::max(std::min(line->Y1, line->Y2) - reach, 0),
           std::min(std::max(line->X1, line->X2) + reach, pixels_.Columns() - 1),
           std::min(std::max(line->Y1, line->Y2) + reach, pixels_.Rows() - 1)});
}

void PixelCanvas::Box(const Stroke& stroke, const Filling& filling, PixelPoint from, PixelPoint to) {
  const auto [left, right] = std::minmax({from.X, to.X});
  const auto [top, bottom] = std::minmax({from.Y, to.Y});
  const StrokePen& pen = PenOf(stroke);
  const double width = pen.Round.Width();
  SpanPainter outline(pixels_, pen.Operation);
  SpanPainter inside = InsidePainter(pixels_, stroke, filling);
  Changed(OnCanvas(left, top, right, bottom, pixels_.Columns(), pixels_.Rows()));
  const ShapeRow middle = CutRow(left, left + width, right - width, right, pixels_.Columns());
  const ShapeRow edge = CutRow(left, right + 1, right, right, pixels_.Columns());
  for (int row = lastChange_.Top; row <= lastChange_.Bottom; ++row) {
    const bool isEdge = row < top + width || row > bottom - width;
    PaintRow(outline, inside, row, isEdge ? edge : middle);
  }
}

void PixelCanvas::Ellipse(const Stroke& stroke, const Filling& filling, PixelPoint centre, double halfWidth,
                          double halfHeight) {
  const double a = WholeHalfAxis(halfWidth);
  const double b = WholeHalfAxis(halfHeight);
  Changed(OnCanvas(centre.X - a, centre.Y - b, centre.X + a, centre.Y + b, pixels_.Columns(), pixels_.Rows()));
  if (lastChange_.IsEmpty()) return;
  const auto distance = [&centre](int row) { return std::abs(row - centre.Y); };
  const auto [nearer, farther] = std::minmax({distance(lastChange_.Top), distance(lastChange_.Bottom)});
  const double nearest = centre.Y < lastChange_.Top || centre.Y > lastChange_.Bottom ? nearer : 0;
  const StrokePen& pen = PenOf(stroke);
  ellipse_.WorkOut(a, b, pen.Round.Width(), nearest, static_cast<int>(farther - nearest) + 1);
  SpanPainter outline(pixels_, pen.Operation);
  SpanPainter inside = InsidePainter(pixels_, stroke, filling);
  for (int row = lastChange_.Top; row <= lastChange_.Bottom; ++row) {
    const int n = static_cast<int>(distance(row) - nearest);
    const double outer = ellipse_.Outer(n);
    const double inner = ellipse_.Inner(n) < 0 ? -1 : ellipse_.Inner(n);
    PaintRow(outline, inside, row,
             CutRow(centre.X - outer, centre.X - inner, centre.X + inner, centre.X + outer, pixels_.Columns()));
  }
}

void PixelCanvas::Point(const Stroke& stroke, PixelPoint at) { Line(stroke, at, at); }

bool PixelCanvas::Covers(PixelPoint at) const noexcept {
  return at.X >= 0 && at.Y >= 0 && at.X < pixels_.Columns() && at.Y < pixels_.Rows();
}

std::optional<Colour> PixelCanvas::ColourAt(PixelPoint at) const {
  if (!Covers(at)) return std::nullopt;
  return ToColour(pixels_.Row(static_cast<int>(at.Y))[static_cast<int>(at.X)]);
}

void PixelCanvas::FloodFill(PixelPoint at, Colour fill, int rows) {
  lastChange_ = {};
  if (!Covers(at) || at.Y >= rows) return;
  const int floodRows = std::min(rows, pixels_.Rows());
  Changed(FloodPixels(pixels_, static_cast<int>(at.X), static_cast<int>(at.Y), ToRgb(fill), floodRows));
}

void PixelCanvas::Print(std::string_view text, PixelPoint at, double pointSize, Colour color) {
  Changed(text_->Print(pixels_, text, at, pointSize, ToRgb(color)));
  // The drawer's estimate is good enough for the screen, but a clear must leave nothing.
  drawn_ = pixels_.Bounds();
}

void PixelCanvas::LoadPicture(const std::filesystem::path& file, Colour background) {
  const PixelBuffer picture = files_->Read(file, pixels_.Columns(), pixels_.Rows(), ToRgb(background));
  Clear(background);
  for (int row = 0; row < picture.Rows(); ++row) std::copy_n(picture.Row(row), picture.Columns(), pixels_.Row(row));
  Changed(pixels_.Bounds());
}

void PixelCanvas::SavePicture(const std::filesystem::path& file, int width, int height) const {
  files_->Write(pixels_, std::max(width, 1), std::max(height, 1), file);
}

void PixelCanvas::PutPixels(const PixelBuffer& pixels) {
  pixels_ = pixels;
  Changed(pixels_.Bounds());
}

PixelRect PixelCanvas::TakeDirty() noexcept { return std::exchange(dirty_, {}); }

PixelCanvas::StrokePen PixelCanvas::MakePen(const Stroke& stroke) {
  return {stroke, MakeRasterOperation(stroke.DrawMode, stroke.Color),
          RoundPen(std::clamp(stroke.Width, 1, WidestStroke))};
}

const PixelCanvas::StrokePen& PixelCanvas::PenOf(const Stroke& stroke) {
  if (stroke != pen_.Of) pen_ = MakePen(stroke);
  return pen_;
}

void PixelCanvas::Changed(const PixelRect& area) {
  lastChange_ = area.IsEmpty() ? PixelRect() : area;
  if (!dirty_.Contains(lastChange_)) dirty_ = United(dirty_, lastChange_);
  if (!drawn_.Contains(lastChange_)) drawn_ = United(drawn_, lastChange_);
}

}  // namespace zerimo
