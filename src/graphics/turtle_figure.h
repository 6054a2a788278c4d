#pragma once

#include <cstdint>
#include <optional>

#include "controls/controls.h"

namespace zerimo {

/// The four light controls above the surface that show the turtle. They are moved, never painted into the picture.
class TurtleFigure {
 public:
  explicit TurtleFigure(Controls& controls) : controls_(controls) {}

  /// Moves the figure: a position in surface units and a heading in radians.
  void TurtlePos(double x, double y, double dir);

  /// The figure takes the colour of a code; the number is replaced by its remainder by 16. A negative one fails.
  void TurtleColor(double& colorCode);

  /// The figure takes a colour made of three parts. Nothing calls it.
  void TurtleColorRGB(double red, double green, double blue);

 private:
  struct Place {
    double X;
    double Y;
    double Dir;
    bool operator==(const Place&) const = default;
  };
  void MoveTo(const Place& place);
  void SetColour(Colour colour);

  Controls& controls_;
  /// Where the figure stands; nobody else moves it.
  std::optional<Place> place_;
};

}  // namespace zerimo
