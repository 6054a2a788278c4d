#pragma once

#include <QObject>
#include <QPointer>
#include <deque>
#include <memory>

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

}  // namespace zerimo
