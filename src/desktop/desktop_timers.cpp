#include "desktop/desktop_timers.h"

#include <utility>

namespace zerimo {

DesktopTimers::DesktopTimers(Controls& controls, std::function<void(Timer&)> tick, std::function<bool()> busy)
    : deliverTick_(std::move(tick)), busy_(std::move(busy)) {
  Timer* const timers[] = {&controls.Timer2, &controls.Timer3, &controls.Timer4};
  for (std::size_t i = 0; i < clocks_.size(); ++i) {
    Clock& clock = clocks_[i];
    clock.Data = timers[i];
    clock.Running = std::make_unique<QTimer>();
    QObject::connect(clock.Running.get(), &QTimer::timeout, clock.Running.get(), [this, &clock] { ComeDue(clock); });
  }
}

void DesktopTimers::Sync() {
  for (Clock& clock : clocks_) {
    const bool ticks = Ticks(*clock.Data);
    if (!ticks) {
      clock.Running->stop();
      clock.IsDue = false;
    } else if (!clock.Running->isActive() || clock.Running->interval() != clock.Data->Interval) {
      clock.Running->start(clock.Data->Interval);
    }
  }
}

void DesktopTimers::ComeDue(Clock& clock) {
  if (!Ticks(*clock.Data)) return;
  clock.IsDue = busy_();
  if (!clock.IsDue) deliverTick_(*clock.Data);
}

void DesktopTimers::FireDue() {
  for (Clock& clock : clocks_) {
    if (!clock.IsDue) continue;
    const auto fire = [this, &clock] {
      if (clock.IsDue) ComeDue(clock);
    };
    QMetaObject::invokeMethod(clock.Running.get(), fire, Qt::QueuedConnection);
  }
}

}  // namespace zerimo
