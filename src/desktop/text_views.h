#pragma once

#include <QLineEdit>

#include "desktop/control_view.h"

namespace zerimo {

/// A command row: a line of text that shows where the keys go.
class RowEdit : public QLineEdit {
 public:
  explicit RowEdit(QWidget& parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

/// A text box of one line: a command row, or an input of the diagnosis panel, whose change event runs.
class LineView : public ControlView {
 public:
  LineView(TextBox& textBox, QLineEdit& shownIn, Events& theEvents);
  void Collect() override;

 protected:
  void SyncLook() override;

 private:
  TextBox& box;
  QLineEdit& edit;
  bool touched = false;
};

/// A row of `Text1`, which ends where the window ends.
class RowView : public LineView {
 public:
  RowView(TextBox& textBox, QWidget& parent, Events& theEvents) : LineView(textBox, *new RowEdit(parent), theEvents) {}

 protected:
  QRect Place(const Room& room) const override;
};

/// `Text3` and `Text4`.
class FieldView : public LineView {
 public:
  FieldView(TextBox& textBox, QWidget& parent, Events& theEvents)
      : LineView(textBox, *new QLineEdit(&parent), theEvents) {}
};

/// `Prompt`: one line of its text beside each row.
class PromptView : public ControlView {
 public:
  PromptView(TextBox& textBox, QWidget& parent, Events& theEvents);

 protected:
  void SyncLook() override;

 private:
  TextBox& box;
};

}  // namespace zerimo
