#include "graphics/flood_fill.h"

#include "base/failure.h"
#include "base/numbers.h"
#include "graphics/step_numbers.h"

namespace zerimo {

void FloodFills::Bind() {
  context_.dispatch.Bind("FLOODFILL", [this](PrimitiveCall& call) { FillFromTurtle(call, &FloodFills::FloodFill); });
  context_.dispatch.Bind("FLOODFILLRGB",
                         [this](PrimitiveCall& call) { FillFromTurtle(call, &FloodFills::FloodFillRGB); });
}

void FloodFills::FillFromTurtle(PrimitiveCall& call, FillProcedure procedure) {
  const Turtle& turtle = context_.turtle;
  context_.Picture1.SetScaleMode(Scale::Pixels);  // Never fails.
  const std::int32_t color = LongNumber(context_.arguments.WordNumber(call.Rest(), 1));
  // Beyond 16 bits the call does not happen, and the surface goes on counting in pixels until the next fill.
  SkipOnFailure([&] {
    (this->*procedure)(ToInt16(turtle.TurtleX / UnitsPerPixel), ToInt16(turtle.TurtleY / UnitsPerPixel), color);
  });
  SkipOnFailure([&] { context_.dispatch.RefreshSurface(); });
}

void FloodFills::FloodFill(std::int16_t x, std::int16_t y, double color) {
  // Leaves the failure to what calls it.
  FillRegion(x, y, [&] { context_.Picture1.SetFillColor(QBColor(ToInt16(color))); });
}

void FloodFills::FloodFillRGB(std::int16_t x, std::int16_t y, double color) {
  // Leaves the failure to what calls it.
  FillRegion(x, y, [&] { context_.Picture1.SetFillColor(ToInt32(color)); });
}

void FloodFills::FillRegion(std::int16_t x, std::int16_t y, const std::function<void()>& setFillColor) {
  Surface& surface = context_.Picture1;
  surface.SetScaleMode(Scale::Pixels);       // Never fails.
  surface.SetFillStyle(FillPattern::Solid);  // Never fails.
  SkipOnFailure(setFillColor);
  SkipOnFailure([&] { surface.ExtFloodFill(x, y, surface.Point(x, y)); });
  surface.SetScaleMode(Scale::Units);  // Never fails.
  // Never fails. What FILLSTYLE and FILL had set is not restored: circles are outlines from now on.
  surface.SetFillStyle(FillPattern::Transparent);
  SkipOnFailure([&] { context_.dispatch.RefreshSurface(); });
}

}  // namespace zerimo
