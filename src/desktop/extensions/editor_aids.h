#pragma once

#include <QRegularExpression>
#include <QSyntaxHighlighter>
#include <QTextCharFormat>
#include <QWidget>

#include "desktop/extensions/editor_marks.h"
#include "desktop/extensions/find_bar.h"
#include "desktop/session.h"
#include "desktop/text_views.h"

namespace zerimo {

/// The numbers of the lines, in a strip at the left edge of the editor.
class LineNumbers : public QWidget {
 public:
  explicit LineNumbers(EditorArea& editor);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  /// As wide as the greatest number.
  void Fit();
  void Follow(const QRect& changed, int scrolled);

  EditorArea& editor_;
};

/// Colours the text of a program: the words of the language, names and the first lines of procedures. Only the looks
/// differ; the text does not.
class ProgramColours : public QSyntaxHighlighter {
 public:
  explicit ProgramColours(QTextDocument& document);

 protected:
  void highlightBlock(const QString& text) override;

 private:
  const QRegularExpression words_;
  QTextCharFormat word_;
  QTextCharFormat name_;
  QTextCharFormat head_;
};

/// Help with writing a program: colours, line numbers, brackets that belong together, the line that opened the last
/// box, Ctrl+F to find and replace, and in an empty editor the keys that leave it.
class EditorAids : public Extension {
 public:
  explicit EditorAids(Session& session);

  bool PressKey(const QKeyEvent& press) override;
  void BoxOpens(QDialog& dialog) override;

 private:
  Session& session_;
  // These belong to the editor.
  EditorArea& editor_;
  EditorMarks& marks_;
  FindBar& bar_;
};

}  // namespace zerimo
