#include "classroom/summary.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <cmath>

#include "classroom/process_limits.h"
#include "classroom/readable.h"

namespace zerimo::classroom {

namespace {

QJsonValue OrNull(const QString& text) { return text.isEmpty() ? QJsonValue() : QJsonValue(text); }

QJsonValue LimitOrNull(double limit) { return limit == 0 ? QJsonValue() : QJsonValue(limit); }

QJsonObject LimitsOf(const RunLimits& limits) {
  return {{"seconds", LimitOrNull(limits.Seconds)},
          {"steps", LimitOrNull(static_cast<double>(limits.Steps))},
          {"megabytes", LimitOrNull(CanLimitMemory() ? limits.Memory : 0)}};
}

QJsonValue PlaceOf(const StopPlace& place) {
  if (place.Line == 0) return {};
  return QJsonObject{{"line", place.Line},
                     {"text", OrNull(place.LineText)},
                     {"procedure", OrNull(place.Procedure)},
                     {"statement", OrNull(place.Statement)}};
}

QJsonArray BoxesOf(const std::vector<ShownBox>& boxes) {
  QJsonArray all;
  for (const ShownBox& shown : boxes) {
    all.append(QJsonObject{{"kind", shown.Kind},
                           {"title", shown.Title},
                           {"text", shown.Text},
                           {"buttons", OrNull(shown.Buttons)},
                           {"answer", shown.Answer}});
  }
  return all;
}

QJsonObject PupilOf(const PupilRun& run) {
  return {{"file", NameOf(run.Who.Program.filename())},
          {"session", OrNull(NameOf(run.Who.Session.filename()))},
          {"typed", QJsonArray::fromStringList(run.Went.Typed)},
          {"result", WordOf(run.Went.How)},
          {"by", OrNull(run.Went.By)},
          {"message", OrNull(run.Went.Message)},
          {"place", PlaceOf(run.Went.Where)},
          {"notes", QJsonArray::fromStringList(run.Went.Notes)},
          {"seconds", std::round(run.Seconds * 1000) / 1000},
          {"printed", QJsonArray::fromStringList(run.Told.Lines)},
          {"printedCut", run.Told.LinesAreCut},
          {"boxes", BoxesOf(run.Told.Boxes)},
          {"boxesCut", run.Told.BoxesAreCut},
          {"picture", !run.Picture.empty()}};
}

}  // namespace

QByteArray SummaryOf(const Report& report) {
  QJsonArray pupils;
  for (const PupilRun& run : report.Runs) pupils.append(PupilOf(run));
  return QJsonDocument(QJsonObject{{"format", 1},
                                   {"program", QStringLiteral("zerimo-batch ") + report.Version},
                                   {"made", report.Made},
                                   {"folder", report.Folder},
                                   {"limits", LimitsOf(report.Limits)},
                                   {"pupils", pupils}})
      .toJson();
}

}  // namespace zerimo::classroom
