#include "desktop/control_view.h"

#include <QPalette>
#include <QVariant>
#include <cmath>

#include "desktop/desktop_text.h"
#include "graphics/surface.h"

namespace zerimo {

namespace {

constexpr double EasyContrast = 7;
constexpr Colour Black = 0x000000;

}  // namespace

double ZoomOf(const QWidget& widget) {
  const QVariant percent = widget.window()->property(ZoomPercent);
  return percent.isValid() ? percent.toInt() / 100.0 : 1;
}

QRect InPixels(const Control& control, double zoom) {
  const auto pixels = [zoom](float units) { return static_cast<int>(std::lround(units * zoom / UnitsPerPixel)); };
  const QPoint topLeft(pixels(control.Left), pixels(control.Top));
  const QPoint past(pixels(control.Left + control.Width), pixels(control.Top + control.Height()));
  return {topLeft, past - QPoint(1, 1)};
}

float Units(const QWidget& widget, int pixels) { return static_cast<float>(pixels * UnitsPerPixel / ZoomOf(widget)); }

void ControlView::Sync(const Room& room) {
  if (!IsHeld()) {
    const QRect place = Place(room);
    if (widget_.geometry() != place) widget_.setGeometry(place);
  }
  SyncLook();
  if (widget_.isHidden() == source_.Visible()) widget_.setVisible(source_.Visible());
}

QRect ControlView::Place(const Room&) const { return PlaceInData(); }

void ShowLetters(QWidget& widget, double points, bool bold) {
  QFont font = ControlFont(points, bold);
  font.setPixelSize(static_cast<int>(std::lround(font.pixelSize() * ZoomOf(widget))));
  if (widget.font() != font) widget.setFont(font);
}

void ShowTextColours(QWidget& widget, Colour background, Colour text) {
  const auto contrast = [&] { return Contrast(ToQColor(background), ToQColor(text)); };
  if (widget.window()->property(EasyToRead).toBool() && contrast() < EasyContrast) {
    text = White;
    if (contrast() < EasyContrast) text = Black;
    // On a colour of middle brightness, neither will do.
    if (contrast() < EasyContrast) background = White;
  }
  ShowColours(widget, background, text);
}

void ShowColours(QWidget& widget, Colour background, Colour text) {
  QPalette palette = widget.palette();
  const QColor back = ToQColor(background);
  const QColor fore = ToQColor(text);
  if (palette.color(QPalette::Base) == back && palette.color(QPalette::Text) == fore) return;
  for (const QPalette::ColorRole role : {QPalette::Base, QPalette::Window}) palette.setColor(role, back);
  for (const QPalette::ColorRole role : {QPalette::Text, QPalette::WindowText}) palette.setColor(role, fore);
  widget.setPalette(palette);
}

}  // namespace zerimo
