#pragma once

#include <QObject>
#include <optional>

#include "desktop/panel_views.h"
#include "desktop/session.h"

namespace zerimo {

/// Lets the diagnosis panel be dragged by its bar. Where its control is does not change.
class PanelDrag : public QObject, public Extension {
 public:
  explicit PanelDrag(Session& session);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Press(QPoint at);
  void MoveTo(QPoint at);

  MainWindow& window_;
  CaptionFrame& panel_;
  /// Where the bar is held, if it is.
  std::optional<QPoint> grab_;
};

}  // namespace zerimo
