#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <variant>

#include "controls/control_kinds.h"
#include "graphics/canvas.h"

namespace zerimo {

class Surface;

/// One operation of the surface as it happened. Coordinates are the singles that the surface was given.
namespace surface_operation {
struct Set {
  const char* Property;
  PropertyValue Value;
};
struct Line {
  float X1, Y1, X2, Y2;
};
struct Box {
  float X1, Y1, X2, Y2;
};
struct LineTo {
  float X2, Y2;
  /// The former current point, where the line starts.
  float X1, Y1;
};
struct Circle {
  float X, Y, Radius;
  std::optional<float> Aspect;
};
struct PSet {
  float X, Y;
  Colour Color;
};
struct Print {
  std::string Text;
};
struct Cls {};
struct FloodFill {
  /// Pixels.
  int X, Y;
  /// The colour read at the point, -1 for none.
  Colour Color;
};
struct Picture {
  std::string Path;
};
}  // namespace surface_operation

using SurfaceOperation =
    std::variant<surface_operation::Set, surface_operation::Line, surface_operation::Box, surface_operation::LineTo,
                 surface_operation::Circle, surface_operation::PSet, surface_operation::Print, surface_operation::Cls,
                 surface_operation::FloodFill, surface_operation::Picture>;

/// Is told of each operation right after it took place; the surface is then as the operation left it.
class SurfaceRecorder {
 public:
  virtual ~SurfaceRecorder() = default;
  virtual void Record(const Surface& surface, const SurfaceOperation& operation) = 0;
};

/// Surface units to a pixel: the whole system assumes this number.
inline constexpr int UnitsPerPixel = 15;

/// In what the surface counts, with the numbers that the system shows.
enum class Scale : int { Units = 1, Pixels = 3 };

/// Surface units in pixels, rounded half to even.
int WholePixels(float units);

/// `Picture1`, the drawing surface. It keeps the properties that drawing depends on, turns surface units into pixels,
/// and leaves the drawing to a canvas. A property write that is refused fails (invalid argument) and changes nothing.
class Surface : public Control {
 public:
  Surface(std::string surfaceName, Canvas& canvas) : Control(std::move(surfaceName)), canvas_(canvas) {}

  /// Makes the canvas as large as the screen (surface units), so that what a reduced height hides is kept.
  void CreateCanvas(float screenWidth, float screenHeight);

  /// A recorder is told of every operation from now on. A recorder must outlive the surface or be removed.
  void AddRecorder(SurfaceRecorder& recorder) { recorders_.push_back(&recorder); }
  void RemoveRecorder(SurfaceRecorder& recorder) { std::erase(recorders_, &recorder); }

  Colour BackColor() const noexcept { return backColor_; }
  /// Sets the background colour and clears everything that was drawn, as `Cls` does.
  void SetBackColor(Colour value);
  Colour ForeColor() const noexcept { return foreColor_; }
  void SetForeColor(Colour value);
  Colour FillColor() const noexcept { return fillColor_; }
  void SetFillColor(Colour value);
  FillPattern FillStyle() const noexcept { return fillStyle_; }
  /// A number outside 0 to 7 is refused.
  void SetFillStyle(FillPattern value);
  DrawingMode DrawMode() const noexcept { return drawMode_; }
  /// A number outside 1 to 16 is refused.
  void SetDrawMode(DrawingMode value);
  int DrawWidth() const noexcept { return drawWidth_; }
  /// Pixels, from 1.
  void SetDrawWidth(std::int32_t value);
  Scale ScaleMode() const noexcept { return scaleMode_; }
  /// A number that is no scale is refused.
  void SetScaleMode(Scale value);
  float CurrentX() const noexcept { return currentX_; }
  void SetCurrentX(double value);
  float CurrentY() const noexcept { return currentY_; }
  void SetCurrentY(double value);
  double FontSize() const noexcept { return fontSize_; }
  /// Points, above 0 and at most 2160.
  void SetFontSize(double value);
  void SetHeight(float value) override;

  /// The hint shown at the mouse.
  std::string ToolTipText;

  void Line(double x1, double y1, double x2, double y2);
  void Box(double x1, double y1, double x2, double y2);
  /// From the current point.
  void LineTo(double x2, double y2);
  void Circle(double x, double y, double radius, std::optional<double> aspect = std::nullopt);
  void PSet(double x, double y, Colour color);
  /// The colour at a point, or -1 outside the surface and where a reduced height hides what was drawn.
  Colour Point(double x, double y) const;
  void Print(const std::string& text);
  void Cls();
  /// The platform's flood fill: from a point in pixels, over the colour that is read there, with the fill colour, and
  /// not beyond the surface's height.
  void ExtFloodFill(std::int16_t x, std::int16_t y, Colour atPoint);
  /// Loads a picture file as the background; `pictureName` is how the system names the file.
  void SetPicture(const std::filesystem::path& file, const std::string& pictureName);
  /// Writes the picture in the surface's present size.
  void SavePicture(const std::filesystem::path& file) const;

  /// The pixel that a point of the surface falls on, in the present scale: all operations convert by it. Never fails:
  /// no place is not a number.
  PixelPoint ToPixels(double x, double y) const;

  /// The half-axes of a circle or an oval in pixels: across and down.
  struct Axes {
    double Across;
    double Down;
  };
  Axes HalfAxes(const surface_operation::Circle& circle) const;

  Stroke PenStroke() const noexcept { return {foreColor_, drawWidth_, drawMode_}; }
  Filling Inside() const noexcept { return {fillColor_, fillStyle_}; }

  void ReadProperties(const PropertyReader& read) const override;

 private:
  /// An operation is wrapped only if a recorder is listening.
  template <typename Operation>
  void Tell(const Operation& operation) const {
    if (!recorders_.empty()) TellRecorders(operation);
  }
  void TellRecorders(const SurfaceOperation& operation) const;
  void TellSet(const char* property, PropertyValue value) const;
  double ScaleDivisor() const noexcept { return scaleMode_ == Scale::Pixels ? 1 : UnitsPerPixel; }
  /// How many rows of the canvas the height covers, partly covered ones included.
  int Rows() const noexcept;

  Canvas& canvas_;
  std::vector<SurfaceRecorder*> recorders_;
  Colour backColor_ = 8388736;
  Colour foreColor_ = 0xFFFFFF;
  Colour fillColor_ = 0;
  FillPattern fillStyle_ = FillPattern::Solid;
  DrawingMode drawMode_ = DrawingMode::CopyPen;
  int drawWidth_ = 1;
  Scale scaleMode_ = Scale::Units;
  float currentX_ = 0;
  float currentY_ = 0;
  double fontSize_ = 8.25;
};

}  // namespace zerimo
