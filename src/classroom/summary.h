#pragma once

#include <QByteArray>

#include "classroom/report.h"

namespace zerimo::classroom {

/// A class run for other programs, as JSON in UTF-8.
QByteArray SummaryOf(const Report& report);

}  // namespace zerimo::classroom
