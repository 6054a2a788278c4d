#include "desktop/extensions/letter_size.h"

#include <QAbstractScrollArea>
#include <QKeyEvent>
#include <QWheelEvent>
#include <algorithm>

namespace zerimo {

namespace {

constexpr int Step = 25;
constexpr int Smallest = 50;
constexpr int Largest = 400;

}  // namespace

LetterSize::LetterSize(Session& session) : window_(session.Shown()) {
  const Controls& controls = session.form1.controls;
  for (const Control* control :
       {static_cast<const Control*>(&controls.Text2), static_cast<const Control*>(&controls.List4),
        static_cast<const Control*>(&controls.List1)}) {
    static_cast<QAbstractScrollArea&>(window_.WidgetOf(*control)).viewport()->installEventFilter(this);
  }
}

bool LetterSize::PressKey(const QKeyEvent& press) {
  // Where plus needs Shift, or is on the number pad.
  if ((press.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) != Qt::ControlModifier) return false;
  switch (press.key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
      Choose(percent_ + Step);
      return true;
    case Qt::Key_Minus:
      Choose(percent_ - Step);
      return true;
    case Qt::Key_0:
      Choose(100);
      return true;
    default:
      return false;
  }
}

bool LetterSize::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::Wheel) return QObject::eventFilter(watched, event);
  const auto& wheel = static_cast<const QWheelEvent&>(*event);
  if (wheel.modifiers() != Qt::ControlModifier || wheel.angleDelta().y() == 0) return false;
  Choose(percent_ + (wheel.angleDelta().y() > 0 ? Step : -Step));
  return true;
}

void LetterSize::Choose(int percent) {
  percent_ = std::clamp(percent, Smallest, Largest);
  window_.setProperty(LetterPercent, percent_);
  window_.Sync();
}

}  // namespace zerimo
