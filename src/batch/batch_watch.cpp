#include "batch/batch_watch.h"

#include <algorithm>
#include <thread>

namespace zerimo::batch {

BatchWatch::BatchWatch(std::uint64_t steps, double seconds, std::uint64_t ticks)
    : stepLimit_(steps), tickLimit_(ticks), secondLimit_(seconds) {}

void BatchWatch::StartClock() {
  if (secondLimit_ == 0) return;
  end_ = Clock::now() + std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(secondLimit_));
}

void BatchWatch::BeginEvent() {
  stepsTaken_ = 0;
  LookAtClock();
}

void BatchWatch::Step() {
  if (stepLimit_ != 0 && ++stepsTaken_ > stepLimit_) throw Stopped{"steps"};
  LookAtClockNowAndThen();
}

void BatchWatch::Sleep(std::chrono::milliseconds duration) {
  if (duration.count() > 0) std::this_thread::sleep_until(std::min(Clock::now() + duration, end_));
  LookAtClock();
}

void BatchWatch::LookAtClockNowAndThen() {
  constexpr unsigned interval = 8;
  if (++looks_ % interval == 0) LookAtClock();
}

void BatchWatch::LookAtClock() const {
  if (secondLimit_ != 0 && Clock::now() >= end_) throw Stopped{"seconds"};
}

}  // namespace zerimo::batch
