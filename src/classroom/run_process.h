#pragma once

#include <QProcess>
#include <chrono>
#include <functional>

#include "classroom/order.h"

namespace zerimo::classroom {

/// One pupil's run in a process of its own.
class RunProcess {
 public:
  /// Seconds for the start of a process and for its picture, on top of the limit of the session.
  static constexpr double TimeAround = 5;

  /// `folder` is the run's own and is created by `Start`. No failure leaves this object: it becomes the outcome of the
  /// run.
  RunProcess(Order order, std::filesystem::path folder, double timeAround = TimeAround);

  /// `onEnd` is called when the process has ended; it must leave this object alone.
  void Start(const QString& program, std::function<void()> onEnd);

  bool HasEnded() const { return ended_; }

  /// Whether there was no process, or no room for its order: no fault of the program, which may be tried again.
  bool CouldNotStart() const { return couldNotStart_; }

  /// Kills a process that does not stop by itself at the limit of seconds.
  void EndIfLate();

  /// Everything about the run, once it has ended. What the program wrote is deleted.
  PupilRun TakeRun();

 private:
  using Clock = std::chrono::steady_clock;

  RunOutcome OutcomeOfRun() const;
  /// How a process ended that did not report it.
  RunOutcome OutcomeOfSilence() const;

  Order order_;
  std::filesystem::path runFolder_;
  double secondsAround_;
  QProcess process_;
  Clock::time_point begin_ = Clock::now();
  Clock::time_point finish_ = begin_;
  bool ended_ = false;
  bool couldNotStart_ = false;
  bool late_ = false;
};

}  // namespace zerimo::classroom
