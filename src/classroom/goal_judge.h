#pragma once

#include "classroom/order.h"
#include "classroom/session_run.h"

namespace zerimo::classroom {

/// Compares what a program did for a goal with what the model did. The current folder is the scratch folder of the run;
/// the picture of the difference goes beside the others.
GoalOutcome Judge(const Order& order, std::size_t index, const SessionRun& run);

/// Keeps what the model did for a goal. It has met the goal if it came to its end and did something to compare with:
/// anyone could meet a goal of nothing.
GoalOutcome TakeModel(const Goal& goal, std::size_t index, const SessionRun& run);

/// How many lines of texts an outcome keeps.
inline constexpr qsizetype MostTexts = 40;

/// A text as it is compared: blanks and capitals make no difference.
QString PlainText(const QString& text);

/// The lines that are alike, in per cent of the longer of the two lists. Blanks and capitals are ignored.
double PercentOfTexts(const QStringList& wanted, const QStringList& printed);

}  // namespace zerimo::classroom
