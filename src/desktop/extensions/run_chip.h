#pragma once

#include <QElapsedTimer>
#include <QTimer>

#include "desktop/session.h"

class QLabel;

namespace zerimo {

/// A small label in the corner of the picture: it shows what it is given to say and, once a program has run for two
/// seconds, how long it has and how to stop it. It takes no focus and no clicks.
class RunChip : public Extension {
 public:
  explicit RunChip(Session& session);

  /// Shows words above the time, until it is given others or none.
  void Say(const QString& words);

  void RunBegins() override;
  void RunEnds() override;

 private:
  void Show();

  Session& session_;
  /// Belongs to the window.
  QLabel& label_;
  QString said_;
  QElapsedTimer running_;
  QTimer clock_;
};

}  // namespace zerimo
