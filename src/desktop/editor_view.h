#pragma once

#include <QPlainTextEdit>

#include "desktop/control_view.h"

namespace zerimo {

/// A text area that lets no character in that the system does not have.
class EditorArea : public QPlainTextEdit {
 public:
  explicit EditorArea(QWidget& parent);

  /// Puts a text in the place of the one shown, as one step that can be undone. The caret stays at its place in the
  /// text as far as that is still there.
  void ReplaceText(const QString& text);

  /// The text with the toolkit's line ends.
  QString Text() const;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void insertFromMimeData(const QMimeData* source) override;
};

/// `Text2`, the editor. The system's lines end with carriage return and line feed.
class EditorView : public ControlView {
 public:
  EditorView(TextBox& textBox, QWidget& parent, Events& theEvents);
  void Collect() override;

 protected:
  QRect Place(const Room& room) const override;
  void SyncLook() override;

 private:
  TextBox& box;
  EditorArea& area;
  /// The system's text that the area shows, if the user has not changed it since.
  std::string shown;
  bool touched = false;
};

}  // namespace zerimo
