#pragma once

#include <QRegularExpression>
#include <QSyntaxHighlighter>
#include <QTextCharFormat>

namespace zerimo {

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

}  // namespace zerimo
