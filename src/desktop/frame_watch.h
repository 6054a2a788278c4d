#pragma once

#include <chrono>
#include <cstdint>
#include <functional>

#include "base/watch.h"
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
  void Tick() override;

  /// Called before each step of a walk, if set.
  std::function<void()> OnStep;

  /// Bytes that the process may occupy.
  std::uint64_t MostMemory = MemoryToSpare();

 private:
  using Clock = std::chrono::steady_clock;
  void Look();
  void ShowFrame();

  Stage& stage_;
  Clock::time_point nextFrame_;
  unsigned ticks_ = 0;
};

}  // namespace zerimo
