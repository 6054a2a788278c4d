#pragma once

#include <nlohmann/json.hpp>

#include "classroom/pupil.h"

/// A run as JSON, in the same form for a process that reports to the runner, for the summary and for the parts of a
/// large class.
namespace zerimo::classroom {

using Json = nlohmann::ordered_json;

/// The mistake with a code (`MistakeFacts::Code`), or nothing.
std::optional<Mistake> MistakeOf(const std::string& code);

Json JsonOf(const RunOutcome& outcome);
/// What is missing or of the wrong kind stays as in an empty outcome.
RunOutcome OutcomeIn(const Json& json);

/// Without its limits.
Json JsonOf(const PupilRun& run);
PupilRun RunIn(const Json& json);

/// No limit is null.
Json JsonOf(const RunLimits& limits);
RunLimits LimitsIn(const Json& json);

/// On one line, or with its parts on lines of their own. Bytes that are not UTF-8 become U+FFFD.
std::string Compact(const Json& json);
std::string Indented(const Json& json);

/// Nothing if the text is not a JSON object.
std::optional<Json> ParsedObject(const std::string& text);

/// The value of a key, or an empty value if there is none of that kind.
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
