#pragma once

#include <algorithm>
#include <chrono>

namespace zerimo {

/// Says in which calls of a watch the clock is to be read, which costs more than most steps: seldom while the calls
/// follow each other quickly, in each call when they are slow.
class ClockLooks {
 public:
  using Clock = std::chrono::steady_clock;

  bool IsDue() { return ++calls_ >= callsToLook_; }

  /// The clock was read.
  void Looked(Clock::time_point now) {
    constexpr unsigned mostCalls = 64;
    constexpr std::chrono::milliseconds quick{1};
    callsToLook_ = now - last_ > quick ? 1 : std::min(2 * callsToLook_, mostCalls);
    calls_ = 0;
    last_ = now;
  }

 private:
  unsigned calls_ = 0;
  unsigned callsToLook_ = 1;
  Clock::time_point last_;
};

}  // namespace zerimo
