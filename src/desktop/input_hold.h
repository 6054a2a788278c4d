#pragma once

#include <QObject>
#include <QPointer>
#include <deque>
#include <memory>

class QDialog;
class QEvent;
class QWidget;

namespace zerimo {

/// Keeps keys and mouse from the window while a handler of the system runs. What the user types and clicks meanwhile
/// arrives afterwards, in its order. While a box stands, input to the box goes through, and what is meant for the
/// window is dropped.
class InputHold : public QObject {
 public:
  explicit InputHold(QWidget& mainWindow);
  ~InputHold() override;

  void Begin() { holding = true; }
  /// Lets what was kept arrive in the event loop.
  void End();

  /// The topmost box that stands, or nothing.
  QDialog* Box() const { return box; }
  void SetBox(QDialog* standing) { box = standing; }

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

  QWidget& window;
  std::deque<Kept> kept;
  QDialog* box = nullptr;
  bool holding = false;
};

}  // namespace zerimo
