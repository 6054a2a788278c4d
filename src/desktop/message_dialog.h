#pragma once

#include <QMessageBox>
#include <utility>
#include <vector>

#include "base/services.h"

namespace zerimo {

/// A message box with the buttons and the icon of a style. A text that is too long for the screen can be scrolled.
class MessageDialog : public QMessageBox {
 public:
  MessageDialog(QWidget& parent, const QString& text, int style, const QString& title);

  /// The answer: that of the button pressed. A box that is closed otherwise is answered `OK`, `Ignore` or `No`.
  Answer Chosen() const;

 private:
  void AddButtons(int style);
  void ShowText(const QString& text);

  std::vector<std::pair<QAbstractButton*, Answer>> answers;
  Answer closed = Answer::OK;
};

}  // namespace zerimo
