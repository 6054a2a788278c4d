#include "desktop/surface_view.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "desktop/desktop_text.h"

namespace zerimo {

namespace {

constexpr QPoint HintDistance(14, 20);
constexpr Colour HintGround = 0xE1FFFF;

float Units(int pixels) { return static_cast<float>(pixels * UnitsPerPixel); }

}  // namespace

SurfaceWidget::SurfaceWidget(QWidget& parent, Form1& form, ImageCanvas& imageCanvas, Events& theEvents)
    : QWidget(&parent),
      form1(form),
      canvas(imageCanvas),
      events(theEvents),
      overlay(form.controls),
      hint(new QLabel(this)) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
  setFocusPolicy(Qt::TabFocus);
  hint->setAttribute(Qt::WA_TransparentForMouseEvents);
  hint->setTextFormat(Qt::PlainText);
  ShowColours(*hint, HintGround, 0);
  hint->setAutoFillBackground(true);
  hint->setFrameShape(QFrame::Box);
  hint->setMargin(2);
  hint->setFont(ControlFont(9.75));
  hint->hide();
}

void SurfaceWidget::Sync() {
  const QRect drawn = ToQRect(canvas.TakeDirty());
  if (!drawn.isEmpty()) update(drawn);
  const QRegion changed = overlay.TakeChanged();
  if (!changed.isEmpty()) update(changed);
}

void SurfaceWidget::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  // Between whole factors, single pixels would grow unevenly.
  const double ratio = devicePixelRatioF();
  painter.setRenderHint(QPainter::SmoothPixmapTransform, std::abs(ratio - std::round(ratio)) > 0.01);
  for (const QRect& part : event->region()) painter.drawImage(part, canvas.Image(), part);
  overlay.Draw(painter, event->rect());
}

Control& SurfaceWidget::ControlAt(QPoint at) const {
  Control& title = form1.controls.Image1;
  return title.Visible() && InPixels(title).contains(at) ? title : static_cast<Control&>(form1.Picture1);
}

void SurfaceWidget::mouseMoveEvent(QMouseEvent* event) {
  const QPoint at = event->position().toPoint();
  Control& control = ControlAt(at);
  events.Deliver([&](Form1& form) { form.MouseMove(control, Units(at.x()), Units(at.y())); });
  if (&control == &form1.Picture1) return ShowHintAt(at);
  hint->hide();
}

void SurfaceWidget::ShowHintAt(QPoint at) {
  hint->setText(ToQString(form1.Picture1.ToolTipText));
  hint->adjustSize();
  // At the right and lower edge the hint stands on the other side of the pointer.
  const QRect seen = visibleRegion().boundingRect();
  QPoint place = at + HintDistance;
  if (place.x() + hint->width() > seen.right()) place.setX(at.x() - hint->width() - 4);
  if (place.y() + hint->height() > seen.bottom()) place.setY(at.y() - hint->height() - 4);
  hint->move(place);
  hint->setVisible(!hint->text().isEmpty());
}

void SurfaceWidget::leaveEvent(QEvent*) { hint->hide(); }

void SurfaceWidget::mousePressEvent(QMouseEvent* event) {
  Control& control = ControlAt(event->position().toPoint());
  // The title picture can't have the focus: it stays where the learner types.
  if (&control == &form1.Picture1) setFocus(Qt::MouseFocusReason);
  pressed = event->button() == Qt::LeftButton ? &control : nullptr;
}

void SurfaceWidget::mouseReleaseEvent(QMouseEvent* event) {
  const QPoint at = event->position().toPoint();
  if (event->button() != Qt::LeftButton || pressed != &ControlAt(at) || !rect().contains(at)) return;
  pressed = nullptr;
  events.Deliver([&](Form1& form) { form.Click(ControlAt(at)); });
}

}  // namespace zerimo
