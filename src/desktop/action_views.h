#pragma once

#include <QAbstractButton>
#include <QScrollBar>

#include "desktop/control_view.h"

namespace zerimo {

class ButtonView : public ControlView {
 public:
  ButtonView(Button& control, QWidget& parent, Events& events);

 protected:
  void SyncLook() override;

 private:
  Button& button_;
  QAbstractButton& shown_;
};

class CheckView : public ControlView {
 public:
  CheckView(CheckBox& control, QWidget& parent, Events& events);

 protected:
  void SyncLook() override;

 private:
  CheckBox& box_;
  QAbstractButton& shown_;
};

/// A scroll bar; each change by the user runs its change event.
class BarView : public ControlView {
 public:
  BarView(ScrollBar& control, QWidget& parent, Events& events);

 protected:
  void SyncLook() override;

 private:
  ScrollBar& bar_;
  QScrollBar& shown_;
};

}  // namespace zerimo
