#include <string>

#include "classroom/readable.h"
#include "classroom/record.h"

namespace zerimo::classroom {

namespace {

const Json* Find(const Json& json, const char* key) {
  if (!json.is_object()) return nullptr;
  const auto found = json.find(key);
  return found == json.end() ? nullptr : &*found;
}

std::string Dumped(const Json& json, int indent) {
  return json.dump(indent, ' ', false, Json::error_handler_t::replace);
}

}  // namespace

std::string Compact(const Json& json) { return Dumped(json, -1); }

std::string Indented(const Json& json) { return Dumped(json, 2) + '\n'; }

std::optional<Json> ParsedObject(const std::string& text) {
  Json json = Json::parse(text, nullptr, false);
  if (!json.is_object()) return std::nullopt;
  return json;
}

QString TextAt(const Json& json, const char* key) {
  const Json* const value = Find(json, key);
  return value != nullptr && value->is_string() ? WholeText(value->get<std::string>()) : QString();
}

double NumberAt(const Json& json, const char* key) {
  const Json* const value = Find(json, key);
  return value != nullptr && value->is_number() ? value->get<double>() : 0;
}

bool FlagAt(const Json& json, const char* key) {
  const Json* const value = Find(json, key);
  return value != nullptr && value->is_boolean() && value->get<bool>();
}

const Json& ListAt(const Json& json, const char* key) {
  static const Json nothing = Json::array();
  const Json* const value = Find(json, key);
  return value != nullptr && value->is_array() ? *value : nothing;
}

QStringList TextsAt(const Json& json, const char* key) {
  QStringList texts;
  for (const Json& each : ListAt(json, key)) {
    if (each.is_string()) texts.append(WholeText(each.get<std::string>()));
  }
  return texts;
}

Json ValueOf(const QString& text) { return text.toStdString(); }

Json ValueOf(const QStringList& texts) {
  Json all = Json::array();
  for (const QString& text : texts) all.push_back(text.toStdString());
  return all;
}

Json OrNull(const QString& text) { return text.isEmpty() ? Json() : ValueOf(text); }

}  // namespace zerimo::classroom
