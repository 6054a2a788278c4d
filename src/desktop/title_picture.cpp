#include "desktop/title_picture.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QRadialGradient>
#include <algorithm>
#include <array>

#include "desktop/desktop_text.h"

namespace zerimo {

namespace {

constexpr int Petals = 18;

/// A rosette of squares turned about a corner.
void DrawRosette(QPainter& painter, QPointF centre, double side, double opacity) {
  painter.save();
  painter.translate(centre);
  painter.setOpacity(opacity);
  painter.setBrush(Qt::NoBrush);
  for (int petal = 0; petal < Petals; ++petal) {
    painter.setPen(QPen(QColor::fromHsv(petal * 360 / Petals, 170, 255), 2));
    painter.drawRect(QRectF(0, 0, side, side));
    painter.rotate(360.0 / Petals);
  }
  painter.restore();
}

struct TurtleColors {
  QColor Skin, Shell, Plate;
};

constexpr TurtleColors InTheGrass{QColor(120, 190, 80), QColor(46, 125, 60), QColor(86, 165, 92)};

/// Lighter, so that the turtle shows in the smallest icons too.
constexpr TurtleColors OnTheIcon{QColor(164, 220, 108), QColor(54, 160, 76), QColor(134, 212, 134)};

/// A turtle seen from above, facing right; its shell is two units long.
void DrawTurtle(QPainter& painter, const TurtleColors& colors) {
  painter.setPen(QPen(QColor(22, 70, 32), 0.06));
  painter.setBrush(colors.Skin);
  painter.drawEllipse(QPointF(1.25, 0), 0.42, 0.32);
  for (const double x : {-0.65, 0.65}) {
    for (const double y : {-0.8, 0.8}) painter.drawEllipse(QPointF(x, y), 0.3, 0.26);
  }
  painter.drawPolygon(QPolygonF({{-0.95, -0.15}, {-1.45, 0}, {-0.95, 0.15}}));
  painter.setBrush(colors.Shell);
  painter.drawEllipse(QPointF(0, 0), 1.0, 0.8);
  painter.setBrush(colors.Plate);
  painter.drawPolygon(QPolygonF({{-0.2, -0.35}, {0.2, -0.35}, {0.42, 0}, {0.2, 0.35}, {-0.2, 0.35}, {-0.42, 0}}));
  painter.setPen(Qt::NoPen);
  painter.setBrush(Qt::black);
  for (const double y : {-0.13, 0.13}) painter.drawEllipse(QPointF(1.42, y), 0.06, 0.06);
}

struct Hill {
  double Left, Peak, Right, Foot;
  QColor Top, Bottom;
};

/// Hills along the lower edge, in fractions of the strip's width and height.
void DrawHills(QPainter& painter, const QRectF& strip) {
  const std::array<Hill, 3> hills = {{{0.35, 0.10, 0.45, 0.60, QColor(64, 112, 150), QColor(40, 78, 116)},
                                      {0.70, 0.25, 0.30, 0.45, QColor(60, 140, 110), QColor(34, 96, 76)},
                                      {0.55, 0.55, 0.70, 0.60, QColor(98, 176, 84), QColor(44, 116, 56)}}};
  for (const Hill& hill : hills) {
    const auto at = [&](double x, double y) {
      return QPointF(strip.left() + x * strip.width(), strip.top() + y * strip.height());
    };
    QPainterPath path(at(0, hill.Left));
    path.cubicTo(at(0.3, hill.Peak), at(0.6, hill.Right + 0.35), at(1, hill.Foot - 0.2));
    path.lineTo(at(1, 1));
    path.lineTo(at(0, 1));
    QLinearGradient light(at(0, 0), at(0, 1));
    light.setColorAt(0, hill.Top);
    light.setColorAt(1, hill.Bottom);
    painter.fillPath(path, light);
  }
}

/// Darkens the upper edge behind the captions and tints the lower one; the middle stays transparent.
void DrawSky(QPainter& painter, const QSizeF& size) {
  QLinearGradient dusk(0, 0, 0, size.height());
  dusk.setColorAt(0, QColor(18, 12, 60, 235));
  dusk.setColorAt(0.30, QColor(60, 20, 100, 90));
  dusk.setColorAt(0.45, QColor(128, 0, 128, 0));
  dusk.setColorAt(0.70, QColor(255, 140, 60, 0));
  dusk.setColorAt(1, QColor(255, 150, 70, 190));
  painter.fillRect(QRectF(QPointF(0, 0), size), dusk);
}

}  // namespace

void DrawTitlePicture(QPainter& painter, const QSize& size) {
  const double width = size.width();
  const double height = size.height();
  const double unit = std::min(width, height);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  DrawSky(painter, size);
  DrawRosette(painter, {width - unit * 0.22, unit * 0.22}, unit * 0.13, 0.85);
  DrawRosette(painter, {width - unit * 0.52, unit * 0.13}, unit * 0.06, 0.55);
  DrawHills(painter, {0, height * 0.74, width, height * 0.26});
  painter.translate(width - unit * 0.24, height * 0.84);
  painter.rotate(-12);
  painter.scale(unit * 0.075, unit * 0.075);
  DrawTurtle(painter, InTheGrass);
  painter.restore();
}

QIcon ProgramIcon() {
  QIcon icon;
  for (const int side : {16, 24, 32, 48, 64, 128}) {
    QPixmap picture(side, side);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(128, 0, 128));
    painter.drawRoundedRect(QRectF(0, 0, side, side), side * 0.2, side * 0.2);
    painter.translate(side * 0.48, side * 0.5);
    painter.rotate(-45);
    painter.scale(side * 0.26, side * 0.26);
    DrawTurtle(painter, OnTheIcon);
    icon.addPixmap(picture);
  }
  return icon;
}

}  // namespace zerimo
