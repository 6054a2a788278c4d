#pragma once

#include <QWidget>

#include "desktop/editor_view.h"

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

}  // namespace zerimo
