#pragma once

#include <QImage>
#include <QString>

#include "desktop/session.h"
#include "pictures/svg_picture.h"

class QImage;
class QPainter;

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

/// Ctrl+P prints the picture on a page, with the learner's name and the date below it.
class PrintPicture : public Extension {
 public:
  explicit PrintPicture(Session& session);

  bool PressKey(const QKeyEvent& press) override;

 private:
  void Print();

  Session& session_;
  /// As it was given last.
  std::string name_;
};

/// Paints a page, in the units of the painter: the picture as large as it fits, and the words centred below it.
void PaintPage(QPainter& painter, const QRect& page, const QImage& picture, const QString& words);

}  // namespace zerimo
