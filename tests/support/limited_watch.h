#pragma once

#include "base/failure.h"
#include "base/watch.h"

namespace zerimo {

/// Stops a run after a number of steps or of rounds in any other loop that may never end.
class LimitedWatch : public Watch {
 public:
  explicit LimitedWatch(int mostSteps = 1'000'000, int mostTicks = 1'000'000)
      : stepsLeft(mostSteps), ticksLeft(mostTicks) {}

  void LookAtStep() override {
    if (--stepsLeft < 0) throw Stopped{"steps"};
  }
  void Tick() override {
    if (--ticksLeft < 0) throw Stopped{"ticks"};
  }
  /// Gives a run that many steps from now on.
  void Allow(int steps) { stepsLeft = steps; }
  /// Gives the other loops that many rounds from now on.
  void AllowTicks(int ticks) { ticksLeft = ticks; }

 private:
  int stepsLeft;
  int ticksLeft;
};

}  // namespace zerimo
