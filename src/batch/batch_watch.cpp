#include "batch/batch_watch.h"

#include <algorithm>
#include <thread>

#include "base/failure.h"

namespace zerimo::batch {

BatchWatch::BatchWatch(std::uint64_t steps, double seconds) : stepLimit(steps), secondLimit(seconds) {}

void BatchWatch::StartClock() {
  if (secondLimit == 0) return;
  end = Clock::now() + std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(secondLimit));
}

void BatchWatch::BeginEvent() {
  stepsTaken = 0;
  LookAtClock();
}

void BatchWatch::Step() {
  if (stepLimit != 0 && ++stepsTaken > stepLimit) throw Stopped{"steps"};
  LookAtClockNowAndThen();
}

void BatchWatch::Sleep(std::chrono::milliseconds duration) {
  if (duration.count() > 0) std::this_thread::sleep_until(std::min(Clock::now() + duration, end));
  LookAtClock();
}

void BatchWatch::LookAtClockNowAndThen() {
  constexpr unsigned interval = 8;
  if (++looks % interval == 0) LookAtClock();
}

void BatchWatch::LookAtClock() const {
  if (secondLimit != 0 && Clock::now() >= end) throw Stopped{"seconds"};
}

}  // namespace zerimo::batch
