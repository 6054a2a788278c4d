#pragma once

#include <QColor>
#include <QFont>
#include <QString>
#include <string>
#include <string_view>

#include "controls/control_kinds.h"

/// The edge between the system's single-byte text, colours and points, and those of the toolkit.
namespace zerimo {

/// The program's name; also the title of boxes that have none of the system's own.
inline constexpr const char* ProgramName = "Zerimo";

QString ToQString(std::string_view text);

/// Typographic quotes and dashes become the plain ones; any other character that the system does not have becomes a
/// question mark.
QString OnlyKnownCharacters(const QString& text);
std::string ToSystemText(const QString& text);

/// Carriage returns, line feeds and pairs of them become the toolkit's line ends, and back to pairs.
QString WithLineEnds(std::string_view text);
std::string WithCarriageReturns(const QString& text);

QColor ToQColor(Colour colour);
/// Black or white, whichever is seen on a background.
QColor ReadableOn(const QColor& background);

/// Arial or its metric twin at a size in points of 1/72 inch on a display of 96 dots an inch, whatever the display
/// says of itself: the places of the controls are in such dots too. Nothing is smaller than can be read.
QFont ControlFont(double points, bool bold = false);

}  // namespace zerimo
