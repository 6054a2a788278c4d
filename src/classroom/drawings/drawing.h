#pragma once

#include <cmath>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "graphics/surface.h"

namespace zerimo::classroom {

/// Surface units to a step of the turtle.
inline constexpr double UnitsPerStep = 50;

struct Point {
  double X = 0;
  double Y = 0;
};

inline bool IsNear(Point one, Point other, double tolerance) {
  return std::hypot(one.X - other.X, one.Y - other.Y) <= tolerance;
}

/// A straight line as it was drawn, from its first point to its second. Surface units, y downwards.
struct Line {
  Point From;
  Point To;
  Colour Color = 0;
  /// Whether it is a part of a box or an ellipse.
  bool IsOfOutline = false;

  double Length() const;
};

/// A shape that is not a line: a circle, an oval, a dot or a text.
struct Figure {
  Point Centre;
  /// The half-axes; both 0 for a dot or a text.
  double Across = 0;
  double Down = 0;
  Colour Color = 0;
  std::string Text;
};

/// What can be seen at the end of a run, as shapes in the order in which they were drawn. Lines that an eraser, or a
/// pen of the background's colour, has removed are not there. Poured colour is not a shape.
struct Drawing {
  std::vector<Line> Lines;
  std::vector<Figure> Figures;
  /// Whether there was more than is kept.
  bool IsCut = false;

  static constexpr std::size_t MostShapes = 10'000;

  bool IsEmpty() const { return Lines.empty() && Figures.empty(); }
};

/// The lines, with those that go straight on joined into one.
std::vector<Line> Joined(const std::vector<Line>& lines);

/// Fails with `Failure` (file access).
void WriteDrawing(const std::filesystem::path& file, const Drawing& drawing);
/// Nothing if the file holds no drawing.
std::optional<Drawing> ReadDrawing(const std::filesystem::path& file);

/// Keeps what is drawn on a surface.
class DrawingRecorder final : public SurfaceRecorder {
 public:
  void Record(const Surface& surface, const SurfaceOperation& operation) override;

  const Drawing& Drawn() const { return drawing_; }
  /// Whether a change of the background wiped away what had been drawn.
  bool WasWiped() const { return wiped_; }
  /// Whether anything was ever drawn, poured or loaded.
  bool HasDrawn() const { return hasDrawn_; }
  /// The share of the lines, by length, that is outside the surface, from 0 to 1. Boxes and ellipses do not count: they
  /// may be grounds and hills, which reach beyond it.
  double PartOutside(const Surface& surface) const;
  /// The share of the circles and ovals that is cut off at the left, the right or the top, and of the dots and texts
  /// that are outside, from 0 to 1.
  double PartCutOff(const Surface& surface) const;
  /// The share of the figures, and of the lines that were drawn without a gap, that are outside as a whole.
  double PartWhollyOutside(const Surface& surface) const;
  /// Whether the surface is as empty as at the beginning: there was nothing, or it has been cleared or erased.
  bool IsBlank() const { return drawing_.IsEmpty() && !isPainted_; }
  /// Whether something of it begins, ends or has its middle above or below a band, in fractions of the surface's
  /// height.
  bool LeavesBand(const Surface& surface, double top, double bottom) const;

 private:
  void Add(const Surface& surface, Line line);
  void Add(const Surface& surface, Figure figure);
  void AddBox(const Surface& surface, Point from, Point to);
  void Erase(const Line& eraser);
  void Clear();

  Drawing drawing_;
  bool wiped_ = false;
  bool hasDrawn_ = false;
  /// Whether there is something else than shapes: a picture or a poured colour.
  bool isPainted_ = false;
};

}  // namespace zerimo::classroom
