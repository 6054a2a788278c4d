#include "graphics/turtle_figure.h"

#include <cmath>

#include "base/numbers.h"
#include "graphics/step_numbers.h"

namespace zerimo {

namespace {

constexpr double BodyRadius = 150;
constexpr double HeadRadius = 80;
constexpr double Extension = 200;

struct FigurePoint {
  double X;
  double Y;
};

void PlaceLine(LightLine& line, FigurePoint from, FigurePoint to) {
  line.X1 = ToSingle(from.X);
  line.Y1 = ToSingle(from.Y);
  line.X2 = ToSingle(to.X);
  line.Y2 = ToSingle(to.Y);
}

/// Whether all places of the figure are far inside the range of singles.
bool CanNotFail(double x, double y, double dir) {
  constexpr double far = 1E30;
  return std::abs(x) < far && std::abs(y) < far && std::isfinite(dir);
}

}  // namespace

TurtleFigure::TurtleFigure(Controls& controls) : controls_(controls) {
  controls_.Shape2.Left.LeaveTo(*this);
  controls_.Shape2.Top.LeaveTo(*this);
  for (LightLine* line : {&controls_.Line1, &controls_.Line2, &controls_.Line3}) {
    for (LateNumber* number : {&line->X1, &line->Y1, &line->X2, &line->Y2}) number->LeaveTo(*this);
  }
}

void TurtleFigure::TurtlePos(double x, double y, double dir) {
  const Pose pose{x, y, dir};
  if (pose == pose_) return;
  if (pose_ && CanNotFail(x, y, dir)) {
    pose_ = pose;
    isBehind_ = true;
    return;
  }
  CatchUp();
  // A move that fails has moved some of it: the next one moves all.
  pose_.reset();
  MoveTo(pose);  // Leaves.
  pose_ = pose;
}

void TurtleFigure::CatchUp() {
  if (!isBehind_) return;
  isBehind_ = false;
  MoveTo(*pose_);
}

void TurtleFigure::MoveTo(const Pose& pose) {
  const double dir = pose.Dir;
  const auto pointAt = [&pose](double radius, double angle) {
    return FigurePoint{pose.X + radius * std::cos(angle), pose.Y + radius * std::sin(angle)};
  };
  Shape& head = controls_.Shape2;
  head.Width = ToSingle(2 * HeadRadius);
  head.SetHeight(ToSingle(2 * HeadRadius));
  const FigurePoint headCentre = pointAt(HeadRadius + BodyRadius, dir - ShownPi / 2);
  head.Left = ToSingle(headCentre.X - head.Width / 2.0);
  head.Top = ToSingle(headCentre.Y - head.Height() / 2.0);

  const double reach = BodyRadius + Extension;
  const FigurePoint rearRight = pointAt(reach, dir + ShownPi / 4);
  const FigurePoint rearLeft = pointAt(reach, dir + 3 * ShownPi / 4);
  PlaceLine(controls_.Line1, rearRight, rearLeft);
  const FigurePoint frontRight = pointAt(reach, dir - ShownPi / 4);
  const FigurePoint frontLeft = pointAt(reach, dir - 3 * ShownPi / 4);
  const FigurePoint tip{(frontRight.X + frontLeft.X) / 2, (frontRight.Y + frontLeft.Y) / 2};
  PlaceLine(controls_.Line2, tip, rearRight);
  PlaceLine(controls_.Line3, tip, rearLeft);
}

void TurtleFigure::TurtleColor(double& colorCode) {
  const std::int32_t code = ColourCode(colorCode);
  colorCode = code;
  SetColour(QBColor(code));
}

void TurtleFigure::TurtleColorRGB(double red, double green, double blue) {
  SetColour(RGB(ToInt16(red), ToInt16(green), ToInt16(blue)));
}

void TurtleFigure::SetColour(Colour colour) noexcept {
  controls_.Shape2.BorderColor = colour;
  for (LightLine* line : {&controls_.Line1, &controls_.Line2, &controls_.Line3}) line->BorderColor = colour;
}

}  // namespace zerimo
