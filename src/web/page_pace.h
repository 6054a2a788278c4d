#pragma once

#include <functional>
#include <utility>

#include "console/running_line.h"

namespace zerimo::web {

/// Shows the lines of a program one by one, as slowly as the user has chosen on the page.
class PagePace {
 public:
  /// `show` brings the page up to date.
  PagePace(const Interpreter& interpreter, std::function<void()> show)
      : runningLine_(interpreter), show_(std::move(show)) {}

  /// Shows the line that runs next, holds it, and returns true; at full speed does nothing and returns false. Leaves
  /// the run with `StopRun` if the user stops the program.
  bool Step();

  /// Must be called when a handler is over.
  void End();

 private:
  void Tell();

  RunningLine runningLine_;
  std::function<void()> show_;
};

}  // namespace zerimo::web
