#pragma once

#include <QPixmap>
#include <QRegion>
#include <array>

#include "controls/controls.h"

class QPainter;

namespace zerimo {

/// What is drawn above the surface and never enters the picture: the turtle, the axes and the title picture.
class Overlay {
 public:
  explicit Overlay(const Controls& controls) : controls_(controls) {}

  /// The region to repaint since the last call: wherever something was or is.
  QRegion TakeChanged();

  void Draw(QPainter& painter, const QRect& part);

 private:
  struct LineLook {
    bool Visible = false;
    float X1 = 0, Y1 = 0, X2 = 0, Y2 = 0;
    Colour Color = 0;
    bool operator==(const LineLook&) const = default;
  };
  struct Look {
    std::array<LineLook, 5> Lines;
    LineLook Head;
    QRect Title;
    bool operator==(const Look&) const = default;
  };
  Look LookNow() const;
  static QRegion RegionOf(const Look& before, const Look& now);
  void DrawTitle(QPainter& painter, const QRect& part);

  const Controls& controls_;
  Look shown_;
  QPixmap title_;
};

}  // namespace zerimo
