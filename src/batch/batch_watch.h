#pragma once

#include <chrono>
#include <cstdint>

#include "base/watch.h"

namespace zerimo::batch {

/// Keeps the limits of a session and throws `Stopped` where one is reached. A limit of 0 is none.
class BatchWatch final : public Watch {
 public:
  BatchWatch(std::uint64_t steps, double seconds);

  /// The wall-clock time starts to run.
  void StartClock();
  /// A typed line or handler begins: its steps are counted afresh.
  void BeginEvent();

  void Step() override;
  void Tick() override { LookAtClockNowAndThen(); }

  /// Sleeps, but not beyond the limit of seconds; there it stops.
  void Sleep(std::chrono::milliseconds duration);

 private:
  using Clock = std::chrono::steady_clock;

  void LookAtClockNowAndThen();
  void LookAtClock() const;

  std::uint64_t stepLimit_;
  std::uint64_t stepsTaken_ = 0;
  double secondLimit_;
  Clock::time_point end_ = Clock::time_point::max();
  unsigned looks_ = 0;
};

}  // namespace zerimo::batch
