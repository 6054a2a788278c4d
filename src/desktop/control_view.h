#pragma once

#include <QRect>
#include <QWidget>

#include "controls/control_kinds.h"
#include "desktop/events.h"

namespace zerimo {

/// What the window has to give, in its own coordinates.
struct Room {
  QRect Client;
  /// The part that the command rows leave.
  QRect AboveRows;
};

/// The place of a control in pixels, from its place in surface units.
QRect InPixels(const Control& control);

/// Shows one control in one widget. The data is the truth: `Sync` copies what differs to the widget, and `Collect`
/// copies what the user changed to the data. The widget belongs to its parent widget.
class ControlView {
 public:
  ControlView(Control& control, QWidget& shownIn) : source(control), widget(shownIn) {}
  virtual ~ControlView() = default;
  ControlView(const ControlView&) = delete;
  ControlView& operator=(const ControlView&) = delete;

  Control& Source() const { return source; }
  QWidget& Widget() const { return widget; }

  void Sync(const Room& room);
  virtual void Collect() {}

 protected:
  /// Where the widget goes; in the data's place if the kind says nothing else.
  virtual QRect Place(const Room& room) const;
  /// Whether the user holds the widget in another place just now.
  virtual bool IsHeld() const { return false; }
  /// Shows all but place and visibility.
  virtual void SyncLook() {}

 private:
  Control& source;
  QWidget& widget;
};

/// Gives a widget a background and a text colour if it has others.
void ShowColours(QWidget& widget, Colour background, Colour text);

}  // namespace zerimo
