#pragma once

#include <QLabel>

#include "desktop/control_view.h"
#include "desktop/overlay.h"
#include "pictures/image_canvas.h"

namespace zerimo {

/// Paints the surface: the picture, and above it what never enters the picture.
class SurfaceWidget : public QWidget {
 public:
  SurfaceWidget(QWidget& parent, Form1& form, ImageCanvas& imageCanvas, Events& theEvents);

  /// Asks for a repaint of what has changed.
  void Sync();

  /// The hint at the mouse.
  const QLabel& Hint() const { return *hint; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;

 private:
  Control& ControlAt(QPoint at) const;
  void ShowHintAt(QPoint at);

  Form1& form1;
  ImageCanvas& canvas;
  Events& events;
  Overlay overlay;
  QLabel* hint;
  Control* pressed = nullptr;
};

/// `Picture1`.
class SurfaceView : public ControlView {
 public:
  SurfaceView(Form1& form, QWidget& parent, ImageCanvas& canvas, Events& theEvents)
      : ControlView(form.Picture1, *new SurfaceWidget(parent, form, canvas, theEvents)) {}

 protected:
  void SyncLook() override { static_cast<SurfaceWidget&>(Widget()).Sync(); }
};

}  // namespace zerimo
