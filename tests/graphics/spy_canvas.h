#pragma once

#include <string>
#include <vector>

#include "base/numbers.h"
#include "graphics/canvas.h"

namespace zerimo {

/// A canvas without pixels that records, in pixels, what it is asked to draw.
class SpyCanvas : public EmptyCanvas {
 public:
  void Clear(Colour background) override {
    EmptyCanvas::Clear(background);
    Log("Clear", {static_cast<double>(background)});
  }
  void Line(const Stroke& stroke, PixelPoint from, PixelPoint to) override {
    LastStroke = stroke;
    Log("Line", {from.X, from.Y, to.X, to.Y});
  }
  void Box(const Stroke& stroke, const Filling& filling, PixelPoint from, PixelPoint to) override {
    LastStroke = stroke;
    LastFilling = filling;
    Log("Box", {from.X, from.Y, to.X, to.Y});
  }
  void Ellipse(const Stroke& stroke, const Filling& filling, PixelPoint centre, double halfWidth,
               double halfHeight) override {
    LastStroke = stroke;
    LastFilling = filling;
    Log("Ellipse", {centre.X, centre.Y, halfWidth, halfHeight});
  }
  void Point(const Stroke& stroke, PixelPoint at) override {
    LastStroke = stroke;
    Log("Point", {at.X, at.Y});
  }
  void FloodFill(PixelPoint at, Colour fill, int) override {
    Log("FloodFill", {at.X, at.Y, static_cast<double>(fill)});
  }
  void Print(std::string_view text, PixelPoint at, double pointSize, Colour color) override {
    Log("Print " + std::string(text), {at.X, at.Y, pointSize, static_cast<double>(color)});
  }

  std::vector<std::string> Calls;
  Stroke LastStroke;
  Filling LastFilling;

 private:
  void Log(std::string call, const std::vector<double>& numbers) {
    for (const double number : numbers) call += " " + StrTrimmed(number);
    Calls.push_back(call);
  }
};

}  // namespace zerimo
