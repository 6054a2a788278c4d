#include "classroom/marks.h"

#include <QStringList>

#include "classroom/page_html.h"
#include "classroom/readable.h"

namespace zerimo::classroom {

namespace {

QString Cell(const QString& text) {
  QString cell = Readable(text).replace(u'"', QStringLiteral("\"\""));
  const bool isFormula = !cell.isEmpty() && QStringLiteral("=+-@").contains(cell.front());
  return u'"' + (isFormula ? QStringLiteral("'") : QString()) + cell + u'"';
}

QByteArray Row(const QStringList& texts) {
  QStringList cells;
  for (const QString& text : texts) cells.append(Cell(text));
  return (cells.join(u',') + QStringLiteral("\r\n")).toUtf8();
}

}  // namespace

QByteArray MarksHead() {
  return Row({"file", "name", "result", "points", "most points", "goals met", "goals", "findings", "seconds"});
}

QByteArray MarksOf(const PupilRun& run) {
  return Row({NameOf(PlaceOf(run.Who)), PupilName(run.Who), WordOf(run.Outcome.How), QString::number(PointsOf(run)),
              QString::number(MostPointsOf(run)), QString::number(run.GoalsMet()),
              QString::number(run.Outcome.Goals.size()), QString::number(run.Outcome.Findings.size()),
              QString::number(run.Seconds, 'f', 1)});
}

}  // namespace zerimo::classroom
