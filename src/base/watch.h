#pragma once

#include <cstdint>

namespace zerimo {

/// Showing what a run does takes at most one part in so many of the time.
constexpr int ShareOfShowing = 4;

/// Watches over a run that may never end. A shell enforces its limits here, lets the window repaint, and throws
/// `Stopped` or `Ended` to leave a run wherever it is.
class Watch {
 public:
  virtual ~Watch() = default;
  /// Called at the beginning of each pass of Run1's loop. Most steps are only counted.
  void Step() {
    if (++stepsTaken_ >= nextLook_) LookAtStep();
  }
  /// Called in each round of every other loop that may never end.
  virtual void Tick() = 0;

 protected:
  /// Called at each step from number `nextLook_` on.
  virtual void LookAtStep() = 0;

  std::uint64_t stepsTaken_ = 0;
  std::uint64_t nextLook_ = 0;
};

}  // namespace zerimo
