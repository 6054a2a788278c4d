#pragma once

#include <QRect>
#include <QWidget>

#include "controls/control_kinds.h"
#include "desktop/events.h"

namespace zerimo {

/// The space in the window, in its own coordinates.
struct Room {
  QRect Client;
  /// The part above the command rows.
  QRect AboveRows;
};

/// How large a window shows everything: its property of this name, in percent. What the controls say stays.
inline constexpr const char* ZoomPercent = "zoomPercent";
/// 1 for a window without that property.
double ZoomOf(const QWidget& widget);

/// The place of a control in pixels, from its place in surface units.
QRect InPixels(const Control& control, double zoom = 1);
/// The way back, for a distance in a widget.
float Units(const QWidget& widget, int pixels);

/// Shows one control in one widget. The data is authoritative: `Sync` brings the widget up to date with it, and
/// `Collect` copies what the user changed back to it. The widget belongs to its parent widget.
class ControlView {
 public:
  ControlView(Control& control, QWidget& shownIn) : source_(control), widget_(shownIn) {}
  virtual ~ControlView() = default;
  ControlView(const ControlView&) = delete;
  ControlView& operator=(const ControlView&) = delete;

  Control& Source() const { return source_; }
  QWidget& Widget() const { return widget_; }

  void Sync(const Room& room);
  virtual void Collect() {}

 protected:
  /// Where the data says that the widget is, in pixels.
  QRect PlaceInData() const { return InPixels(source_, ZoomOf(widget_)); }
  /// Where the widget goes. By default, where the data says.
  virtual QRect Place(const Room& room) const;
  /// Whether the user is dragging the widget.
  virtual bool IsHeld() const { return false; }
  /// Brings everything but place and visibility up to date.
  virtual void SyncLook() {}

 private:
  Control& source_;
  QWidget& widget_;
};

/// Sets a widget's background and text colours unless they are set already.
void ShowColours(QWidget& widget, Colour background, Colour text);

/// The same for text that the class reads: on a window whose property of this name is true, the colours get a contrast
/// of at least seven to one. What the control says stays.
inline constexpr const char* EasyToRead = "easyToRead";
void ShowTextColours(QWidget& widget, Colour background, Colour text);

/// Gives a widget the font of a control, in points, unless it has it already.
void ShowLetters(QWidget& widget, double points, bool bold = false);

}  // namespace zerimo
