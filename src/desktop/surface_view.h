#pragma once

#include <QLabel>

#include "desktop/control_view.h"
#include "desktop/overlay.h"
#include "pictures/image_canvas.h"

namespace zerimo {

/// Paints the surface: the picture, and above it the overlay.
class SurfaceWidget : public QWidget {
 public:
  SurfaceWidget(QWidget& parent, Form1& form1, ImageCanvas& canvas, Events& events);

  /// The point of the picture that is shown in the middle of the space for it, where the picture is larger than that:
  /// in surface units.
  QPointF Middle() const { return middle_; }
  void SetMiddle(QPointF middle) { middle_ = middle; }

  /// Requests a repaint of what has changed.
  void Sync();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;

 private:
  Control& ControlAt(QPoint at) const;
  void ShowHintAt(QPoint at);

  Form1& form1_;
  ImageCanvas& canvas_;
  Events& events_;
  Overlay overlay_;
  /// Follows the pointer.
  QLabel* hint_;
  Control* pressed_ = nullptr;
  QPointF middle_;
};

/// Draws parts of a picture at the painter's scale: pixel by pixel if each becomes a whole number of the device's
/// pixels, otherwise smoothed.
void DrawPicture(QPainter& painter, const QImage& picture, const QRegion& parts);

/// `Picture1`.
class SurfaceView : public ControlView {
 public:
  SurfaceView(Form1& form1, QWidget& parent, ImageCanvas& canvas, Events& events)
      : ControlView(form1.Picture1, *new SurfaceWidget(parent, form1, canvas, events)) {}

 protected:
  QRect Place(const Room& room) const override;
  void SyncLook() override { static_cast<SurfaceWidget&>(Widget()).Sync(); }
};

}  // namespace zerimo
