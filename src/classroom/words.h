#pragma once

#include <QString>

#include "classroom/language.h"
#include "classroom/pupil.h"
#include "classroom/report.h"

namespace zerimo::classroom {

/// How a run went, in a few words: "ended", "stopped: more than 10 seconds".
QString WordsOf(const RunOutcome& outcome, const RunLimits& limits, const Language& language = English);

/// Where a run was, as the end of a sentence: "in line 2 (STAR), in the procedure SPIN at FD 10"; or empty.
QString WordsOf(const StopPlace& place, const Language& language = English);

/// "STAR 50", or "the program" for a goal without a title.
QString TitleOf(const GoalOutcome& goal, const Language& language);

/// What a drawing that misses its goal still has of it, as a sentence: "The strokes are right, but not their order.";
/// or empty.
QString WordsOf(const GoalOutcome& goal, const Language& language);

/// How a drawing that is the goal in another place is placed: "turned by 90 degrees to the right".
QString WordsOf(const Placement& placement, const Language& language);

/// What fills `Language::MissingParts`: how many parts, which ones, and of how many.
QStringList ValuesOf(const MissingParts& missing);

/// Words of a language, with what is filled in. %2{step/steps} is "step" if the second value is 1, otherwise "steps".
/// What a pupil has written can't add more.
QString Filled(const char* words, const QStringList& values);

/// A number as the language writes it, with at most two decimals: "2.5" or "2,5".
QString WordOfNumber(double number, const Language& language);

/// "1 second", "1000 steps in one line", "64 MB of memory": the limits.
QString WordsOfSecondLimit(double seconds, const Language& language = English);
QString WordsOfStepLimit(quint64 steps, const Language& language = English);
QString WordsOfMemoryLimit(int megabytes, const Language& language = English);

/// Seconds with one decimal: "0.4 s".
QString WordsOfSeconds(double seconds, const Language& language = English);

}  // namespace zerimo::classroom
