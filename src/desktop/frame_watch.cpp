#include "desktop/frame_watch.h"

#include <algorithm>

namespace zerimo {

namespace {

constexpr std::chrono::milliseconds Frame{16};
/// The clock is read at one in so many rounds of the small loops.
constexpr unsigned TicksPerLook = 16;
/// Showing takes at most one part in so many of the time.
constexpr int ShareOfShowing = 4;

}  // namespace

void FrameWatch::Begin() { nextFrame = Clock::now() + Frame; }

void FrameWatch::Step() {
  if (stage.IsRunning() && Clock::now() >= nextFrame) ShowFrame();
}

void FrameWatch::Tick() {
  if (++ticks % TicksPerLook == 0) Step();
}

void FrameWatch::ShowFrame() {
  const Clock::time_point start = Clock::now();
  stage.ShowState();
  const Clock::time_point end = Clock::now();
  nextFrame = std::max(start + Frame, end + (ShareOfShowing - 1) * (end - start));
}

}  // namespace zerimo
