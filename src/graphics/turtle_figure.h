#pragma once

#include <cstdint>
#include <optional>

#include "controls/controls.h"

namespace zerimo {

/// The four lightweight controls over the surface that show the turtle. They are moved, never painted into the picture,
/// and moved only when somebody looks where they are.
class TurtleFigure : PutOff {
 public:
  explicit TurtleFigure(Controls& controls);
  ~TurtleFigure() override = default;
  TurtleFigure(const TurtleFigure&) = delete;
  TurtleFigure& operator=(const TurtleFigure&) = delete;

  /// Moves the figure: a position in surface units and a heading in radians.
  void TurtlePos(double x, double y, double dir);

  /// Gives the figure the colour of a code; the number is replaced by its remainder by 16. Fails (invalid argument) if
  /// that is negative.
  void TurtleColor(double& colorCode);

  /// Gives the figure a colour made of three parts. Nothing calls it.
  void TurtleColorRGB(double red, double green, double blue);

 private:
  struct Pose {
    double X;
    double Y;
    double Dir;
    bool operator==(const Pose&) const = default;
  };
  /// Never fails: a move that could is not put off.
  void CatchUp() override;
  void MoveTo(const Pose& pose);
  void SetColour(Colour colour) noexcept;

  Controls& controls_;
  /// Where the figure is; nothing else moves it.
  std::optional<Pose> pose_;
  bool isBehind_ = false;
};

}  // namespace zerimo
