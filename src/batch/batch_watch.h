#pragma once

#include <chrono>
#include <cstdint>
#include <functional>

#include "base/failure.h"
#include "base/watch.h"

namespace zerimo::batch {

/// Enforces the limits of a session and throws `Stopped` when one is reached. A limit of 0 means none.
class BatchWatch final : public Watch {
 public:
  BatchWatch(std::uint64_t steps, double seconds, std::uint64_t ticks = 0);

  /// Starts the wall clock.
  void StartClock();
  /// A typed line or handler begins: its steps are counted from 0.
  void BeginEvent();

  /// Called at the end of each step, if set before an event begins.
  std::function<void()> OnStep;
  void Tick() override {
    if (tickLimit_ != 0 && ++ticksTaken_ > tickLimit_) throw Stopped{"ticks"};
    LookAtClock();
  }

  /// Sleeps, but stops the session at the limit of seconds.
  void Sleep(std::chrono::milliseconds duration);

 private:
  using Clock = std::chrono::steady_clock;

  /// Looks at the clock and whether the step is one too many, and says when to look again.
  void LookAtStep() override;
  void LookAtClock() const;
  void StopAfter(Clock::time_point now) const;
  static Clock::time_point Now();

  std::uint64_t stepLimit_;
  std::uint64_t tickLimit_;
  std::uint64_t ticksTaken_ = 0;
  double secondLimit_;
  Clock::time_point end_ = Clock::time_point::max();
};

}  // namespace zerimo::batch
