#pragma once

#include <cstdint>
#include <functional>

#include "graphics/drawing_context.h"

namespace zerimo {

/// `FLOODFILL` and `FLOODFILLRGB`.
class FloodFills {
 public:
  explicit FloodFills(const DrawingContext& context) : context_(context) {}

  /// Binds the primitives to their actions.
  void Bind();

  /// Fills from a point in pixels with the colour of a code, which is not reduced by 16. Runs under the skip rule.
  void FloodFill(std::int16_t x, std::int16_t y, double color);

  /// The same with a colour value.
  void FloodFillRGB(std::int16_t x, std::int16_t y, double color);

 private:
  using FillProcedure = void (FloodFills::*)(std::int16_t x, std::int16_t y, double color);
  /// The work of both primitives: fills from the turtle's pixel.
  void FillFromTurtle(PrimitiveCall& call, FillProcedure procedure);
  void FillRegion(std::int16_t x, std::int16_t y, const std::function<void()>& setFillColor);

  DrawingContext context_;
};

}  // namespace zerimo
