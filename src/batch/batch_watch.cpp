#include "batch/batch_watch.h"

#include <algorithm>
#include <ctime>
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
  nextLook_ = 0;
  LookAtClock();
}

void BatchWatch::LookAtStep() {
  // Most steps take less time than the clock; a step that is slow because its text is long has ticks of its own.
  constexpr std::uint64_t stepsPerLook = 16;
  nextLook_ = stepsTaken_ + (OnStep ? 1 : stepsPerLook);
  if (stepLimit_ != 0) {
    if (stepsTaken_ > stepLimit_) throw Stopped{"steps"};
    nextLook_ = std::min(nextLook_, stepLimit_ + 1);
  }
  LookAtClock();
  if (OnStep) OnStep();
}

void BatchWatch::Sleep(std::chrono::milliseconds duration) {
  if (duration.count() > 0) std::this_thread::sleep_until(std::min(Clock::now() + duration, end_));
  StopAfter(Clock::now());
}

void BatchWatch::LookAtClock() const {
  if (secondLimit_ != 0) StopAfter(Now());
}

void BatchWatch::StopAfter(Clock::time_point now) const {
  if (now >= end_) throw Stopped{"seconds"};
}

BatchWatch::Clock::time_point BatchWatch::Now() {
#ifdef __linux__
  // A round of a loop over a long text may take a tenth of a second, and another one nothing: so that it can be looked
  // at in each round, this clock is cheap. It is exact to some milliseconds, and the same that `Clock` reads.
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC_COARSE, &now);
  return Clock::time_point(std::chrono::seconds(now.tv_sec) + std::chrono::nanoseconds(now.tv_nsec));
#else
  return Clock::now();
#endif
}

}  // namespace zerimo::batch
