#pragma once

#include "desktop/session.h"

namespace zerimo {

/// Ctrl+G shows the delivered samples with their pictures, and loads the chosen one.
class Gallery : public Extension {
 public:
  explicit Gallery(Session& session) : session_(session) {}

  bool PressKey(const QKeyEvent& press) override;

 private:
  /// Returns the name of the chosen sample, or the empty text.
  QString Choose();

  Session& session_;
};

}  // namespace zerimo
