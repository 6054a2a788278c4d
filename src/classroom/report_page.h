#pragma once

#include <QByteArray>

#include "classroom/report.h"

namespace zerimo::classroom {

/// A class run for people: one HTML page in UTF-8 that needs nothing beside it, reaches for nothing and runs nothing.
QByteArray PageOf(const Report& report);

}  // namespace zerimo::classroom
