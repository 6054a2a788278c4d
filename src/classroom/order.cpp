#include "classroom/order.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <array>
#include <string>
#include <utility>

#include "files/disk_files.h"

namespace zerimo::classroom {

namespace {

namespace fs = std::filesystem;

struct ResultWord {
  Result How;
  const char* Word;
};

constexpr std::array<ResultWord, 6> ResultWords = {{
    {Result::Ended, "ended"},
    {Result::Stopped, "stopped"},
    {Result::Failed, "failed"},
    {Result::Refused, "refused"},
    {Result::NotRun, "not run"},
    {Result::Crashed, "crashed"},
}};

Result ResultOf(const QString& word) {
  for (const ResultWord& each : ResultWords) {
    if (word == QLatin1String(each.Word)) return each.How;
  }
  return Result::Crashed;
}

/// A path may be no text at all, so it travels as the digits of its bytes.
QString Packed(const fs::path& path) {
  const std::u8string bytes = path.u8string();
  const QByteArray view(reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size()));
  return QString::fromLatin1(view.toHex());
}

fs::path Unpacked(const QJsonValue& value) {
  const QByteArray bytes = QByteArray::fromHex(value.toString().toLatin1());
  return std::u8string(bytes.begin(), bytes.end());
}

void WriteObject(const fs::path& file, const QJsonObject& object) {
  WriteBeside(file, QJsonDocument(object).toJson(QJsonDocument::Compact).toStdString());
}

std::optional<QJsonObject> ReadObject(const fs::path& file) {
  const std::optional<std::string> bytes = BytesOf(file);
  if (!bytes) return std::nullopt;
  const QJsonDocument document = QJsonDocument::fromJson(QByteArray::fromStdString(*bytes));
  if (!document.isObject()) return std::nullopt;
  return document.object();
}

QStringList Texts(const QJsonValue& value) {
  QStringList texts;
  for (const auto& each : value.toArray()) texts.append(each.toString());
  return texts;
}

}  // namespace

QString WordOf(Result result) {
  for (const ResultWord& each : ResultWords) {
    if (result == each.How) return QString::fromLatin1(each.Word);
  }
  return {};
}

void WriteOrder(const fs::path& file, const Order& order) {
  WriteObject(file, {{"program", Packed(order.Who.Program)},
                     {"session", Packed(order.Who.Session)},
                     {"seconds", order.Limits.Seconds},
                     {"steps", QString::number(order.Limits.Steps)},
                     {"memory", order.Limits.Memory},
                     {"width", static_cast<double>(order.Screen.Width)},
                     {"height", static_cast<double>(order.Screen.Height)}});
}

std::optional<Order> ReadOrder(const fs::path& file) {
  const std::optional<QJsonObject> object = ReadObject(file);
  if (!object) return std::nullopt;
  Order order;
  order.Who = {Unpacked(object->value("program")), Unpacked(object->value("session"))};
  order.Limits.Seconds = object->value("seconds").toDouble();
  order.Limits.Steps = object->value("steps").toString().toULongLong();
  order.Limits.Memory = object->value("memory").toInt();
  order.Screen.Width = static_cast<float>(object->value("width").toDouble());
  order.Screen.Height = static_cast<float>(object->value("height").toDouble());
  return order;
}

void WriteOutcome(const fs::path& file, const RunOutcome& outcome) {
  WriteObject(file, {{"result", WordOf(outcome.How)},
                     {"by", outcome.By},
                     {"message", outcome.Message},
                     {"line", outcome.Where.Line},
                     {"lineText", outcome.Where.LineText},
                     {"procedure", outcome.Where.Procedure},
                     {"statement", outcome.Where.Statement},
                     {"typed", QJsonArray::fromStringList(outcome.Typed)},
                     {"notes", QJsonArray::fromStringList(outcome.Notes)}});
}

std::optional<RunOutcome> ReadOutcome(const fs::path& file) {
  const std::optional<QJsonObject> object = ReadObject(file);
  if (!object) return std::nullopt;
  RunOutcome outcome;
  outcome.How = ResultOf(object->value("result").toString());
  outcome.By = object->value("by").toString();
  outcome.Message = object->value("message").toString();
  outcome.Where.Line = object->value("line").toInt();
  outcome.Where.LineText = object->value("lineText").toString();
  outcome.Where.Procedure = object->value("procedure").toString();
  outcome.Where.Statement = object->value("statement").toString();
  outcome.Typed = Texts(object->value("typed"));
  outcome.Notes = Texts(object->value("notes"));
  return outcome;
}

}  // namespace zerimo::classroom
