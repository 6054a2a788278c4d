#include "classroom/words.h"

#include <QLocale>
#include <QRegularExpression>
#include <cmath>

#include "classroom/readable.h"

namespace zerimo::classroom {

namespace {

QString LimitWords(const QString& by, const RunLimits& limits, const Language& language) {
  const QString limit = by == "seconds" ? WordsOfSecondLimit(limits.Seconds, language)
                        : by == "steps" ? WordsOfStepLimit(limits.Steps, language)
                                        : WordsOfMemoryLimit(limits.Memory, language);
  return Filled(language.MoreThan, {limit});
}

QLocale LocaleOf(const Language& language) {
  QLocale locale(QString::fromLatin1(language.Code));
  locale.setNumberOptions(QLocale::OmitGroupSeparator);
  return locale;
}

QString Rounded(double number) { return QString::number(std::round(number) + 0.0); }

}  // namespace

QString Filled(const char* words, const QStringList& values) {
  static const QRegularExpression gap("%([1-9])(?:\\{([^/}]*)/([^}]*)\\})?");
  const QString pattern = QString::fromUtf8(words);
  QString filled;
  qsizetype end = 0;
  for (auto walk = gap.globalMatch(pattern); walk.hasNext();) {
    const QRegularExpressionMatch match = walk.next();
    const QString value = values.value(match.captured(1).toInt() - 1);
    filled += pattern.mid(end, match.capturedStart() - end);
    filled += !match.hasCaptured(2) ? value : match.captured(value == "1" ? 2 : 3);
    end = match.capturedEnd();
  }
  return filled + pattern.mid(end);
}

QStringList ValuesOf(const MissingParts& missing) {
  QStringList indexes;
  for (const int index : missing.Indexes) indexes.append(QString::number(index));
  return {QString::number(indexes.size()), indexes.join(QStringLiteral(", ")), QString::number(missing.Count)};
}

QString WordOfNumber(double number, const Language& language) {
  return LocaleOf(language).toString(std::round(number * 100) / 100, 'f', QLocale::FloatingPointShortest);
}

QString WordsOf(const RunOutcome& outcome, const RunLimits& limits, const Language& language) {
  QString message = Readable(language.Of(outcome.Message));
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
    case Result::NoProgram:
      return QString::fromUtf8(language.NoProgram);
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

QString TitleOf(const GoalOutcome& goal, const Language& language) {
  return goal.Title.isEmpty() ? QString::fromUtf8(language.GoalOfCall) : goal.Title;
}

QString WordsOf(const GoalOutcome& goal, const Language& language) {
  QStringList broken;
  for (const StrokeRule rule : goal.Broken)
    broken.append(QString::fromUtf8(language.StrokeRules[static_cast<std::size_t>(rule)]));
  if (!broken.isEmpty()) return Filled(language.StrokesAreRight, {broken.join(QStringLiteral(", "))});
  return goal.Placed ? Filled(language.ItIsTheGoal, {WordsOf(*goal.Placed, language)}) : QString();
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
  if (parts.isEmpty()) parts.append(QString::fromUtf8(language.Inexact));
  return parts.join(QStringLiteral(", "));
}

QString WordsOfSecondLimit(double seconds, const Language& language) {
  return Filled(language.Seconds, {WordOfNumber(seconds, language)});
}

QString WordsOfStepLimit(quint64 steps, const Language& language) {
  return Filled(language.Steps, {QString::number(steps)});
}

QString WordsOfMemoryLimit(int megabytes, const Language& language) {
  return Filled(language.Memory, {QString::number(megabytes)});
}

QString WordsOfSeconds(double seconds, const Language& language) {
  return LocaleOf(language).toString(seconds, 'f', 1) + QStringLiteral(" s");
}

}  // namespace zerimo::classroom
