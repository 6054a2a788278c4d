#pragma once

#include <QFrame>

#include "desktop/control_view.h"

namespace zerimo {

/// `Picture3`, the panel of the rows. A title bar makes the window lower than the screen: the panel then moves up, so
/// that all rows stay in sight.
class RowsPanelView : public ControlView {
 public:
  RowsPanelView(PanelBox& control, QWidget& parent, Events& theEvents);
  /// Where the panel stands in a window.
  static QRect PlaceIn(const Control& panel, const QRect& client);

 protected:
  QRect Place(const Room& room) const override { return PlaceIn(Source(), room.Client); }
  void SyncLook() override;

 private:
  PanelBox& panel;
};

/// A panel with its caption in a bar along the upper edge.
class CaptionFrame : public QFrame {
 public:
  CaptionFrame(QWidget& parent, const PanelBox& control);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const PanelBox& panel;
};

/// `Frame1`, the diagnosis panel.
class FramePanelView : public ControlView {
 public:
  FramePanelView(PanelBox& control, QWidget& parent, Events&)
      : ControlView(control, *new CaptionFrame(parent, control)) {}

 protected:
  QRect Place(const Room& room) const override;
};

/// The palette as it is moved: by its title or its ground, with the pointer where it took hold.
class PaletteFrame : public QFrame {
 public:
  PaletteFrame(QWidget& parent, PanelBox& control, Events& theEvents);
  bool IsDragged() const { return dragged; }

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void DragTo(QPoint inWindow);
  void DropAt(QPoint inWindow);

  PanelBox& panel;
  Events& events;
  QPoint grab;
  bool dragged = false;
};

/// `Picture2`, the palette.
class PaletteView : public ControlView {
 public:
  PaletteView(PanelBox& control, QWidget& parent, Events& theEvents)
      : ControlView(control, *new PaletteFrame(parent, control, theEvents)) {}

 protected:
  QRect Place(const Room& room) const override;
  bool IsHeld() const override { return static_cast<PaletteFrame&>(Widget()).IsDragged(); }
};

/// The frames `Shape5` and `Shape7` above the squares of the palette.
class PaletteShapes : public QWidget {
 public:
  PaletteShapes(QWidget& parent, const Controls& formControls);
  /// Draws the frames if they have moved.
  void Sync();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const Controls& controls;
  QRect shown;
};

}  // namespace zerimo
