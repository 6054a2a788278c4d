#include "graphics/turtle_places.h"

#include "base/failure.h"
#include "base/numbers.h"

namespace zerimo {

namespace {

const char* const OutsideText = "The Fence command can not be used while the Turtle is at outside of the Screen";

}  // namespace

void TurtlePlaces::Bind() {
  Dispatch& primitives = context_.Primitives;
  primitives.Bind(Action::Fence, [this](PrimitiveCall&) { Fence(); });
  primitives.Bind(Action::XCor, [this](PrimitiveCall&) { XCor(); });
  primitives.Bind(Action::YCor, [this](PrimitiveCall&) { YCor(); });
  primitives.Bind(Action::Window, [this](PrimitiveCall&) { context_.Turtle.FenceMode = 1; });
  primitives.Bind(Action::Draw, [this](PrimitiveCall&) { context_.Controls.Image1.Hide(); });
  primitives.Bind(Action::GetXY, [this](PrimitiveCall&) { GetXY(); });
  primitives.Bind(Action::Home, [this](PrimitiveCall&) { Home(); });
  primitives.Bind(Action::HomeX, [this](PrimitiveCall&) { HomeX(); });
  primitives.Bind(Action::HomeY, [this](PrimitiveCall&) { HomeY(); });
  primitives.Bind(Action::HomeXY, [this](PrimitiveCall&) { HomeXY(); });
}

void TurtlePlaces::Fence() {
  TurtleState& turtle = context_.Turtle;
  // The left edge counts as outside, the top edge as inside; a move is tested otherwise.
  const bool outside = turtle.TurtleX > context_.Picture1.Width || turtle.TurtleX <= 0 ||
                       turtle.TurtleY > context_.Picture1.Height() || turtle.TurtleY < 0;
  if (outside) {
    context_.Desktop.MessageBox(OutsideText);
  } else {
    turtle.FenceMode = 2;
  }
}

void TurtlePlaces::XCor() {
  const TurtleState& turtle = context_.Turtle;
  // Rounded in surface units, so that steps may show decimals; `GETXY` shows whole steps.
  const double units = RoundHalfEven(turtle.TurtleX - context_.Picture1.Width / 2.0);
  context_.Desktop.MessageBox(Str(Divide(units, turtle.Resolution)));
}

void TurtlePlaces::YCor() {
  const TurtleState& turtle = context_.Turtle;
  const double units = RoundHalfEven(CentreY() - turtle.TurtleY);
  context_.Desktop.MessageBox(Str(Divide(units, turtle.Resolution)));
}

void TurtlePlaces::GetXY() {
  const TurtleState& turtle = context_.Turtle;
  const double x = RoundHalfEven(Divide(turtle.TurtleX - context_.Picture1.Width / 2.0, turtle.Resolution));
  const double y = RoundHalfEven(Divide(CentreY() - turtle.TurtleY, turtle.Resolution));
  context_.Desktop.MessageBox(Str(x) + "  " + Str(y));
}

void TurtlePlaces::Home() {
  context_.Turtle.TurtleDir = 0;
  HomeXY();
}

void TurtlePlaces::HomeX() { MoveHome(CentreX(), context_.Turtle.TurtleY); }

void TurtlePlaces::HomeY() { MoveHome(context_.Turtle.TurtleX, CentreY()); }

void TurtlePlaces::HomeXY() { MoveHome(CentreX(), CentreY()); }

void TurtlePlaces::MoveHome(double x, double y) {
  TurtleState& turtle = context_.Turtle;
  // No fence is asked: the centre is always allowed.
  if (turtle.PenState != 2) PassOver([&] { context_.Picture1.Line(turtle.TurtleX, turtle.TurtleY, x, y); });
  turtle.TurtleX = x;
  turtle.TurtleY = y;
}

double TurtlePlaces::CentreX() const { return context_.Controls.Form1.Width / 2.0; }

double TurtlePlaces::CentreY() const { return context_.Controls.Form1.Height() / 2.0; }

}  // namespace zerimo
