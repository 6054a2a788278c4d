#pragma once

#include <QObject>

#include "desktop/session.h"

namespace zerimo {

class SurfaceWidget;

/// Ctrl++, Ctrl+- and Ctrl+0, or Ctrl and the wheel, choose how large the window shows everything, from 50 to 400
/// percent. Of an enlarged picture, the wheel moves the part that is seen, and so does the turtle when it leaves it.
/// The controls keep their properties.
class Zoom : public QObject, public Extension {
 public:
  explicit Zoom(Session& session);

  bool PressKey(const QKeyEvent& press) override;
  void RunEnds() override { FollowTurtle(); }

  /// Moves an enlarged picture if the turtle has left the part that is seen.
  void FollowTurtle();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Choose(int percent);
  /// Where the turtle is, or the middle of the picture while it is not in it: in surface units.
  QPointF PlaceToShow() const;
  /// In pixels of the surface's widget.
  QRect SeenPart() const;
  void MovePicture(QPointF distance);

  Session& session_;
  MainWindow& window_;
  SurfaceWidget& surface_;
  int percent_ = 100;
  /// The place that was brought into sight last.
  QPointF shown_;
};

}  // namespace zerimo
