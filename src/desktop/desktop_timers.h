#pragma once

#include <QTimer>
#include <array>
#include <functional>
#include <memory>

#include "controls/controls.h"

namespace zerimo {

/// Runs the system's timers. One that comes due while the system is busy fires once afterwards.
class DesktopTimers {
 public:
  /// `tick` delivers a tick; `busy` tells whether the system can take none now.
  DesktopTimers(Controls& controls, std::function<void(Timer&)> tick, std::function<bool()> busy);

  /// Starts and stops the clocks as the data says.
  void Sync();

  /// Lets the timers that came due while the system was busy fire from the event loop.
  void FireDue();

 private:
  struct Clock {
    Timer* Data = nullptr;
    std::unique_ptr<QTimer> Running;
    bool IsDue = false;
  };
  static bool Ticks(const Timer& timer) { return timer.Enabled && timer.Interval > 0; }
  void ComeDue(Clock& clock);

  std::function<void(Timer&)> deliverTick_;
  std::function<bool()> busy_;
  std::array<Clock, 3> clocks_;
};

}  // namespace zerimo
