#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QTextDocument>
#include <QWidget>

#include "desktop/text_views.h"

namespace zerimo {

/// A bar at the lower edge of the editor that finds and replaces text, without regard to case. It is a part of the
/// editor: the keys of the editor work in it.
class FindBar : public QWidget {
 public:
  explicit FindBar(EditorArea& editor);

  /// Shows the bar with the selected text.
  void Open();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* press) override;
  bool focusNextPrevChild(bool next) override;

 private:
  void Close();
  void TakeLetters(double points);
  /// Gives the bar its place, and the text the rest. Its letters grow with the window's if there is room for that.
  void Fit();
  void Find(QTextDocument::FindFlags direction);
  void ReplaceOne();
  void ReplaceAll();
  bool IsFound() const;

  EditorArea& editor_;
  QLineEdit wanted_;
  QLineEdit replacement_;
  QLabel outcome_;
};

}  // namespace zerimo
