#pragma once

namespace zerimo {

/// Showing what a run does takes at most one part in so many of the time.
constexpr int ShareOfShowing = 4;

/// Watches over a run that may never end. A shell enforces its limits here, lets the window repaint, and throws
/// `Stopped` or `Ended` to leave a run wherever it is.
class Watch {
 public:
  virtual ~Watch() = default;
  /// Called at the beginning of each pass of Run1's loop.
  virtual void Step() = 0;
  /// Called in each round of every other loop that may never end.
  virtual void Tick() = 0;
};

}  // namespace zerimo
