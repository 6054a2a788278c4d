#pragma once

#include <QObject>

#include "desktop/session.h"

namespace zerimo {

class SurfaceWidget;

/// Ctrl++, Ctrl+- and Ctrl+0, or Ctrl and the wheel, choose how large the window shows everything, from 50 to 400
/// percent. If the picture is larger than its space, the wheel moves the part shown; so does a turtle that leaves it.
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
  /// The place of the turtle, or the middle of the picture while the turtle is outside. Surface units.
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

/// The scale in percent that a start picks for a screen so wide (in pixels) that letters would be too small to read;
/// 100 for all others, and where the desktop scales its programs itself (`ratio` is not 1). Whole multiples keep the
/// pixels of the picture sharp.
int ScaleForScreen(int width, double ratio);

}  // namespace zerimo
