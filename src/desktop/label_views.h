#pragma once

#include <QAbstractButton>
#include <QLabel>

#include "desktop/control_view.h"

namespace zerimo {

/// A line of text that is read.
class LabelView : public ControlView {
 public:
  LabelView(Label& control, QWidget& parent, Events& theEvents);

 protected:
  void SyncLook() override;

 private:
  Label& label;
  QLabel& text;
};

/// A title caption: its letters alone, above whatever lies below.
class CaptionView : public ControlView {
 public:
  CaptionView(Label& control, QWidget& parent, Events& theEvents);

 protected:
  void SyncLook() override;

 private:
  Label& label;
  QLabel& text;
};

/// A part of the palette that the mouse marks and presses: a colour square, or "Apply". The keyboard reaches it with
/// Tab, and presses it with Space or Enter.
class PressLabel : public QAbstractButton {
 public:
  PressLabel(QWidget& parent, Label& control, Events& theEvents);

  /// Draws the label if it has changed.
  void Sync();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Press(MouseButton button, bool shift, QPoint at);
  void PressWithKey(bool right, bool shift);

  Label& label;
  Events& events;
  Label shown{"shown"};
};

class PressView : public ControlView {
 public:
  PressView(Label& control, QWidget& parent, Events& theEvents)
      : ControlView(control, *new PressLabel(parent, control, theEvents)) {}

 protected:
  void SyncLook() override { static_cast<PressLabel&>(Widget()).Sync(); }
};

}  // namespace zerimo
