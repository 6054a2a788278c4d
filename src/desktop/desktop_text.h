#pragma once

#include <QColor>
#include <QFont>
#include <QString>
#include <string>
#include <string_view>

#include "controls/control_kinds.h"

class QKeyEvent;

/// Conversions between the system's single-byte text, keys, colours and point sizes and those of the toolkit.
namespace zerimo {

/// The program's name, which is also the title of boxes for which the system gives none.
inline constexpr const char* ProgramName = "Zerimo";

QString ToQString(std::string_view text);

/// Typographic quotes and dashes become plain ones; any other character that the system lacks becomes a question mark.
QString OnlyKnownCharacters(const QString& text);
std::string ToSystemText(const QString& text);

/// Carriage returns, line feeds and pairs of them become the toolkit's line ends; the way back gives pairs.
QString WithLineEnds(std::string_view text);
std::string WithCarriageReturns(const QString& text);

/// The system's code of a key, or 0 for one that it does not know.
int KeyCode(const QKeyEvent& event);

QColor ToQColor(Colour colour);
/// Black or white, whichever is easier to read on a background.
QColor ReadableOn(const QColor& background);
/// The ratio of the brightness of two colours as the guidelines for web pages define it: 1 to 21.
double Contrast(const QColor& one, const QColor& other);

/// Arial, or the font with its metrics, in points at 96 dots an inch whatever the display reports: the controls are
/// placed in such dots too. Never smaller than 13 pixels.
QFont ControlFont(double points, bool bold = false);

}  // namespace zerimo
