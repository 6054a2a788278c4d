#pragma once

#include <QElapsedTimer>
#include <QTimer>

#include "console/running_line.h"
#include "desktop/extensions/zoom.h"
#include "desktop/session.h"

class QLabel;
class QListView;

namespace zerimo {

/// A small label in the corner of the picture: it shows what it is given to say and, once a program has run for two
/// seconds, how long it has and how to stop it. It takes no focus and no clicks.
class RunChip : public Extension {
 public:
  explicit RunChip(Session& session);

  /// Shows words above the time, until it is given others or none.
  void Say(const QString& words);

  void RunBegins() override;
  void RunEnds() override;

 private:
  void Show();

  Session& session_;
  /// Belongs to the window.
  QLabel& label_;
  QString said_;
  QElapsedTimer running_;
  QTimer clock_;
};

/// Lets a program be watched: Ctrl+1 to Ctrl+4 choose how fast its lines run.
class Speed : public Extension {
 public:
  Speed(Session& session, RunChip& chip, Zoom& zoom);

  bool PressKey(const QKeyEvent& press) override;
  void RunEnds() override;

 private:
  struct Pace {
    int Key;
    /// How long a line is shown before it runs, in milliseconds; negative: until the space bar is pressed.
    int Pause;
    /// What the chip says while nothing runs; nothing at full speed.
    const char* Words;
  };
  static const Pace Paces[4];

  void Choose(const Pace& pace);
  void Step();
  /// In the list of the diagnosis panel.
  void MarkLine();
  void ForgetLine();

  Session& session_;
  RunChip& chip_;
  Zoom& zoom_;
  QListView& list_;
  RunningLine runningLine_;
  const Pace* pace_ = &Paces[0];
  bool waiting_ = false;
};

}  // namespace zerimo
