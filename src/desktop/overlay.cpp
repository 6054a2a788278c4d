#include "desktop/overlay.h"

#include <QPaintDevice>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "desktop/control_view.h"
#include "desktop/desktop_text.h"
#include "desktop/title_picture.h"
#include "graphics/surface.h"

namespace zerimo {

namespace {

/// In pixels. Figures further away than this would overflow the toolkit's integers.
constexpr double FarAway = 100000;

double Pixels(float units) {
  const double pixels = static_cast<double>(units) / UnitsPerPixel;
  return std::isfinite(pixels) ? std::clamp(pixels, -FarAway, FarAway) : FarAway;
}

QRectF Bounds(float x1, float y1, float x2, float y2) {
  return QRectF(QPointF(Pixels(x1), Pixels(y1)), QPointF(Pixels(x2), Pixels(y2))).normalized();
}

/// Leaves room for the width of the line.
QRect Touched(const QRectF& bounds) { return bounds.adjusted(-3, -3, 3, 3).toAlignedRect(); }

QPen PenOf(Colour colour, int width) {
  return {ToQColor(colour), static_cast<double>(width), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

}  // namespace

Overlay::Look Overlay::LookNow() const {
  const auto look = [](const LightLine& line) {
    return LineLook{line.Visible(), line.X1, line.Y1, line.X2, line.Y2, line.BorderColor};
  };
  const Shape& head = controls_.Shape2;
  return {{look(controls_.Line5), look(controls_.Line6), look(controls_.Line1), look(controls_.Line2),
           look(controls_.Line3)},
          {head.Visible(), head.Left, head.Top, head.Left + head.Width, head.Top + head.Height(), head.BorderColor},
          controls_.Image1.Visible() ? InPixels(controls_.Image1) : QRect()};
}

QRegion Overlay::RegionOf(const Look& before, const Look& now) {
  QRegion region;
  const auto add = [&region](const LineLook& one, const LineLook& other) {
    if (one == other) return;
    for (const LineLook* line : {&one, &other}) {
      if (line->Visible) region += Touched(Bounds(line->X1, line->Y1, line->X2, line->Y2));
    }
  };
  for (std::size_t i = 0; i < now.Lines.size(); ++i) add(before.Lines[i], now.Lines[i]);
  add(before.Head, now.Head);
  if (before.Title != now.Title) region += before.Title.united(now.Title);
  return region;
}

QRegion Overlay::TakeChanged() {
  const Look now = LookNow();
  if (now == shown_) return {};
  QRegion region = RegionOf(shown_, now);
  shown_ = now;
  return region;
}

void Overlay::Draw(QPainter& painter, const QRect& part) {
  DrawTitle(painter, part);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  // A point is the centre of its pixel, as in the picture.
  painter.translate(0.5, 0.5);
  for (const LightLine* line :
       {&controls_.Line5, &controls_.Line6, &controls_.Line1, &controls_.Line2, &controls_.Line3}) {
    if (!line->Visible() || !Touched(Bounds(line->X1, line->Y1, line->X2, line->Y2)).intersects(part)) continue;
    painter.setPen(PenOf(line->BorderColor, line->BorderWidth));
    painter.drawLine(QPointF(Pixels(line->X1), Pixels(line->Y1)), QPointF(Pixels(line->X2), Pixels(line->Y2)));
  }
  const Shape& head = controls_.Shape2;
  if (!head.Visible()) return;
  painter.setPen(PenOf(head.BorderColor, head.BorderWidth));
  painter.drawEllipse(Bounds(head.Left, head.Top, head.Left + head.Width, head.Top + head.Height()));
}

void Overlay::DrawTitle(QPainter& painter, const QRect& part) {
  if (!controls_.Image1.Visible()) {
    title_ = QPixmap();
    return;
  }
  const QRect place = InPixels(controls_.Image1);
  const double ratio = painter.device()->devicePixelRatioF() * painter.worldTransform().m11();
  if (title_.size() != place.size() * ratio) {
    title_ = QPixmap(place.size() * ratio);
    title_.setDevicePixelRatio(ratio);
    title_.fill(Qt::transparent);
    QPainter picture(&title_);
    DrawTitlePicture(picture, place.size());
  }
  painter.setClipRect(part);
  painter.drawPixmap(place.topLeft(), title_);
}

}  // namespace zerimo
