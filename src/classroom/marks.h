#pragma once

#include <QByteArray>

#include "classroom/report.h"

namespace zerimo::classroom {

/// The first line of a table of marks, and the line of one run: comma-separated, in quotes, UTF-8, CRLF. A text that a
/// spreadsheet would take for a formula begins with an apostrophe.
QByteArray MarksHead();
QByteArray MarksOf(const PupilRun& run);

}  // namespace zerimo::classroom
