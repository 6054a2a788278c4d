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

int Pixels(float units) { return static_cast<int>(std::lround(units / UnitsPerPixel)); }

}  // namespace

QRect InPixels(const Control& control) {
  const QPoint topLeft(Pixels(control.Left), Pixels(control.Top));
  const QPoint past(Pixels(control.Left + control.Width), Pixels(control.Top + control.Height()));
  return {topLeft, past - QPoint(1, 1)};
}

void ControlView::Sync(const Room& room) {
  if (!IsHeld()) {
    const QRect place = Place(room);
    if (widget_.geometry() != place) widget_.setGeometry(place);
  }
  SyncLook();
  if (widget_.isHidden() == source_.Visible()) widget_.setVisible(source_.Visible());
}

QRect ControlView::Place(const Room&) const { return InPixels(source_); }

QFont ReadingFont(const QWidget& widget, double points, bool bold) {
  const QVariant percent = widget.window()->property(LetterPercent);
  return ControlFont(percent.isValid() ? points * percent.toInt() / 100 : points, bold);
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
