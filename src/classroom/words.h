#pragma once

#include <QString>

#include "classroom/pupil.h"

namespace zerimo::classroom {

/// How a run went, in a few words: "ended", "stopped: more than 10 seconds".
QString WordsOf(const RunOutcome& outcome, const RunLimits& limits);

/// Where a run stood, as the end of a sentence: "in line 2 (STAR), in the procedure SPIN at FD 10"; or empty.
QString WordsOf(const StopPlace& place);

/// "1 second", "2.5 seconds": a limit.
QString WordsOfSecondLimit(double seconds);

/// Seconds with one place: "0.4 s".
QString WordsOfSeconds(double seconds);

}  // namespace zerimo::classroom
