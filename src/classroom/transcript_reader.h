#pragma once

#include <QByteArray>

#include "classroom/pupil.h"

namespace zerimo::classroom {

/// What is kept of a run for the report.
inline constexpr qsizetype MostLines = 400;
inline constexpr qsizetype MostBoxes = 100;
/// Characters of all lines, and of all boxes.
inline constexpr qsizetype MostCharacters = 32768;

/// What a transcript says. Of one that breaks off, or is not a transcript, it gives what can be read.
Said SaidIn(const QByteArray& transcript);

}  // namespace zerimo::classroom
