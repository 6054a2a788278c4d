#include "desktop/frame_watch.h"

#include <algorithm>

#include "base/wide_registers.h"

namespace zerimo {

namespace {

constexpr std::chrono::milliseconds Frame{16};
/// Small loops read the clock once in this many rounds.
constexpr unsigned TicksPerLook = 16;
/// Showing takes at most a quarter of the time.
constexpr int ShareOfShowing = 4;

}  // namespace

void FrameWatch::Begin() {
  FreeWideRegisters();
  nextFrame_ = Clock::now() + Frame;
}

void FrameWatch::Step() {
  if (OnStep) {
    // The call may replace it.
    const auto step = OnStep;
    step();
  }
  Look();
}

void FrameWatch::Tick() {
  if (++ticks_ % TicksPerLook == 0) Look();
}

void FrameWatch::Look() {
  if (stage_.IsRunning() && Clock::now() >= nextFrame_) ShowFrame();
}

void FrameWatch::ShowFrame() {
  if (MemoryInUse() > MostMemory) throw OutOfMemory();
  const Clock::time_point start = Clock::now();
  stage_.ShowState();
  FreeWideRegisters();
  const Clock::time_point end = Clock::now();
  nextFrame_ = std::max(start + Frame, end + (ShareOfShowing - 1) * (end - start));
}

}  // namespace zerimo
