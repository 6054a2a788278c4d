#include "pictures/svg_picture.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string_view>
#include <utility>

#include "files/disk_files.h"
#include "pictures/picture_file.h"
#include "pixels/raster_operation.h"
#include "pixels/rgb.h"

namespace zerimo {

namespace {

/// Boxes and ellipses that extend farther are kept as pixels, since many viewers work in singles.
constexpr double FarthestPlace = 1 << 20;
constexpr int WidestPen = 1 << 16;

bool IsNear(PixelPoint place) { return std::abs(place.X) < FarthestPlace && std::abs(place.Y) < FarthestPlace; }

/// The pen of a stroke, or nothing if what is below makes a difference to it.
std::optional<SvgPen> PenOf(const Stroke& stroke) {
  const RasterOperation operation = MakeRasterOperation(stroke.DrawMode, stroke.Color);
  if (!operation.IsPlain() || stroke.Width > WidestPen) return std::nullopt;
  return SvgPen{operation.Toggle, stroke.Width};
}

/// The inside, drawn with the raster operation of the pen, which is a plain one here.
SvgInside InsideOf(const Surface& surface) {
  const Filling filling = surface.Inside();
  return {MakeRasterOperation(surface.DrawMode(), filling.Color).Toggle, filling.Style};
}

std::int64_t PixelsIn(const PixelRect& area) { return std::int64_t{area.Columns()} * area.Rows(); }

}  // namespace

/// Turns one operation into a shape, or keeps its pixels.
struct SvgRecorder::Keeper {
  SvgRecorder& Recorder;
  const Surface& From;

  void operator()(const surface_operation::Set& set) const {
    if (std::string_view(set.Property) == "BackColor") Recorder.Restart();
  }
  void operator()(const surface_operation::Cls&) const { Recorder.Restart(); }
  void operator()(const surface_operation::Picture&) const {
    Recorder.Restart();
    Recorder.KeepPixels(Recorder.canvas_.LastChange());
  }
  void operator()(const surface_operation::FloodFill&) const { Recorder.KeepPixels(Recorder.canvas_.LastChange()); }
  void operator()(const surface_operation::Line& line) const {
    KeepLine(From.PenStroke(), From.ToPixels(line.X1, line.Y1), From.ToPixels(line.X2, line.Y2));
  }
  void operator()(const surface_operation::LineTo& line) const {
    KeepLine(From.PenStroke(), From.ToPixels(line.X1, line.Y1), From.ToPixels(line.X2, line.Y2));
  }
  void operator()(const surface_operation::PSet& point) const {
    const Stroke stroke{point.Color, From.DrawWidth(), From.DrawMode()};
    KeepLine(stroke, From.ToPixels(point.X, point.Y), From.ToPixels(point.X, point.Y));
  }
  void operator()(const surface_operation::Box& box) const {
    const PixelPoint a = From.ToPixels(box.X1, box.Y1);
    const PixelPoint b = From.ToPixels(box.X2, box.Y2);
    const PixelPoint from{std::min(a.X, b.X), std::min(a.Y, b.Y)};
    const PixelPoint to{std::max(a.X, b.X), std::max(a.Y, b.Y)};
    const std::optional<SvgPen> pen = PenOf(From.PenStroke());
    if (!pen || !IsNear(from) || !IsNear(to)) return Recorder.KeepPixels(Recorder.canvas_.LastChange());
    Recorder.KeepShape(svg_shape::Box{*pen, InsideOf(From), from, to});
  }
  void operator()(const surface_operation::Circle& circle) const {
    const PixelPoint centre = From.ToPixels(circle.X, circle.Y);
    const Surface::Axes axes = From.HalfAxes(circle);
    const PixelPoint half{WholeHalfAxis(axes.Across), WholeHalfAxis(axes.Down)};
    const std::optional<SvgPen> pen = PenOf(From.PenStroke());
    if (!pen || !IsNear(centre) || !IsNear(half)) return Recorder.KeepPixels(Recorder.canvas_.LastChange());
    Recorder.KeepShape(svg_shape::Ellipse{*pen, InsideOf(From), centre, half.X, half.Y});
  }
  void operator()(const surface_operation::Print& print) const {
    const PixelPoint at = From.ToPixels(From.CurrentX(), From.CurrentY());
    if (!Recorder.canvas_.LastChange().IsEmpty()) {
      Recorder.KeepShape(svg_shape::Text{print.Text, at, From.FontSize(), ToRgb(From.ForeColor())});
    }
  }

 private:
  void KeepLine(const Stroke& stroke, PixelPoint from, PixelPoint to) const {
    const std::optional<SvgPen> pen = PenOf(stroke);
    if (!pen) return Recorder.KeepPixels(Recorder.canvas_.LastChange());
    if (const auto ends = ClipLine(from, to)) Recorder.KeepShape(svg_shape::Line{*pen, *ends});
  }
};

void SvgRecorder::Record(const Surface& surface, const SurfaceOperation& operation) {
  std::visit(Keeper{*this, surface}, operation);
}

QByteArray SvgRecorder::Picture(int width, int height, Colour background) const {
  return SvgDocument(shapes_, {width, height}, ToRgb(background));
}

void SvgRecorder::Restart() {
  shapes_.clear();
  patchPixels_ = 0;
}

void SvgRecorder::KeepShape(SvgShape shape) {
  shapes_.push_back(std::move(shape));
  if (shapes_.size() <= MostShapes) return;
  Restart();
  KeepPixels(canvas_.Pixels().Bounds());
}

void SvgRecorder::KeepPixels(const PixelRect& area) {
  if (area.IsEmpty()) return;
  QImage pixels = canvas_.Image().copy(ToQRect(area));
  patchPixels_ += PixelsIn(area);
  const bool isMany = patchPixels_ > MostCanvases * PixelsIn(canvas_.Pixels().Bounds());
  if (isMany) {
    Restart();
    return KeepPixels(canvas_.Pixels().Bounds());
  }
  KeepShape(svg_shape::Patch{std::move(pixels), ToQRect(area).topLeft()});
}

void WriteSurface(const ImageCanvas& canvas, const SvgRecorder& svgRecorder, const std::filesystem::path& file,
                  int width, int height, Colour background) {
  if (EndingOf(file) == ".svg") {
    WriteBeside(file, svgRecorder.Picture(width, height, background).toStdString());
  } else {
    canvas.SavePicture(file, width, height);
  }
}

}  // namespace zerimo
