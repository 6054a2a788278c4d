#include "classroom/words.h"

#include <cmath>

#include "classroom/readable.h"

namespace zerimo::classroom {

namespace {

/// Surface units to a step of the turtle.
constexpr double UnitsPerStep = 50;

QString LimitWords(const QString& by, const RunLimits& limits, const Language& language) {
  const QString limit = by == "seconds" ? WordsOfSecondLimit(limits.Seconds, language)
                        : by == "steps" ? WordsOfStepLimit(limits.Steps, language)
                                        : WordsOfMemoryLimit(limits.Memory, language);
  return Filled(language.MoreThan, {limit});
}

QString Rounded(double number) { return QString::number(std::round(number) + 0.0); }

}  // namespace

QString Filled(const char* words, const QStringList& values) {
  const QString pattern = QString::fromUtf8(words);
  QString filled;
  for (qsizetype i = 0; i < pattern.size(); ++i) {
    const int place = pattern[i] == u'%' && i + 1 < pattern.size() ? pattern[i + 1].digitValue() : -1;
    if (place < 1) {
      filled += pattern[i];
      continue;
    }
    filled += values.value(place - 1);
    ++i;
  }
  return filled;
}

QString WordsOf(const RunOutcome& outcome, const RunLimits& limits, const Language& language) {
  const QString message = Readable(language.Of(outcome.Message));
  switch (outcome.How) {
    case Result::Ended:
      return outcome.By == "finished" ? QString::fromUtf8(language.Ended)
                                      : Filled(language.EndedBy, {Readable(outcome.By)});
    case Result::Stopped:
      return Filled(language.Stopped, {LimitWords(outcome.By, limits, language)});
    case Result::Failed:
      return message;
    case Result::Refused:
      return Filled(language.SessionIsWrong, {message});
    case Result::NotRun:
      return Filled(language.NotRun, {message});
    case Result::Crashed:
      break;
  }
  return Filled(language.Crashed, {message});
}

QString WordsOf(const StopPlace& place, const Language& language) {
  if (place.Line == 0) return {};
  QStringList parts = {Filled(language.InLine, {QString::number(place.Line)})};
  if (!place.LineText.isEmpty()) parts.first() += QStringLiteral(" (") + Readable(place.LineText) + u')';
  if (!place.Procedure.isEmpty()) parts.append(Filled(language.InProcedure, {Readable(place.Procedure)}));
  QString words = parts.join(QStringLiteral(", "));
  if (!place.Statement.isEmpty()) words += u' ' + Filled(language.At, {Readable(place.Statement.trimmed())});
  return words;
}

QString WordsOf(const Placement& placement, const Language& language) {
  QStringList parts;
  const double degrees = std::round(placement.Degrees);
  if (placement.Mirrored) parts.append(QString::fromUtf8(language.Mirrored));
  if (degrees != 0)
    parts.append(Filled(degrees > 0 ? language.TurnedRight : language.TurnedLeft, {Rounded(std::abs(degrees))}));
  if (std::round(placement.Scale * 100) != 100) parts.append(Filled(language.Scaled, {Rounded(placement.Scale * 100)}));
  const double right = std::round(placement.Shift.X / UnitsPerStep);
  const double down = std::round(placement.Shift.Y / UnitsPerStep);
  if (right != 0)
    parts.append(Filled(right > 0 ? language.ShiftedRight : language.ShiftedLeft, {Rounded(std::abs(right))}));
  if (down != 0) parts.append(Filled(down > 0 ? language.ShiftedDown : language.ShiftedUp, {Rounded(std::abs(down))}));
  if (parts.isEmpty()) parts.append(QString::fromUtf8(language.DrawnOtherwise));
  return parts.join(QStringLiteral(", "));
}

QString WordsOfSecondLimit(double seconds, const Language& language) {
  return seconds == 1 ? QString::fromUtf8(language.OneSecond) : Filled(language.Seconds, {QString::number(seconds)});
}

QString WordsOfStepLimit(quint64 steps, const Language& language) {
  return Filled(language.Steps, {QString::number(steps)});
}

QString WordsOfMemoryLimit(int megabytes, const Language& language) {
  return Filled(language.Memory, {QString::number(megabytes)});
}

QString WordsOfSeconds(double seconds) { return QString::number(seconds, 'f', 1) + QStringLiteral(" s"); }

}  // namespace zerimo::classroom
