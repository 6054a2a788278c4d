#include "console/status_line.h"

#include <array>

#include "base/numbers.h"

namespace zerimo {

namespace {

constexpr std::array<std::string_view, 16> ColourNames = {
    "Black",     "Blue",       "Green",       "Sky Blue", "Red",       "Pink",       "Orange", "Light Gray",
    "Dark Gray", "Light Blue", "Light Green", "Cyan",     "Light Red", "Light Pink", "Yellow", "White",
};

}  // namespace

std::string_view ColourName(std::int32_t code) noexcept {
  return code >= 0 && code < 16 ? ColourNames[static_cast<std::size_t>(code)] : std::string_view{};
}

void StatusLine::TitleText() {
  const std::string background(ColourName(turtle_.BGColor));
  const std::string pen(ColourName(turtle_.PenColor));
  const std::string state(PenStateName(turtle_.PenState));
  const Window& form = controls_.Form1;
  // Each of the three leaves, and the title stays as it is.
  const double x = Divide(RoundHalfEven(turtle_.TurtleX - static_cast<double>(form.Width / 2)), turtle_.Resolution);
  const double y =
      Divide(RoundHalfEven(static_cast<double>(form.Height() / 2) - turtle_.TurtleY), turtle_.Resolution);  // Leaves.
  const std::int16_t direction = ToInt16(180 * turtle_.TurtleDir / ShownPi);                                // Leaves.
  controls_.Form1.SetCaption("Zerimo        [Xpos:" + Str(x) + "]  [Ypos:" + Str(y) +
                             "]  [RT-Direction: " + Str(direction) + "]  [Pen Color:" + pen +
                             "]  [BG Color: " + background + "]  [Pen State:" + state + "]");
}

void StatusLine::Timer4Tick() { controls_.Form1.SetCaption("Zerimo [ Time:" + services_.TimeOfDay() + " ]"); }

}  // namespace zerimo
