#pragma once

#include <QObject>

#include "desktop/session.h"

namespace zerimo {

/// Ctrl++, Ctrl+- and Ctrl+0, or Ctrl and the wheel, choose how large the letters of the editor, of the text screen and
/// of the lists are shown, from 50 to 400 percent. The sizes that the controls have stay.
class LetterSize : public QObject, public Extension {
 public:
  explicit LetterSize(Session& session);

  bool PressKey(const QKeyEvent& press) override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Choose(int percent);

  MainWindow& window_;
  int percent_ = 100;
};

}  // namespace zerimo
