#include "desktop/extensions/screen_scale.h"

#include <algorithm>
#include <cmath>

namespace zerimo {

namespace {

constexpr int WidestUnscaled = 2600;
/// What a scaled window is about as wide as.
constexpr double UsualWidth = 1920;

}  // namespace

int ScaleForScreen(int width, double ratio) {
  if (width <= WidestUnscaled || ratio != 1) return 100;
  return 100 * std::clamp(static_cast<int>(std::lround(width / UsualWidth)), 2, 4);
}

}  // namespace zerimo
