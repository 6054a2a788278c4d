#pragma once

#include <chrono>
#include <cstdint>
#include <exception>
#include <functional>

#include "base/watch.h"
#include "desktop/clock_looks.h"
#include "desktop/stage.h"

namespace zerimo {

/// A run would take the machine's memory. Only the session catches it.
class OutOfMemory : public std::exception {
 public:
  const char* what() const noexcept override { return "The program needs more memory than the computer can spare."; }
};

/// The bytes that a process may occupy before others suffer: half of the machine's memory, but not more than 2
/// gigabytes.
std::uint64_t MemoryToSpare();

/// Shows the picture as it grows while a line runs, at most once per display frame, and lets the user leave the run
/// wherever it is. A run that would take the machine's memory ends with `OutOfMemory`.
class FrameWatch : public Watch {
 public:
  explicit FrameWatch(Stage& stage) : stage_(stage) {}

  /// Must be called when a handler begins.
  void Begin();

  void Tick() override { LookNowAndThen(); }

  /// Called before each step of a walk, if set.
  std::function<void()> OnStep;

  /// Bytes that the process may occupy.
  std::uint64_t MostMemory = MemoryToSpare();

 private:
  using Clock = ClockLooks::Clock;
  void LookAtStep() override;
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
