#include "graphics/turtle_places.h"

#include "base/failure.h"
#include "base/numbers.h"

namespace zerimo {

namespace {

const char* const OutsideText = "The Fence command can not be used while the Turtle is at outside of the Screen";

}  // namespace

void TurtlePlaces::Bind() {
  Dispatch& dispatch = context_.dispatch;
  dispatch.Bind("FENCE", [this](PrimitiveCall&) { Fence(); });
  dispatch.Bind("XCOR", [this](PrimitiveCall&) { XCor(); });
  dispatch.Bind("YCOR", [this](PrimitiveCall&) { YCor(); });
  dispatch.Bind("WINDOW", [this](PrimitiveCall&) { context_.turtle.FenceMode = TurtleBounds::Window; });
  dispatch.Bind("DRAW", [this](PrimitiveCall&) { context_.controls.Image1.Hide(); });
  dispatch.Bind("GETXY", [this](PrimitiveCall&) { GetXY(); });
  dispatch.Bind("HOME", [this](PrimitiveCall&) { Home(); });
  dispatch.Bind("HOMEX", [this](PrimitiveCall&) { HomeX(); });
  dispatch.Bind("HOMEY", [this](PrimitiveCall&) { HomeY(); });
  dispatch.Bind("HOMEXY", [this](PrimitiveCall&) { HomeXY(); });
}

void TurtlePlaces::Fence() {
  Turtle& turtle = context_.turtle;
  // The left edge counts as outside, the top edge as inside; the test of a move differs.
  const bool outside = turtle.TurtleX > context_.Picture1.Width || turtle.TurtleX <= 0 ||
                       turtle.TurtleY > context_.Picture1.Height() || turtle.TurtleY < 0;
  if (outside) {
    context_.services.MessageBox(OutsideText);
  } else {
    turtle.FenceMode = TurtleBounds::Fence;
  }
}

void TurtlePlaces::XCor() {
  const Turtle& turtle = context_.turtle;
  // Rounded in surface units, so that steps may show decimals; `GETXY` shows whole steps.
  const double units = RoundHalfEven(turtle.TurtleX - context_.Picture1.Width / 2.0);  // Never fails.
  context_.services.MessageBox(Str(Divide(units, turtle.Resolution)));                 // Leaves, without a box.
}

void TurtlePlaces::YCor() {
  const Turtle& turtle = context_.turtle;
  const double units = RoundHalfEven(CentreY() - turtle.TurtleY);       // Never fails.
  context_.services.MessageBox(Str(Divide(units, turtle.Resolution)));  // Leaves, without a box.
}

void TurtlePlaces::GetXY() {
  const Turtle& turtle = context_.turtle;
  // Leaves, without a box; so does the next one.
  const double x = RoundHalfEven(Divide(turtle.TurtleX - context_.Picture1.Width / 2.0, turtle.Resolution));
  const double y = RoundHalfEven(Divide(CentreY() - turtle.TurtleY, turtle.Resolution));  // Leaves.
  context_.services.MessageBox(Str(x) + "  " + Str(y));
}

void TurtlePlaces::Home() {
  context_.turtle.TurtleDir = 0;
  HomeXY();
}

void TurtlePlaces::HomeX() { MoveHome(CentreX(), context_.turtle.TurtleY); }

void TurtlePlaces::HomeY() { MoveHome(context_.turtle.TurtleX, CentreY()); }

void TurtlePlaces::HomeXY() { MoveHome(CentreX(), CentreY()); }

void TurtlePlaces::MoveHome(double x, double y) {
  Turtle& turtle = context_.turtle;
  // The fence is not tested: the centre is always allowed.
  if (turtle.PenState != PenPosition::Up)
    SkipOnFailure([&] { context_.Picture1.Line(turtle.TurtleX, turtle.TurtleY, x, y); });
  turtle.TurtleX = x;
  turtle.TurtleY = y;
}

double TurtlePlaces::CentreX() const noexcept { return context_.controls.Form1.Width / 2.0; }

double TurtlePlaces::CentreY() const noexcept { return context_.controls.Form1.Height() / 2.0; }

}  // namespace zerimo
