#include "desktop/extensions/panel_drag.h"

#include <QMouseEvent>

namespace zerimo {

PanelDrag::PanelDrag(Session& session)
    : window_(session.window),
      panel_(static_cast<CaptionFrame&>(session.window.WidgetOf(session.form1.controls.Frame1))) {
  panel_.installEventFilter(this);
}

bool PanelDrag::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonRelease) grab_.reset();
  if (event->type() != QEvent::MouseButtonPress && event->type() != QEvent::MouseMove)
    return QObject::eventFilter(watched, event);
  const auto& mouse = static_cast<const QMouseEvent&>(*event);
  const QPoint at = mouse.position().toPoint();
  if (event->type() == QEvent::MouseMove) {
    MoveTo(at);
  } else if (mouse.button() == Qt::LeftButton) {
    Press(at);
  }
  return false;
}

void PanelDrag::Press(QPoint at) {
  if (at.y() < panel_.BarHeight()) grab_ = at;
}

void PanelDrag::MoveTo(QPoint at) {
  if (!grab_) return;
  const QPoint before = panel_.pos();
  const QPoint shift = panel_.Shift();
  panel_.SetShift(shift + at - *grab_);
  window_.Sync();
  // The edges of the window may have stopped it.
  panel_.SetShift(shift + panel_.pos() - before);
}

}  // namespace zerimo
