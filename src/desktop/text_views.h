#pragma once

#include <QLineEdit>

#include "desktop/control_view.h"

namespace zerimo {

/// A command row. A frame shows that it has the focus.
class RowEdit : public QLineEdit {
 public:
  explicit RowEdit(QWidget& parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

/// A text box of one line: a command row or an input of the diagnosis panel.
class LineView : public ControlView {
 public:
  LineView(TextBox& box, QLineEdit& shownIn, Events& events);
  void Collect() override;

 protected:
  void SyncLook() override;

 private:
  TextBox& box_;
  QLineEdit& edit_;
  bool touched_ = false;
};

/// A row of `Text1`, cut off at the window's edge.
class RowView : public LineView {
 public:
  RowView(TextBox& box, QWidget& parent, Events& events) : LineView(box, *new RowEdit(parent), events) {}

 protected:
  QRect Place(const Room& room) const override;
};

/// `Text3` and `Text4`.
class FieldView : public LineView {
 public:
  FieldView(TextBox& box, QWidget& parent, Events& events) : LineView(box, *new QLineEdit(&parent), events) {}
};

/// `Prompt`: one line of its text beside each row.
class PromptView : public ControlView {
 public:
  PromptView(TextBox& box, QWidget& parent, Events& events);

 protected:
  void SyncLook() override;

 private:
  TextBox& box_;
};

}  // namespace zerimo
