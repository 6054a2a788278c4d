#include "classroom/words.h"

#include "classroom/readable.h"

namespace zerimo::classroom {

namespace {

QString LimitWords(const QString& by, const RunLimits& limits) {
  if (by == "seconds") return QStringLiteral("more than ") + WordsOfSecondLimit(limits.Seconds);
  if (by == "steps") return QStringLiteral("more than %1 steps in one line").arg(limits.Steps);
  return QStringLiteral("more than %1 MB of memory").arg(limits.Memory);
}

}  // namespace

QString WordsOf(const RunOutcome& outcome, const RunLimits& limits) {
  QString message = Readable(outcome.Message);
  switch (outcome.How) {
    case Result::Ended:
      return outcome.By == "finished" ? QStringLiteral("ended") : QStringLiteral("ended by ") + Readable(outcome.By);
    case Result::Stopped:
      return QStringLiteral("stopped: ") + LimitWords(outcome.By, limits);
    case Result::Failed:
      return message;
    case Result::Refused:
      return QStringLiteral("the session is wrong: ") + message;
    case Result::NotRun:
      return QStringLiteral("not run: ") + message;
    case Result::Crashed:
      break;
  }
  return QStringLiteral("crashed: ") + message;
}

QString WordsOf(const StopPlace& place) {
  if (place.Line == 0) return {};
  QStringList parts = {QStringLiteral("in line %1").arg(place.Line)};
  if (!place.LineText.isEmpty()) parts.first() += QStringLiteral(" (") + Readable(place.LineText) + u')';
  if (!place.Procedure.isEmpty()) parts.append(QStringLiteral("in the procedure %1").arg(Readable(place.Procedure)));
  QString words = parts.join(QStringLiteral(", "));
  if (!place.Statement.isEmpty()) {
    words += QStringLiteral(" at %1").arg(Readable(place.Statement.trimmed()));
  }
  return words;
}

QString WordsOfSecondLimit(double seconds) {
  return seconds == 1 ? QStringLiteral("1 second") : QStringLiteral("%1 seconds").arg(seconds);
}

QString WordsOfSeconds(double seconds) { return QString::number(seconds, 'f', 1) + QStringLiteral(" s"); }

}  // namespace zerimo::classroom
