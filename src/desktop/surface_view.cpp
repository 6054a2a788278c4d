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
constexpr double HintPoints = 9.75;

/// At least the pixels that a part covers at another scale.
QRect Scaled(const QRect& part, double factor) {
  if (factor == 1) return part;
  const QRectF scaled(part.x() * factor, part.y() * factor, part.width() * factor, part.height() * factor);
  return scaled.toAlignedRect().adjusted(-1, -1, 1, 1);
}

}  // namespace

void DrawPicture(QPainter& painter, const QImage& picture, const QRegion& parts) {
  const double scale = painter.worldTransform().m11();
  const double ratio = painter.device()->devicePixelRatioF() * scale;
  // At fractional scales, unsmoothed pixels would differ in size.
  painter.setRenderHint(QPainter::SmoothPixmapTransform, std::abs(ratio - std::round(ratio)) > 0.01);
  for (const QRect& part : parts) {
    const QRect source = Scaled(part, 1 / scale).intersected(picture.rect());
    painter.drawImage(source, picture, source);
  }
}

QRect SurfaceView::Place(const Room& room) const {
  QRect place = PlaceInData();
  const double zoom = ZoomOf(Widget());
  if (zoom <= 1) return place;
  const QPointF middle = static_cast<SurfaceWidget&>(Widget()).Middle() * zoom / UnitsPerPixel;
  const QSize beyond = room.AboveRows.size() - place.size();
  const QPoint corner = room.AboveRows.center() - middle.toPoint();
  // The edges of the picture stay at those of the space or outside.
  place.moveLeft(std::clamp(corner.x(), std::min(beyond.width(), 0), 0));
  place.moveTop(std::clamp(corner.y(), std::min(beyond.height(), 0), 0));
  return place;
}

SurfaceWidget::SurfaceWidget(QWidget& parent, Form1& form1, ImageCanvas& canvas, Events& events)
    : QWidget(&parent),
      form1_(form1),
      canvas_(canvas),
      events_(events),
      overlay_(form1.controls),
      hint_(new QLabel(this)) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
  setFocusPolicy(Qt::TabFocus);
  hint_->setAttribute(Qt::WA_TransparentForMouseEvents);
  hint_->setTextFormat(Qt::PlainText);
  ShowColours(*hint_, HintGround, 0);
  hint_->setAutoFillBackground(true);
  hint_->setFrameShape(QFrame::Box);
  hint_->setMargin(2);
  hint_->hide();
}

void SurfaceWidget::Sync() {
  const double zoom = ZoomOf(*this);
  const QRect drawn = ToQRect(canvas_.TakeDirty());
  if (!drawn.isEmpty()) update(Scaled(drawn, zoom));
  for (const QRect& changed : overlay_.TakeChanged()) update(Scaled(changed, zoom));
}

void SurfaceWidget::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  const double zoom = ZoomOf(*this);
  painter.scale(zoom, zoom);
  DrawPicture(painter, canvas_.Image(), event->region());
  overlay_.Draw(painter, Scaled(event->rect(), 1 / zoom));
}

Control& SurfaceWidget::ControlAt(QPoint at) const {
  Control& title = form1_.controls.Image1;
  return title.Visible() && InPixels(title, ZoomOf(*this)).contains(at) ? title
                                                                        : static_cast<Control&>(form1_.Picture1);
}

void SurfaceWidget::mouseMoveEvent(QMouseEvent* event) {
  const QPoint at = event->position().toPoint();
  Control& control = ControlAt(at);
  events_.Deliver([&](Form1& form1) { form1.MouseMove(control, Units(*this, at.x()), Units(*this, at.y())); });
  if (&control == &form1_.Picture1) return ShowHintAt(at);
  hint_->hide();
}

void SurfaceWidget::ShowHintAt(QPoint at) {
  hint_->setText(ToQString(form1_.Picture1.ToolTipText));
  ShowLetters(*hint_, HintPoints);
  hint_->adjustSize();
  // Near the right and lower edges, the hint moves to the other side of the pointer.
  const QRect seen = visibleRegion().boundingRect();
  QPoint place = at + HintDistance;
  if (place.x() + hint_->width() > seen.right()) place.setX(at.x() - hint_->width() - 4);
  if (place.y() + hint_->height() > seen.bottom()) place.setY(at.y() - hint_->height() - 4);
  hint_->move(place);
  hint_->setVisible(!hint_->text().isEmpty());
}

void SurfaceWidget::leaveEvent(QEvent*) { hint_->hide(); }

void SurfaceWidget::mousePressEvent(QMouseEvent* event) {
  pressed_ = event->button() == Qt::LeftButton ? &ControlAt(event->position().toPoint()) : nullptr;
}

void SurfaceWidget::mouseReleaseEvent(QMouseEvent* event) {
  const QPoint at = event->position().toPoint();
  if (event->button() != Qt::LeftButton || pressed_ != &ControlAt(at) || !rect().contains(at)) return;
  pressed_ = nullptr;
  // Only a click takes the focus, and none on the title picture, so that it stays where the learner types.
  if (&ControlAt(at) == &form1_.Picture1) setFocus(Qt::MouseFocusReason);
  events_.Deliver([&](Form1& form1) { form1.Click(ControlAt(at)); });
}

}  // namespace zerimo
