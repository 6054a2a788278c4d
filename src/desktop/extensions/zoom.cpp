#include "desktop/extensions/zoom.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <iterator>

#include "desktop/surface_view.h"
#include "graphics/surface.h"

namespace zerimo {

namespace {

constexpr int Percents[] = {50, 75, 100, 125, 150, 200, 300, 400};
/// A notch of the wheel is 120.
constexpr double PixelsPerAngle = 0.5;

int Larger(int percent) {
  const auto* const found = std::upper_bound(std::begin(Percents), std::end(Percents), percent);
  return found == std::end(Percents) ? percent : *found;
}

int Smaller(int percent) {
  const auto* const found = std::lower_bound(std::begin(Percents), std::end(Percents), percent);
  return found == std::begin(Percents) ? percent : *std::prev(found);
}

constexpr int WidestUnscaled = 2600;
/// What a scaled window is about as wide as.
constexpr double UsualWidth = 1920;

}  // namespace

Zoom::Zoom(Session& session)
    : session_(session),
      window_(session.window),
      surface_(static_cast<SurfaceWidget&>(window_.WidgetOf(session.form1.Picture1))) {
  qApp->installEventFilter(this);
}

bool Zoom::PressKey(const QKeyEvent& press) {
  // Plus may need Shift, or be on the number pad.
  if ((press.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) != Qt::ControlModifier) return false;
  switch (press.key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
      Choose(Larger(percent_));
      return true;
    case Qt::Key_Minus:
      Choose(Smaller(percent_));
      return true;
    case Qt::Key_0:
      Choose(100);
      return true;
    default:
      return false;
  }
}

bool Zoom::eventFilter(QObject* watched, QEvent* event) {
  const bool isInWindow =
      event->type() == QEvent::Wheel && watched->isWidgetType() && static_cast<QWidget*>(watched)->window() == &window_;
  if (!isInWindow) return false;
  const auto& wheel = static_cast<const QWheelEvent&>(*event);
  if (wheel.modifiers() == Qt::ControlModifier && wheel.angleDelta().y() != 0) {
    Choose(wheel.angleDelta().y() > 0 ? Larger(percent_) : Smaller(percent_));
    return true;
  }
  if (watched != &surface_ || percent_ <= 100) return false;
  const QPoint angle = wheel.angleDelta();
  const bool isSideways = wheel.modifiers().testFlag(Qt::ShiftModifier);
  MovePicture((isSideways ? angle.transposed() : angle).toPointF() * PixelsPerAngle);
  return true;
}

void Zoom::Choose(int percent) {
  if (percent_ <= 100) surface_.SetMiddle(PlaceToShow());
  percent_ = percent;
  window_.setProperty(ZoomPercent, percent_);
  window_.Sync();
}

void Zoom::FollowTurtle() {
  const QPointF place = PlaceToShow();
  if (place == shown_) return;
  shown_ = place;
  const QPointF inPicture = place / UnitsPerPixel * ZoomOf(window_);
  if (!SeenPart().contains(inPicture.toPoint())) surface_.SetMiddle(place);
}

QPointF Zoom::PlaceToShow() const {
  const Surface& picture = session_.form1.Picture1;
  const QRectF all(0, 0, static_cast<double>(picture.Width), static_cast<double>(picture.Height()));
  const Turtle& turtle = session_.form1.turtle;
  const QPointF place(turtle.TurtleX, turtle.TurtleY);
  return all.contains(place) ? place : all.center();
}

QRect Zoom::SeenPart() const { return window_.RoomNow().AboveRows.translated(-surface_.pos()); }

void Zoom::MovePicture(QPointF distance) {
  const QPointF middle = SeenPart().center() - distance;
  surface_.SetMiddle(middle / ZoomOf(window_) * UnitsPerPixel);
  window_.Sync();
}

int ScaleForScreen(int width, double ratio) {
  if (width <= WidestUnscaled || ratio != 1) return 100;
  return 100 * std::clamp(static_cast<int>(std::lround(width / UsualWidth)), 2, 4);
}

}  // namespace zerimo
