#pragma once

#include <QImage>

#include "desktop/session.h"
#include "pictures/svg_picture.h"

namespace zerimo {

/// Ctrl+Shift+S saves the picture to a file, Ctrl+Shift+C copies it: what has been drawn, without the turtle.
class PictureKeys : public Extension {
 public:
  /// Must be created before anything is drawn.
  explicit PictureKeys(Session& session);

  bool PressKey(const QKeyEvent& press) override;

 private:
  void Save();
  void Write(const QString& file);
  /// The size of the picture in pixels: without the rows, if they can be seen.
  QSize Size() const;

  Session& session_;
  SvgRecorder svgRecorder_;
  QString folder_;
};

}  // namespace zerimo
