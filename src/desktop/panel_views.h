#pragma once

#include <QFrame>

#include "desktop/control_view.h"

namespace zerimo {

/// `Picture3`, the panel of the rows. If a title bar makes the window lower than the screen, the panel moves up so that
/// all rows stay visible.
class RowsPanelView : public ControlView {
 public:
  RowsPanelView(PanelBox& control, QWidget& parent, Events& events);
  /// The panel's place in a window with this client area.
  static QRect PlaceIn(const Control& panel, const QRect& client, double zoom);

 protected:
  QRect Place(const Room& room) const override { return PlaceIn(Source(), room.Client, ZoomOf(Widget())); }
  void SyncLook() override;

 private:
  PanelBox& panel_;
};

/// A panel with its caption in a bar along the upper edge.
class CaptionFrame : public QFrame {
 public:
  CaptionFrame(QWidget& parent, const PanelBox& control);

  /// The height of the bar in pixels, that of the palette's title.
  int BarHeight() const;

  /// Where the panel is shown, beside the place that its data says, in pixels.
  QPoint Shift() const { return shift_; }
  void SetShift(QPoint shift) { shift_ = shift; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const PanelBox& panel_;
  QPoint shift_;
};

/// `Frame1`, the diagnosis panel: above the rows if there is room, and never with its upper right corner, where it is
/// closed, outside the window.
class FramePanelView : public ControlView {
 public:
  FramePanelView(PanelBox& control, QWidget& parent, Events&)
      : ControlView(control, *new CaptionFrame(parent, control)) {}

 protected:
  QRect Place(const Room& room) const override;
  void SyncLook() override;
};

/// The palette, which is dragged by its title or its background.
class PaletteFrame : public QFrame {
 public:
  PaletteFrame(QWidget& parent, PanelBox& control, Events& events);
  bool IsDragged() const { return dragged_; }

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void DragTo(QPoint inWindow);
  void DropAt(QPoint inWindow);

  PanelBox& panel_;
  Events& events_;
  QPoint grab_;
  bool dragged_ = false;
};

/// `Picture2`, the palette.
class PaletteView : public ControlView {
 public:
  PaletteView(PanelBox& control, QWidget& parent, Events& events)
      : ControlView(control, *new PaletteFrame(parent, control, events)) {}

 protected:
  QRect Place(const Room& room) const override;
  bool IsHeld() const override { return static_cast<PaletteFrame&>(Widget()).IsDragged(); }
};

/// The frames `Shape5` and `Shape7` around the chosen square of the palette.
class PaletteShapes : public QWidget {
 public:
  PaletteShapes(QWidget& parent, const Controls& controls);
  /// Repaints the frames if they have moved.
  void Sync();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const Controls& controls_;
  QRect shown_;
};

}  // namespace zerimo
