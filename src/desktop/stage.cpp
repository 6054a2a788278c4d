#include "desktop/stage.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDialog>
#include <QEvent>
#include <QEventLoop>
#include <QKeyEvent>
#include <QWidget>
#include <QWindow>
#include <utility>

#include "base/failure.h"
#include "base/stop_run.h"

namespace zerimo {

namespace {

/// The limit for events that a user may cause without meaning to, such as a book lying on a key.
constexpr std::size_t MostRepeats = 1000;

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

/// A drag, or a shortcut being looked for, can't be answered later.
bool CanArriveLate(QEvent::Type type) {
  return type != QEvent::ShortcutOverride && type != QEvent::DragEnter && type != QEvent::DragMove &&
         type != QEvent::DragLeave && type != QEvent::Drop;
}

bool Repeats(const QEvent& event) {
  const bool isKey = event.type() == QEvent::KeyPress || event.type() == QEvent::KeyRelease;
  return event.type() == QEvent::Wheel || (isKey && static_cast<const QKeyEvent&>(event).isAutoRepeat());
}

}  // namespace

InputHold::InputHold(QWidget& window) : window_(window) { qApp->installEventFilter(this); }

InputHold::~InputHold() { qApp->removeEventFilter(this); }

void InputHold::End() {
  holding_ = false;
  for (Kept& one : kept_) {
    if (one.Receiver) QCoreApplication::postEvent(one.Receiver, one.Event.release());
  }
  kept_.clear();
}

bool InputHold::IsOfMainWindow(QObject* receiver) const {
  if (receiver->isWindowType()) return receiver == window_.windowHandle();
  return receiver->isWidgetType() && static_cast<QWidget*>(receiver)->window() == &window_;
}

bool InputHold::eventFilter(QObject* receiver, QEvent* event) {
  if (!holding_ || !IsInput(event->type()) || !IsOfMainWindow(receiver)) return false;
  if (box_ != nullptr) {
    CallForBox(*event);
  } else {
    Keep(receiver, *event);
  }
  return true;
}

void InputHold::Keep(QObject* receiver, const QEvent& event) {
  if (!CanArriveLate(event.type())) return;
  const bool onlyMoves = event.type() == QEvent::MouseMove && !kept_.empty() &&
                         kept_.back().Event->type() == QEvent::MouseMove && kept_.back().Receiver == receiver;
  if (onlyMoves) kept_.pop_back();
  if (kept_.size() >= MostRepeats && Repeats(event)) return;
  kept_.push_back({receiver, std::unique_ptr<QEvent>(event.clone())});
}

void InputHold::CallForBox(const QEvent& event) {
  if (event.type() != QEvent::MouseButtonPress && event.type() != QEvent::KeyPress) return;
  if (box_->isMinimized()) box_->showNormal();
  box_->raise();
  box_->activateWindow();
  QApplication::beep();
}

void Stage::Open(QWidget& window, std::function<void()> showState) {
  window_ = &window;
  hold_ = std::make_unique<InputHold>(window);
  show_ = std::move(showState);
}

void Stage::BeginRun() {
  running_ = true;
  stopRequested_ = false;
  hold_->Begin();
  extensions_.ForEach([](Extension& extension) { extension.RunBegins(); });
}

void Stage::EndRun() {
  running_ = false;
  hold_->End();
  extensions_.ForEach([](Extension& extension) { extension.RunEnds(); });
}

void Stage::ShowState() {
  show_();
  AnswerDesktop();
}

void Stage::AnswerDesktop() {
  QCoreApplication::processEvents(QEventLoop::AllEvents);
  // Events may have posted paint requests.
  QCoreApplication::sendPostedEvents();
  LeaveIfAsked();
}

int Stage::Stay(QDialog& dialog) {
  extensions_.ForEach([&](Extension& extension) { extension.BoxOpens(dialog); });
  const int result = Ask(dialog);
  extensions_.ForEach([](Extension& extension) { extension.BoxCloses(); });
  LeaveIfAsked();
  return result;
}

int Stage::Ask(QDialog& dialog) {
  // The toolkit's modality would swallow attempts to close the window, and a program that shows box after box could not
  // be left.
  dialog.setModal(false);
  dialog.setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                        Qt::WindowCloseButtonHint);
  QDialog* const below = hold_->Box();
  hold_->SetBox(&dialog);
  QEventLoop loop;
  QObject::connect(&dialog, &QDialog::finished, &loop, &QEventLoop::quit);
  dialog.show();
  dialog.raise();
  dialog.activateWindow();
  loop.exec();
  hold_->SetBox(below);
  window_->activateWindow();
  return dialog.result();
}

void Stage::RequestClose() {
  closeRequested_ = true;
  CloseBox();
}

void Stage::RequestStop() {
  stopRequested_ = true;
  CloseBox();
}

void Stage::CloseBox() {
  if (hold_->Box() != nullptr) hold_->Box()->reject();
}

void Stage::LeaveIfAsked() {
  if (closeRequested_) throw Ended{"close"};
  if (std::exchange(stopRequested_, false)) throw StopRun();
}

}  // namespace zerimo
