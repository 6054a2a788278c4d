#include "desktop/input_hold.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QKeyEvent>
#include <QWidget>
#include <QWindow>

namespace zerimo {

namespace {

/// Nobody means more than this of what comes by itself: from a key that something lies on, or from a wheel.
constexpr std::size_t MostByItself = 1000;

bool IsInput(QEvent::Type type) {
  switch (type) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::DragLeave:
    case QEvent::Drop:
      return true;
    default:
      return false;
  }
}

/// What means nothing when it arrives late.
bool IsWorthKeeping(QEvent::Type type) {
  return type != QEvent::ShortcutOverride && type != QEvent::DragEnter && type != QEvent::DragMove &&
         type != QEvent::DragLeave && type != QEvent::Drop;
}

bool ComesByItself(const QEvent& event) {
  const bool isKey = event.type() == QEvent::KeyPress || event.type() == QEvent::KeyRelease;
  return event.type() == QEvent::Wheel || (isKey && static_cast<const QKeyEvent&>(event).isAutoRepeat());
}

}  // namespace

InputHold::InputHold(QWidget& mainWindow) : window(mainWindow) { qApp->installEventFilter(this); }

InputHold::~InputHold() { qApp->removeEventFilter(this); }

void InputHold::End() {
  holding = false;
  for (Kept& one : kept) {
    if (one.Receiver) QCoreApplication::postEvent(one.Receiver, one.Event.release());
  }
  kept.clear();
}

bool InputHold::IsOfMainWindow(QObject* receiver) const {
  if (receiver->isWindowType()) return receiver == window.windowHandle();
  return receiver->isWidgetType() && static_cast<QWidget*>(receiver)->window() == &window;
}

bool InputHold::eventFilter(QObject* receiver, QEvent* event) {
  if (!holding || !IsInput(event->type()) || !IsOfMainWindow(receiver)) return false;
  if (box != nullptr) {
    CallForBox(*event);
  } else {
    Keep(receiver, *event);
  }
  return true;
}

void InputHold::Keep(QObject* receiver, const QEvent& event) {
  if (!IsWorthKeeping(event.type())) return;
  const bool onlyMoves = event.type() == QEvent::MouseMove && !kept.empty() &&
                         kept.back().Event->type() == QEvent::MouseMove && kept.back().Receiver == receiver;
  if (onlyMoves) kept.pop_back();
  if (kept.size() >= MostByItself && ComesByItself(event)) return;
  kept.push_back({receiver, std::unique_ptr<QEvent>(event.clone())});
}

void InputHold::CallForBox(const QEvent& event) {
  if (event.type() != QEvent::MouseButtonPress && event.type() != QEvent::KeyPress) return;
  if (box->isMinimized()) box->showNormal();
  box->raise();
  box->activateWindow();
  QApplication::beep();
}

}  // namespace zerimo
