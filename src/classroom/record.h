#pragma once

#include <nlohmann/json.hpp>

#include "classroom/pupil.h"

/// A run as JSON: the one form for the process that tells of itself, for the summary and for the parts of a large
/// class.
namespace zerimo::classroom {

using Json = nlohmann::ordered_json;

/// The word of a mistake's facts that a reader of the file finds it by.
std::optional<Mistake> MistakeOf(const std::string& code);

Json JsonOf(const RunOutcome& outcome);
/// What is missing or of another kind stays as in an empty outcome.
RunOutcome OutcomeIn(const Json& json);

Json JsonOf(const PupilRun& run);
PupilRun RunIn(const Json& json);

/// On one line, or with its parts on lines of their own. Bytes that are no UTF-8 become U+FFFD.
std::string Compact(const Json& json);
std::string Indented(const Json& json);

/// Nothing if the text is no JSON object.
std::optional<Json> ParsedObject(const std::string& text);

/// The value of a key, or the empty one where there is none of that kind.
QString TextAt(const Json& json, const char* key);
double NumberAt(const Json& json, const char* key);
bool FlagAt(const Json& json, const char* key);
const Json& ListAt(const Json& json, const char* key);
QStringList TextsAt(const Json& json, const char* key);

Json ValueOf(const QString& text);
Json ValueOf(const QStringList& texts);
/// A text, or null if it is empty.
Json OrNull(const QString& text);

}  // namespace zerimo::classroom
