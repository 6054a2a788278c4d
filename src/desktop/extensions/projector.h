#pragma once

#include <QFocusFrame>
#include <QPointer>

#include "desktop/session.h"

namespace zerimo {

/// Ctrl+Shift+L makes the window easier to read from the back of a room: what the class reads has a contrast of at
/// least seven to one, the carets are thick, and a frame shows where the focus is. Only the looks change.
class Projector : public Extension {
 public:
  explicit Projector(Session& session) : session_(session) {}

  bool PressKey(const QKeyEvent& press) override;

 private:
  void Switch(bool on);

  Session& session_;
  /// Belongs to what it frames; null while the mode is off.
  QPointer<QFocusFrame> frame_;
};

}  // namespace zerimo
