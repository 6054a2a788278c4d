#pragma once

#include <QIcon>
#include <QSize>

class QPainter;

namespace zerimo {

/// Draws the picture that greets the user. Its middle is transparent, so that a drawing behind it can be seen.
void DrawTitlePicture(QPainter& painter, const QSize& size);

/// The icon of the window.
QIcon ProgramIcon();

}  // namespace zerimo
