#pragma once

#include <chrono>

#include "base/watch.h"
#include "desktop/stage.h"

namespace zerimo {

/// Lets the picture grow on the screen while a line runs, at most once per display frame, and lets the window be
/// closed wherever the run hangs.
class FrameWatch : public Watch {
 public:
  explicit FrameWatch(Stage& theStage) : stage(theStage) {}

  /// To be called when a handler begins.
  void Begin();

  void Step() override;
  void Tick() override;

 private:
  using Clock = std::chrono::steady_clock;
  void ShowFrame();

  Stage& stage;
  Clock::time_point nextFrame;
  unsigned ticks = 0;
};

}  // namespace zerimo
