#pragma once

#include <QTimer>
#include <array>
#include <functional>
#include <memory>

#include "controls/controls.h"

namespace zerimo {

/// Runs the timers as the data says. A timer that comes due while the system is busy fires once afterwards.
class DesktopTimers {
 public:
  /// `tick` delivers a tick; `isBusy` tells whether it would be lost.
  DesktopTimers(Controls& controls, std::function<void(Timer&)> tick, std::function<bool()> isBusy);

  /// Starts and stops the clocks after the data.
  void Sync();

  /// Lets what came due meanwhile fire as soon as the event loop runs.
  void FireDue();

 private:
  struct Clock {
    Timer* Data = nullptr;
    std::unique_ptr<QTimer> Running;
    bool IsDue = false;
  };
  static bool Ticks(const Timer& timer) { return timer.Enabled && timer.Interval > 0; }
  void ComeDue(Clock& clock);

  std::function<void(Timer&)> deliverTick;
  std::function<bool()> busy;
  std::array<Clock, 3> clocks;
};

}  // namespace zerimo
