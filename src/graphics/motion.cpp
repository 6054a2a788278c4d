#include "graphics/motion.h"

#include <cmath>

#include "base/failure.h"
#include "base/numbers.h"
#include "graphics/step_numbers.h"

namespace zerimo {

namespace {

/// Neither pi nor the figure's `ShownPi`: a full turn leaves the heading at about 6.2831874.
constexpr double TurnPi = 3.1415937;

}  // namespace

void Motion::Bind() {
  BindMoves();
  BindPen();
}

void Motion::BindMoves() {
  Dispatch& dispatch = context_.dispatch;
  dispatch.Bind("FD", [this](PrimitiveCall& call) { Forward(call); });
  dispatch.Bind("BK", [this](PrimitiveCall& call) { Back(call); });
  dispatch.Bind("RT", [this](PrimitiveCall& call) { Right(call); });
  dispatch.Bind("LT", [this](PrimitiveCall& call) { Left(call); });
  dispatch.Bind("SETX", [this](PrimitiveCall& call) { SetX(call); });
  dispatch.Bind("SETY", [this](PrimitiveCall& call) { SetY(call); });
  dispatch.Bind("SETXY", [this](PrimitiveCall& call) { SetXY(call); });
  dispatch.Bind("RESOLUTION", [this](PrimitiveCall& call) { Resolution(call); });
  dispatch.Bind("CS", [this](PrimitiveCall&) { ClearScreen(); });
}

void Motion::BindPen() {
  Dispatch& dispatch = context_.dispatch;
  dispatch.Bind("PEN", [this](PrimitiveCall&) { Pen(); });
  dispatch.Bind("PU", [this](PrimitiveCall&) { context_.turtle.PenState = PenPosition::Up; });
  dispatch.Bind("PD", [this](PrimitiveCall&) { PenDown(); });
  dispatch.Bind("PE", [this](PrimitiveCall&) { PenErase(); });
  dispatch.Bind("PX", [this](PrimitiveCall&) { PenReverse(); });
  dispatch.Bind("HT", [this](PrimitiveCall&) { ShowFigure(false); });
  dispatch.Bind("ST", [this](PrimitiveCall&) { ShowFigure(true); });
  dispatch.Bind("LW", [this](PrimitiveCall& call) { LineWidth(call); });
  dispatch.Bind("DRAWMODE", [this](PrimitiveCall& call) { DrawMode(call); });
  dispatch.Bind("CLEAN", [this](PrimitiveCall&) { context_.Picture1.Cls(); });
}

void Motion::Forward(PrimitiveCall& call) {
  const double distance = StepsToUnits(context_.turtle, context_.arguments.Number(call));
  // The input is evaluated before the test for a missing one, unlike in most primitives.
  if (context_.dispatch.TellMissingInput(call, "FD")) return;
  MoveBy(distance);
}

void Motion::Back(PrimitiveCall& call) {
  const double distance = StepsToUnits(context_.turtle, context_.arguments.Number(call));
  if (context_.dispatch.TellMissingInput(call, "BK")) return;
  MoveBy(-distance);
}

void Motion::MoveBy(double distance) {
  Turtle& turtle = context_.turtle;
  double newX = 0;
  double newY = 0;
  SkipOnFailure([&] { newX = Finite(turtle.TurtleX - distance * std::sin(-turtle.TurtleDir)); });
  SkipOnFailure([&] { newY = Finite(turtle.TurtleY - distance * std::cos(-turtle.TurtleDir)); });
  // If the test fails, the move goes on.
  bool admitted = true;
  SkipOnFailure([&] { admitted = AdmitsMove(newX, newY); });
  if (!admitted) return Refuse();
  DrawTo(newX, newY);
  turtle.TurtleX = newX;
  turtle.TurtleY = newY;
}

bool Motion::AdmitsMove(double x, double y) const {
  const Surface& surface = context_.Picture1;
  return context_.turtle.FenceMode == TurtleBounds::Window ||
         (x >= 0 && x <= surface.Width && y >= 0 && ToSingle(y) <= surface.Height());
}

void Motion::Right(PrimitiveCall& call) {
  // After its box RT goes on and turns by 0.
  context_.dispatch.TellMissingInput(call, "RT");
  Turn(context_.arguments.Number(call));
}

void Motion::Left(PrimitiveCall& call) {
  if (context_.dispatch.TellMissingInput(call, "LT")) return;
  Turn(-context_.arguments.Number(call));
}

void Motion::Turn(double degrees) {
  Turtle& turtle = context_.turtle;
  SkipOnFailure([&] { turtle.TurtleDir = Finite(turtle.TurtleDir + degrees * TurnPi / 180); });
}

void Motion::SetX(PrimitiveCall& call) {
  if (context_.dispatch.TellMissingInput(call, "SETX")) return;
  Turtle& turtle = context_.turtle;
  const double distance = StepsToUnits(turtle, context_.arguments.Number(call));
  double target = 0;
  SkipOnFailure([&] { target = Finite(context_.Picture1.Width / 2.0 + distance); });
  if (!AdmitsSetX(target)) return Refuse();
  DrawTo(target, turtle.TurtleY);
  turtle.TurtleX = target;
}

bool Motion::AdmitsSetX(double x) const noexcept {
  return context_.turtle.FenceMode == TurtleBounds::Window || (x >= 0 && x <= context_.Picture1.Width);
}

void Motion::SetY(PrimitiveCall& call) {
  if (context_.dispatch.TellMissingInput(call, "SETY")) return;
  Turtle& turtle = context_.turtle;
  const double distance = StepsToUnits(turtle, context_.arguments.Number(call));
  double target = 0;
  SkipOnFailure([&] { target = Finite(context_.controls.Form1.Height() / 2.0 - distance); });
  if (!AdmitsSetY(target)) return Refuse();
  DrawTo(turtle.TurtleX, target);
  turtle.TurtleY = target;
}

bool Motion::AdmitsSetY(double y) const noexcept {
  return context_.turtle.FenceMode == TurtleBounds::Window || (y >= 0 && y <= context_.Picture1.Height());
}

void Motion::SetXY(PrimitiveCall& call) {
  Turtle& turtle = context_.turtle;
  const double dx = StepsToUnits(turtle, context_.arguments.WordNumber(call.Rest(), 1));
  // The vertical input has whole steps only.
  const std::int16_t dy = WholeStepsToUnits(turtle, context_.arguments.WordNumber(call.Rest(), 2));
  const double centreX = context_.Picture1.Width / 2.0;
  const double centreY = context_.controls.Form1.Height() / 2.0;
  double targetX = 0;
  SkipOnFailure([&] { targetX = Finite(dx + centreX); });
  const std::int16_t targetY = WholeNumber(centreY - dy);
  if (!AdmitsSetXY(targetX, targetY)) return Refuse();
  DrawTo(targetX, targetY);
  SkipOnFailure([&] { turtle.TurtleX = Finite(centreX + dx); });
  // Not rounded: the turtle may be half a unit away from the end of its line.
  turtle.TurtleY = centreY - dy;
}

bool Motion::AdmitsSetXY(double x, double y) const noexcept {
  // The left and the top edge are refused here, unlike in `FD`.
  return context_.turtle.FenceMode == TurtleBounds::Window ||
         (x > 0 && x <= context_.Picture1.Width && y > 0 && y <= context_.Picture1.Height());
}

void Motion::DrawTo(double x, double y) {
  const Turtle& turtle = context_.turtle;
  if (turtle.PenState == PenPosition::Up) return;
  SkipOnFailure([&] { context_.Picture1.Line(turtle.TurtleX, turtle.TurtleY, x, y); });
}

void Motion::Refuse() { context_.services.MessageBox("The Zerimo Turtle can not move outside of the Fence"); }

void Motion::Resolution(PrimitiveCall& call) {
  double value = context_.arguments.Number(call);
  if (value == 0) value = 10;
  // After its box RESOLUTION goes on: a missing input gives 10.
  context_.dispatch.TellMissingInput(call, "RESOLUTION");
  context_.turtle.Resolution = value;
}

void Motion::Pen() {
  context_.services.MessageBox(std::string(PenStateName(context_.turtle.PenState)), box::Information, "Zerimo");
}

void Motion::PenDown() {
  context_.turtle.PenState = PenPosition::Down;
  SkipOnFailure([&] { context_.Picture1.SetForeColor(QBColor(context_.turtle.PenColor)); });
}

void Motion::PenErase() {
  context_.turtle.PenState = PenPosition::Erase;
  context_.Picture1.SetForeColor(context_.Picture1.BackColor());
}

void Motion::PenReverse() {
  // An erasing pen goes on erasing.
  if (context_.turtle.PenState == PenPosition::Up) {
    PenDown();
  } else if (context_.turtle.PenState == PenPosition::Down) {
    context_.turtle.PenState = PenPosition::Up;
  }
}

void Motion::ShowFigure(bool visible) noexcept {
  Controls& controls = context_.controls;
  controls.Shape2.SetVisible(visible);
  controls.Line1.SetVisible(visible);
  controls.Line2.SetVisible(visible);
  controls.Line3.SetVisible(visible);
}

void Motion::LineWidth(PrimitiveCall& call) {
  if (context_.dispatch.TellMissingInput(call, "LW")) return;
  const double width = context_.arguments.Number(call);
  SkipOnFailure([&] { context_.Picture1.SetDrawWidth(ToInt16(width)); });
}

void Motion::DrawMode(PrimitiveCall& call) {
  if (context_.dispatch.TellMissingInput(call, "DRAWMODE")) return;
  const double mode = context_.arguments.Number(call);
  SkipOnFailure([&] { context_.Picture1.SetDrawMode(DrawingMode{ToInt16(mode)}); });
}

void Motion::ClearScreen() {
  Controls& controls = context_.controls;
  Turtle& turtle = context_.turtle;
  controls.Image1.Hide();
  // Never fails: there are such captions.
  for (int index = 0; index < controls.Label20.Size; ++index) controls.Label20[index].Hide();
  turtle.TurtleDir = 0;
  turtle.TurtleX = controls.Form1.Width / 2.0;
  turtle.TurtleY = controls.Form1.Height() / 2.0;
  context_.Picture1.Cls();
}

}  // namespace zerimo
