#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

#include "controls/control_kinds.h"

namespace zerimo {

/// A place in pixels. The numbers are whole, but may be far outside the canvas and beyond 32 bits.
struct PixelPoint {
  double X = 0;
  double Y = 0;
};

/// What a pixel becomes where the pen meets it: one of the platform's sixteen raster operations. The numbers are those
/// that the system reads and shows, from 1 to 16; the three that users ask for have a name.
enum class DrawingMode : int { Invert = 6, ExclusiveOr = 7, CopyPen = 13 };

/// How the inside of closed shapes is painted, with the numbers that the system reads and shows.
enum class FillPattern : int {
  Solid = 0,
  Transparent = 1,
  Horizontal = 2,
  Vertical = 3,
  UpwardDiagonal = 4,
  DownwardDiagonal = 5,
  Cross = 6,
  DiagonalCross = 7,
};

/// How lines and outlines are drawn.
struct Stroke {
  Colour Color = 0;
  /// Pixels, from 1.
  int Width = 1;
  DrawingMode DrawMode = DrawingMode::CopyPen;

  bool operator==(const Stroke&) const = default;
};

/// The colour and the pattern of an inside.
struct Filling {
  Colour Color = 0;
  FillPattern Style = FillPattern::Solid;
};

/// The pixels behind the surface. What is drawn stays until it is cleared; nothing outside the canvas is touched.
class Canvas {
 public:
  virtual ~Canvas() = default;

  /// Makes the canvas that large, in one colour. Called once, at start.
  virtual void Create(int width, int height, Colour background) = 0;

  /// Removes everything that was drawn, a loaded picture too.
  virtual void Clear(Colour background) = 0;

  /// A line with round ends, both end points included.
  virtual void Line(const Stroke& stroke, PixelPoint from, PixelPoint to) = 0;

  /// A box with that diagonal, corners included; the outline is inside the box.
  virtual void Box(const Stroke& stroke, const Filling& filling, PixelPoint from, PixelPoint to) = 0;

  /// An ellipse with half-axes in pixels (not negative, fractions allowed); the outline is inside its bounds.
  virtual void Ellipse(const Stroke& stroke, const Filling& filling, PixelPoint centre, double halfWidth,
                       double halfHeight) = 0;

  /// A point as wide as the stroke.
  virtual void Point(const Stroke& stroke, PixelPoint at) = 0;

  /// The colour at a point, or nothing outside the canvas.
  virtual std::optional<Colour> ColourAt(PixelPoint at) const = 0;

  /// Replaces the pixels of the point's colour that are connected to it through their four neighbours, within the upper
  /// `rows` rows of the canvas. Does nothing if the point is outside them.
  virtual void FloodFill(PixelPoint at, Colour fill, int rows) = 0;

  /// Prints one line of text; the point is its top left corner. The picture shows through between the letters.
  virtual void Print(std::string_view text, PixelPoint at, double pointSize, Colour color) = 0;

  /// Puts a picture, in its own size, at the top left on the background colour. It replaces everything that was drawn.
  /// Fails (invalid picture), and changes nothing, if the file can't be read as a picture.
  virtual void LoadPicture(const std::filesystem::path& file, Colour background) = 0;

  /// Writes the upper left part of the canvas, in pixels, as a picture; the file's ending (.bmp, .png, .jpg; any case)
  /// decides the format. Fails (file access) if the file can't be written; an existing file then stays as it was.
  virtual void SavePicture(const std::filesystem::path& file, int width, int height) const = 0;
};

/// A canvas without pixels: every point has the background colour, every picture file that exists can be loaded.
class EmptyCanvas : public Canvas {
 public:
  void Create(int width, int height, Colour background) override;
  void Clear(Colour background) override;
  void Line(const Stroke&, PixelPoint, PixelPoint) override {}
  void Box(const Stroke&, const Filling&, PixelPoint, PixelPoint) override {}
  void Ellipse(const Stroke&, const Filling&, PixelPoint, double, double) override {}
  void Point(const Stroke&, PixelPoint) override {}
  std::optional<Colour> ColourAt(PixelPoint at) const override;
  void FloodFill(PixelPoint, Colour, int) override {}
  void Print(std::string_view, PixelPoint, double, Colour) override {}
  void LoadPicture(const std::filesystem::path& file, Colour background) override;
  void SavePicture(const std::filesystem::path& file, int width, int height) const override;

 private:
  int columns_ = 0;
  int rows_ = 0;
  Colour colour_ = 0;
};

}  // namespace zerimo
