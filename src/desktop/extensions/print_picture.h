#pragma once

#include <QString>

#include "desktop/session.h"

class QImage;
class QPainter;

namespace zerimo {

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
