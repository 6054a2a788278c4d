#pragma once

#include <QObject>
#include <QPointer>
#include <deque>
#include <functional>
#include <memory>

#include "desktop/extension.h"

class QDialog;
class QEvent;
class QWidget;

namespace zerimo {

/// Holds back keys and mouse events for the window while a handler of the system runs, and delivers them afterwards in
/// order. While a box is open, the box gets its input, and input for the window is dropped.
class InputHold : public QObject {
 public:
  explicit InputHold(QWidget& window);
  ~InputHold() override;

  void Begin() { holding_ = true; }
  /// Posts the events held back.
  void End();

  /// The topmost open box, or null.
  QDialog* Box() const { return box_; }
  void SetBox(QDialog* standing) { box_ = standing; }

 protected:
  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  struct Kept {
    QPointer<QObject> Receiver;
    std::unique_ptr<QEvent> Event;
  };
  bool IsOfMainWindow(QObject* receiver) const;
  void Keep(QObject* receiver, const QEvent& event);
  void CallForBox(const QEvent& event);

  QWidget& window_;
  std::deque<Kept> kept_;
  QDialog* box_ = nullptr;
  bool holding_ = false;
};

/// What a running handler needs from the window: showing the state reached so far, waiting behind a box, and learning
/// that the user wants to leave the run.
class Stage {
 public:
  explicit Stage(const Extensions& extensions) : extensions_(extensions) {}

  /// Must be called once, before anything runs. `showState` copies the state to the widgets.
  void Open(QWidget& window, std::function<void()> showState);
  QWidget& Window() const { return *window_; }

  void BeginRun();
  void EndRun();
  bool IsRunning() const { return running_; }

  /// Brings the screen up to date and answers the desktop. Leaves the run with `Ended` if the window is to close, and
  /// with `StopRun` if the run is to stop.
  void ShowState();

  /// Answers the desktop without bringing the screen up to date. Leaves the run likewise.
  void AnswerDesktop();

  /// Shows a box over the window until it is answered; returns the dialog's result. Leaves the run likewise.
  int Stay(QDialog& dialog);

  /// Shows a box of the shell's own in the same way, from any handler of the toolkit; never leaves.
  int Ask(QDialog& dialog);
  bool HasBox() const { return hold_->Box() != nullptr; }

  /// Must be called when the user closes the window during a run.
  void RequestClose();

  /// Lets the run stop as soon as it next answers the desktop. An open box counts as closed.
  void RequestStop();

 private:
  void LeaveIfAsked();
  void CloseBox();

  const Extensions& extensions_;
  QWidget* window_ = nullptr;
  std::unique_ptr<InputHold> hold_;
  std::function<void()> show_;
  bool running_ = false;
  bool closeRequested_ = false;
  bool stopRequested_ = false;
};

}  // namespace zerimo
