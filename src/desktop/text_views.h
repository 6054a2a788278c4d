#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>

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

/// A text area that admits only characters that the system has.
class EditorArea : public QPlainTextEdit {
 public:
  /// In pixels.
  static constexpr int CaretWidth = 2;

  explicit EditorArea(QWidget& parent);

  /// Replaces the text in one step that can be undone. The caret keeps its line and column if they still exist.
  void ReplaceText(const QString& text);

  /// The text with the toolkit's line ends.
  QString Text() const;

  /// Whether keys go to it or to a part of it.
  bool HasKeys() const;

  // What is shown beside the text needs to know where the text is.
  using QPlainTextEdit::blockBoundingGeometry;
  using QPlainTextEdit::contentOffset;
  using QPlainTextEdit::firstVisibleBlock;
  using QPlainTextEdit::setViewportMargins;
  using QPlainTextEdit::viewportMargins;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void insertFromMimeData(const QMimeData* source) override;
};

/// `Text2`, the editor. In the data, lines end with carriage return and line feed.
class EditorView : public ControlView {
 public:
  EditorView(TextBox& box, QWidget& parent, Events& events);
  void Collect() override;

 protected:
  QRect Place(const Room& room) const override;
  void SyncLook() override;

 private:
  TextBox& box_;
  EditorArea& area_;
  /// The data's text as the area last showed or collected it.
  std::string shown_;
  bool touched_ = false;
};

}  // namespace zerimo
