#pragma once

#include <QFileDialog>
#include <QMessageBox>
#include <utility>
#include <vector>

#include "base/services.h"

namespace zerimo {

/// A message box with the buttons and icon of a style. A text too long for the screen can be scrolled.
class MessageDialog : public QMessageBox {
 public:
  MessageDialog(QWidget& parent, const QString& text, int style, const QString& title);

  /// The answer of the button pressed. Closing the box otherwise answers `OK`, `Ignore` or `No`.
  Answer Chosen() const;

 private:
  void AddButtons(int style);
  void ShowText(const QString& text);

  std::vector<std::pair<QAbstractButton*, Answer>> answers_;
  Answer closed_ = Answer::OK;
};

/// The toolkit's file dialog, the same on every desktop. A file to open is found in whatever case its name is typed,
/// and a program without its ending, as `LOAD` finds it.
class FileDialog : public QFileDialog {
 public:
  FileDialog(QWidget& parent, AcceptMode mode, const QString& title, const QString& folder, const QString& filter);

 protected:
  void accept() override;
};

}  // namespace zerimo
