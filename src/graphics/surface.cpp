#include "graphics/surface.h"

#include <cmath>

#include "base/failure.h"
#include "base/numbers.h"

namespace zerimo {

namespace {

constexpr double LargestFontSize = 2160;
constexpr DrawingMode FirstDrawingMode{1};
constexpr DrawingMode LastDrawingMode{16};

void RequireAccepted(bool isAccepted) {
  if (!isAccepted) throw Failure(FailureKind::InvalidArgument);
}

}  // namespace

int WholePixels(float units) { return static_cast<int>(RoundHalfEven(static_cast<double>(units) / UnitsPerPixel)); }

void Surface::CreateCanvas(float screenWidth, float screenHeight) {
  canvas_.Create(WholePixels(screenWidth), WholePixels(screenHeight), backColor_);
}

void Surface::SetBackColor(Colour value) {
  backColor_ = value;
  canvas_.Clear(value);
  TellSet("BackColor", static_cast<double>(value));
}

void Surface::SetForeColor(Colour value) {
  foreColor_ = value;
  TellSet("ForeColor", static_cast<double>(value));
}

void Surface::SetFillColor(Colour value) {
  fillColor_ = value;
  TellSet("FillColor", static_cast<double>(value));
}

void Surface::SetFillStyle(FillPattern value) {
  RequireAccepted(value >= FillPattern::Solid && value <= FillPattern::DiagonalCross);
  fillStyle_ = value;
  TellSet("FillStyle", static_cast<double>(value));
}

void Surface::SetDrawMode(DrawingMode value) {
  RequireAccepted(value >= FirstDrawingMode && value <= LastDrawingMode);
  drawMode_ = value;
  TellSet("DrawMode", static_cast<double>(value));
}

void Surface::SetDrawWidth(std::int32_t value) {
  RequireAccepted(value >= 1);
  drawWidth_ = value;
  TellSet("DrawWidth", static_cast<double>(value));
}

void Surface::SetScaleMode(Scale value) {
  RequireAccepted(value == Scale::Units || value == Scale::Pixels);
  scaleMode_ = value;
  TellSet("ScaleMode", static_cast<double>(value));
}

void Surface::SetCurrentX(double value) {
  currentX_ = ToSingle(value);
  TellSet("CurrentX", currentX_);
}

void Surface::SetCurrentY(double value) {
  currentY_ = ToSingle(value);
  TellSet("CurrentY", currentY_);
}

void Surface::SetFontSize(double value) {
  RequireAccepted(value > 0 && value <= LargestFontSize);
  fontSize_ = value;
  TellSet("Font.Size", value);
}

void Surface::SetHeight(float value) {
  RequireAccepted(value >= 0);
  height = value;
  TellSet("Height", value);
}

void Surface::Line(double x1, double y1, double x2, double y2) {
  const surface_operation::Line line{ToSingle(x1), ToSingle(y1), ToSingle(x2), ToSingle(y2)};
  canvas_.Line(PenStroke(), ToPixels(line.X1, line.Y1), ToPixels(line.X2, line.Y2));
  currentX_ = line.X2;
  currentY_ = line.Y2;
  Tell(line);
}

void Surface::Box(double x1, double y1, double x2, double y2) {
  const surface_operation::Box box{ToSingle(x1), ToSingle(y1), ToSingle(x2), ToSingle(y2)};
  canvas_.Box(PenStroke(), Inside(), ToPixels(box.X1, box.Y1), ToPixels(box.X2, box.Y2));
  currentX_ = box.X2;
  currentY_ = box.Y2;
  Tell(box);
}

void Surface::LineTo(double x2, double y2) {
  const surface_operation::LineTo line{ToSingle(x2), ToSingle(y2), currentX_, currentY_};
  canvas_.Line(PenStroke(), ToPixels(line.X1, line.Y1), ToPixels(line.X2, line.Y2));
  currentX_ = line.X2;
  currentY_ = line.Y2;
  Tell(line);
}

void Surface::Circle(double x, double y, double radius, std::optional<double> aspect) {
  surface_operation::Circle circle{ToSingle(x), ToSingle(y), ToSingle(radius), std::nullopt};
  if (aspect) circle.Aspect = ToSingle(*aspect);
  const Axes half = HalfAxes(circle);
  canvas_.Ellipse(PenStroke(), Inside(), ToPixels(circle.X, circle.Y), half.Across, half.Down);
  Tell(circle);
}

Surface::Axes Surface::HalfAxes(const surface_operation::Circle& circle) const {
  const double longer = std::abs(static_cast<double>(circle.Radius)) / ScaleDivisor();
  const double ratio = std::abs(static_cast<double>(circle.Aspect.value_or(1)));
  // The radius is that of the longer axis.
  return ratio > 1 ? Axes{longer / ratio, longer} : Axes{longer, longer * ratio};
}

void Surface::PSet(double x, double y, Colour color) {
  const surface_operation::PSet point{ToSingle(x), ToSingle(y), color};
  canvas_.Point({color, drawWidth_, drawMode_}, ToPixels(point.X, point.Y));
  Tell(point);
}

Colour Surface::Point(double x, double y) const {
  const PixelPoint at = ToPixels(ToSingle(x), ToSingle(y));
  return at.Y < Rows() ? canvas_.ColourAt(at).value_or(-1) : -1;
}

void Surface::Print(const std::string& text) {
  canvas_.Print(text, ToPixels(currentX_, currentY_), fontSize_, foreColor_);
  if (!recorders_.empty()) TellRecorders(surface_operation::Print{text});
}

void Surface::Cls() {
  canvas_.Clear(backColor_);
  Tell(surface_operation::Cls{});
}

void Surface::ExtFloodFill(std::int16_t x, std::int16_t y, Colour atPoint) {
  const PixelPoint at{static_cast<double>(x), static_cast<double>(y)};
  if (atPoint != -1) canvas_.FloodFill(at, fillColor_, Rows());
  Tell(surface_operation::FloodFill{x, y, atPoint});
}

int Surface::Rows() const noexcept {
  return static_cast<int>(std::ceil(static_cast<double>(Height()) / UnitsPerPixel));
}

void Surface::SetPicture(const std::filesystem::path& file, const std::string& pictureName) {
  canvas_.LoadPicture(file, backColor_);
  Tell(surface_operation::Picture{pictureName});
}

void Surface::SavePicture(const std::filesystem::path& file) const {
  canvas_.SavePicture(file, WholePixels(Width), WholePixels(Height()));
}

PixelPoint Surface::ToPixels(double x, double y) const {
  return {RoundHalfEven(x / ScaleDivisor()), RoundHalfEven(y / ScaleDivisor())};
}

void Surface::ReadProperties(const PropertyReader& read) const {
  Control::ReadProperties(read);
  read("BackColor", static_cast<double>(backColor_));
  read("ForeColor", static_cast<double>(foreColor_));
  read("FillColor", static_cast<double>(fillColor_));
  read("FillStyle", static_cast<double>(fillStyle_));
  read("DrawMode", static_cast<double>(drawMode_));
  read("DrawWidth", static_cast<double>(drawWidth_));
  read("ScaleMode", static_cast<double>(scaleMode_));
  read("CurrentX", currentX_);
  read("CurrentY", currentY_);
  read("Font.Size", fontSize_);
  read("ToolTipText", ToolTipText);
}

void Surface::TellRecorders(const SurfaceOperation& operation) const {
  for (SurfaceRecorder* recorder : recorders_) recorder->Record(*this, operation);
}

void Surface::TellSet(const char* property, PropertyValue value) const {
  if (!recorders_.empty()) TellRecorders(surface_operation::Set{property, std::move(value)});
}

}  // namespace zerimo
