#pragma once

#include "console/running_line.h"
#include "desktop/extensions/run_chip.h"
#include "desktop/extensions/zoom.h"

class QListView;

namespace zerimo {

/// Lets a program be watched: Ctrl+1 to Ctrl+4 choose how fast its lines run.
class Speed : public Extension {
 public:
  Speed(Session& session, RunChip& chip, Zoom& zoom);

  bool PressKey(const QKeyEvent& press) override;
  void RunEnds() override;

 private:
  struct Pace {
    int Key;
    /// What the chip says while nothing runs; nothing at full speed.
    const char* Words;
    /// How long a line is shown before it runs, in milliseconds; negative: until the space bar is pressed.
    int Pause;
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
