#pragma once

#include <chrono>
#include <cstdint>
#include <functional>

#include "base/watch.h"
#include "desktop/clock_looks.h"
#include "desktop/memory_in_use.h"
#include "desktop/stage.h"

namespace zerimo {

/// Shows the picture as it grows while a line runs, at most once per display frame, and lets the user leave the run
/// wherever it is. A run that would take the machine's memory ends with `OutOfMemory`.
class FrameWatch : public Watch {
 public:
  explicit FrameWatch(Stage& stage) : stage_(stage) {}

  /// Must be called when a handler begins.
  void Begin();

  void Step() override;
  void Tick() override { LookNowAndThen(); }

  /// Called before each step of a walk, if set.
  std::function<void()> OnStep;

  /// Bytes that the process may occupy.
  std::uint64_t MostMemory = MemoryToSpare();

 private:
  using Clock = ClockLooks::Clock;
  void LookNowAndThen() {
    if (looks_.IsDue()) Look();
  }
  void Look();
  void ShowFrame();

  Stage& stage_;
  Clock::time_point nextFrame_;
  ClockLooks looks_;
};

}  // namespace zerimo
