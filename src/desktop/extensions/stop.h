#pragma once

#include <QElapsedTimer>

#include "desktop/session.h"

namespace zerimo {

/// Stops the running line: with Ctrl+Break or Ctrl+., with a button in a box that comes back at once, and as an answer
/// when the window is closed during a run.
class Stop : public Extension {
 public:
  explicit Stop(Session& session) : session_(session) {}

  bool PressKey(const QKeyEvent& press) override;
  void RunBegins() override { sinceAnswer_.invalidate(); }
  void BoxOpens(QDialog& dialog) override;
  void BoxCloses() override { sinceAnswer_.start(); }
  bool ClosesDuringRun() override;

 private:
  bool IsProgramRunning() const;
  void AskToLeave();

  Session& session_;
  /// Since the last box of this run was answered.
  QElapsedTimer sinceAnswer_;
  bool asking_ = false;
};

}  // namespace zerimo
