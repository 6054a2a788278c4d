#pragma once

#include <QObject>
#include <QTextCursor>
#include <string>

#include "desktop/text_views.h"

namespace zerimo {

/// Marks in the editor: the bracket at the caret with its partner, and the line that opened the last box. They are
/// painted over the text and change nothing in it.
class EditorMarks : public QObject {
 public:
  explicit EditorMarks(EditorArea& editor);

  /// Marks the line of a procedure that holds a statement as the store has it, until the text changes. `head` is the
  /// first line of the procedure in the store. Marks nothing if there is no such line.
  void MarkStatement(const std::string& head, const std::string& statement);

 private:
  void Show();
  QList<QTextEdit::ExtraSelection> Brackets() const;

  EditorArea& editor_;
  /// Null while no line is marked.
  QTextCursor marked_;
  /// The text that the marked line belongs to.
  QString markedText_;
};

}  // namespace zerimo
