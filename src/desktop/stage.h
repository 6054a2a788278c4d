#pragma once

#include <functional>
#include <memory>

#include "desktop/input_hold.h"

namespace zerimo {

/// What a running handler needs of the window: to show the state it has reached, to stand still behind a box, and to
/// learn that the user wants to close the window.
class Stage {
 public:
  /// To be called once, before anything runs. `showState` copies the state to the widgets.
  void Open(QWidget& mainWindow, std::function<void()> showState);
  QWidget& Window() const { return *window; }

  void BeginRun();
  void EndRun();
  bool IsRunning() const { return running; }

  /// Brings the state to the screen and answers the desktop. Leaves the run with `Ended` if the window is to close.
  void ShowState();

  /// The same without a new state.
  void AnswerDesktop();

  /// Shows a box over the window until it is answered; returns the dialog's result.
  int Stay(QDialog& dialog);

  /// To be called when the user closes the window during a run.
  void RequestClose();

 private:
  QWidget* window = nullptr;
  std::unique_ptr<InputHold> hold;
  std::function<void()> show;
  bool running = false;
  bool closeRequested = false;
};

}  // namespace zerimo
