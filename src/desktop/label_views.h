#pragma once

#include <QAbstractButton>
#include <QLabel>

#include "desktop/control_view.h"

namespace zerimo {

struct ControlWords;

/// A line of text. A screen reader is told what the text is about, and the text.
class LabelView : public ControlView {
 public:
  LabelView(Label& control, QWidget& parent, Events& events);

 protected:
  void SyncLook() override;

 private:
  void ShowText(const QString& caption);

  Label& label_;
  QLabel& text_;
  /// Null if there are none.
  const ControlWords* words_;
};

/// A title caption: letters without a background.
class CaptionView : public ControlView {
 public:
  CaptionView(Label& control, QWidget& parent, Events& events);

 protected:
  void SyncLook() override;

 private:
  Label& label_;
  QLabel& text_;
};

/// A part of the palette that can be pressed: a colour square, or "Apply". The keyboard reaches it with Tab and presses
/// it with Space or Enter.
class PressLabel : public QAbstractButton {
 public:
  PressLabel(QWidget& parent, Label& control, Events& events);

  /// Repaints the label if it has changed.
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

  Label& label_;
  Events& events_;
  Label shown_{"shown"};
};

class PressView : public ControlView {
 public:
  PressView(Label& control, QWidget& parent, Events& events)
      : ControlView(control, *new PressLabel(parent, control, events)) {}

 protected:
  void SyncLook() override { static_cast<PressLabel&>(Widget()).Sync(); }
};

}  // namespace zerimo
