#include "classroom/record.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "classroom/readable.h"

namespace zerimo::classroom {

namespace {

struct ResultWord {
  Result How;
  const char* Word;
};

constexpr std::array<ResultWord, ResultCount> ResultWords = {{
    {Result::Ended, "ended"},
    {Result::Stopped, "stopped"},
    {Result::Failed, "failed"},
    {Result::Refused, "refused"},
    {Result::NotRun, "not run"},
    {Result::Crashed, "crashed"},
    {Result::NoProgram, "no program"},
}};

constexpr std::array<const char*, 3> WayWords = {"shapes", "pixels", "texts"};
constexpr std::array<const char*, StrokeRuleCount> RuleWords = {"order", "direction", "splitting", "colour"};

Result ResultOf(const QString& word) {
  for (const ResultWord& each : ResultWords) {
    if (word == QLatin1String(each.Word)) return each.How;
  }
  return Result::Crashed;
}

GoalWay WayOf(const QString& word) {
  const auto* const found = std::ranges::find(WayWords, word.toStdString());
  return found == WayWords.end() ? GoalWay::Shapes : static_cast<GoalWay>(found - WayWords.begin());
}

Json JsonOf(const StopPlace& place) {
  if (place.Line == 0) return {};
  return {{"line", place.Line},
          {"text", OrNull(place.LineText)},
          {"procedure", OrNull(place.Procedure)},
          {"statement", OrNull(place.Statement)},
          {"programLine", place.ProgramLine}};
}

StopPlace PlaceIn(const Json& json) {
  return {static_cast<int>(NumberAt(json, "line")), TextAt(json, "text"), TextAt(json, "procedure"),
          TextAt(json, "statement"), static_cast<int>(NumberAt(json, "programLine"))};
}

Json JsonOf(const std::vector<Finding>& findings) {
  Json all = Json::array();
  for (const Finding& each : findings)
    all.push_back({{"mistake", FactsOf(each.What).Code}, {"line", each.Line}, {"details", ValueOf(each.Details)}});
  return all;
}

std::vector<Finding> FindingsAt(const Json& json) {
  std::vector<Finding> findings;
  for (const Json& each : ListAt(json, "findings")) {
    const std::optional<Mistake> what = MistakeOf(TextAt(each, "mistake").toStdString());
    if (what) findings.push_back({*what, static_cast<int>(NumberAt(each, "line")), TextsAt(each, "details")});
  }
  return findings;
}

Json JsonOf(const std::vector<SourceLine>& lines) {
  Json all = Json::array();
  for (const SourceLine& line : lines) {
    Json one = {{"text", ValueOf(line.Text)}};
    if (line.Stored) one["stored"] = ValueOf(*line.Stored);
    all.push_back(std::move(one));
  }
  return all;
}

std::vector<SourceLine> SourceAt(const Json& json) {
  std::vector<SourceLine> lines;
  for (const Json& each : ListAt(json, "source")) {
    SourceLine line{TextAt(each, "text"), {}};
    if (each.is_object() && each.contains("stored")) line.Stored = TextsAt(each, "stored");
    lines.push_back(std::move(line));
  }
  return lines;
}

Json WordsOf(const std::vector<StrokeRule>& rules) {
  Json words = Json::array();
  for (const StrokeRule rule : rules) words.push_back(RuleWords[static_cast<std::size_t>(rule)]);
  return words;
}

std::vector<StrokeRule> RulesAt(const Json& json) {
  std::vector<StrokeRule> rules;
  for (const QString& word : TextsAt(json, "broken")) {
    const auto* const found = std::ranges::find(RuleWords, word.toStdString());
    if (found != RuleWords.end()) rules.push_back(static_cast<StrokeRule>(found - RuleWords.begin()));
  }
  return rules;
}

Json JsonOf(const std::vector<GoalOutcome>& goals) {
  Json all = Json::array();
  for (const GoalOutcome& goal : goals) {
    Json one = {{"title", ValueOf(goal.Title)},
                {"way", WayWords[static_cast<std::size_t>(goal.Way)]},
                {"met", goal.Met},
                // Rounded down: only a complete drawing has 100 per cent.
                {"percent", std::floor(goal.Percent * 10) / 10},
                {"points", goal.Points}};
    if (goal.Placed) {
      one["placed"] = {{"degrees", goal.Placed->Degrees},
                       {"mirrored", goal.Placed->Mirrored},
                       {"scale", goal.Placed->Scale},
                       {"x", goal.Placed->Shift.X},
                       {"y", goal.Placed->Shift.Y}};
    }
    if (!goal.Broken.empty()) one["broken"] = WordsOf(goal.Broken);
    if (!goal.Wanted.isEmpty()) {
      one["wanted"] = ValueOf(goal.Wanted);
      one["printed"] = ValueOf(goal.Printed);
      one["textsCut"] = goal.TextsAreCut;
    }
    all.push_back(std::move(one));
  }
  return all;
}

std::vector<GoalOutcome> GoalsAt(const Json& json) {
  std::vector<GoalOutcome> goals;
  for (const Json& each : ListAt(json, "goals")) {
    GoalOutcome goal{TextAt(each, "title"),
                     WayOf(TextAt(each, "way")),
                     FlagAt(each, "met"),
                     NumberAt(each, "percent"),
                     NumberAt(each, "points"),
                     {},
                     RulesAt(each),
                     TextsAt(each, "wanted"),
                     TextsAt(each, "printed"),
                     FlagAt(each, "textsCut")};
    if (each.is_object() && each.contains("placed")) {
      const Json& placed = each["placed"];
      goal.Placed = Placement{NumberAt(placed, "degrees"),
                              FlagAt(placed, "mirrored"),
                              NumberAt(placed, "scale"),
                              {NumberAt(placed, "x"), NumberAt(placed, "y")}};
    }
    goals.push_back(std::move(goal));
  }
  return goals;
}

Json JsonOf(const std::vector<ShownBox>& boxes) {
  Json all = Json::array();
  for (const ShownBox& shown : boxes) {
    all.push_back({{"kind", ValueOf(shown.Kind)},
                   {"title", ValueOf(shown.Title)},
                   {"text", ValueOf(shown.Text)},
                   {"buttons", OrNull(shown.Buttons)},
                   {"answer", ValueOf(shown.Answer)}});
  }
  return all;
}

std::vector<ShownBox> BoxesAt(const Json& json) {
  std::vector<ShownBox> boxes;
  for (const Json& each : ListAt(json, "boxes"))
    boxes.push_back({TextAt(each, "kind"), TextAt(each, "title"), TextAt(each, "text"), TextAt(each, "buttons"),
                     TextAt(each, "answer")});
  return boxes;
}

template <typename Number>
Json LimitOrNull(Number limit) {
  return limit == 0 ? Json() : Json(limit);
}

/// Kept among the notes for older readers of the file, though it is a finding too.
QStringList NotesOfFindings(const std::vector<Finding>& findings) {
  QStringList notes;
  QStringList withoutEnd;
  for (const Finding& finding : findings) {
    if (finding.What == Mistake::Empty) notes.append("The program is empty.");
    if (finding.What == Mistake::OneLine)
      notes.append("The lines of the file end in LF alone: Zerimo reads it as one line.");
    if (finding.What == Mistake::WithoutEnd) withoutEnd += finding.Details;
  }
  if (!withoutEnd.isEmpty()) notes.append("Procedures without END: " + withoutEnd.join(QStringLiteral(", ")) + u'.');
  return notes;
}

}  // namespace

QString WordOf(Result result) {
  for (const ResultWord& each : ResultWords) {
    if (result == each.How) return QString::fromLatin1(each.Word);
  }
  return {};
}

std::optional<Mistake> MistakeOf(const std::string& code) {
  for (const MistakeFacts& facts : Mistakes()) {
    if (code == facts.Code) return facts.What;
  }
  return std::nullopt;
}

Json JsonOf(const RunOutcome& outcome) {
  return {{"typed", ValueOf(outcome.Typed)},
          {"result", ValueOf(WordOf(outcome.How))},
          {"by", OrNull(outcome.By)},
          {"message", OrNull(outcome.Message)},
          {"place", JsonOf(outcome.Where)},
          {"notes", ValueOf(outcome.Notes)},
          {"findings", JsonOf(outcome.Findings)},
          {"goals", JsonOf(outcome.Goals)},
          {"source", JsonOf(outcome.Source)},
          {"sourceCut", outcome.SourceIsCut}};
}

RunOutcome OutcomeIn(const Json& json) {
  RunOutcome outcome;
  outcome.How = ResultOf(TextAt(json, "result"));
  outcome.By = TextAt(json, "by");
  outcome.Message = TextAt(json, "message");
  if (json.contains("place")) outcome.Where = PlaceIn(json["place"]);
  outcome.Typed = TextsAt(json, "typed");
  outcome.Notes = TextsAt(json, "notes");
  outcome.Findings = FindingsAt(json);
  outcome.Goals = GoalsAt(json);
  outcome.Source = SourceAt(json);
  outcome.SourceIsCut = FlagAt(json, "sourceCut");
  return outcome;
}

Json JsonOf(const RunLimits& limits) {
  return {{"seconds", LimitOrNull(limits.Seconds)},
          {"steps", LimitOrNull(limits.Steps)},
          {"megabytes", LimitOrNull(limits.Memory)}};
}

RunLimits LimitsIn(const Json& json) {
  return {NumberAt(json, "seconds"), static_cast<quint64>(NumberAt(json, "steps")),
          static_cast<int>(NumberAt(json, "megabytes"))};
}

Json JsonOf(const PupilRun& run) {
  Json json = {{"file", ValueOf(NameOf(PlaceOf(run.Who)))},
               {"name", OrNull(run.Who.Name)},
               {"session", OrNull(NameOf(run.Who.Session.filename()))}};
  json.update(JsonOf(run.Outcome));
  json["notes"] = ValueOf(NotesOfFindings(run.Outcome.Findings) + run.Outcome.Notes);
  json["seconds"] = std::round(run.Seconds * 1000) / 1000;
  json["printed"] = ValueOf(run.Told.Lines);
  json["printedCut"] = run.Told.LinesAreCut;
  json["boxes"] = JsonOf(run.Told.Boxes);
  json["boxesCut"] = run.Told.BoxesAreCut;
  json["picture"] = !run.Picture.empty();
  return json;
}

PupilRun RunIn(const Json& json) {
  PupilRun run;
  const std::filesystem::path place = TextAt(json, "file").toStdU16String();
  run.Who = {place, TextAt(json, "session").toStdU16String(), TextAt(json, "name"), place};
  run.Outcome = OutcomeIn(json);
  for (const QString& note : NotesOfFindings(run.Outcome.Findings)) run.Outcome.Notes.removeOne(note);
  run.Seconds = NumberAt(json, "seconds");
  run.Told.Lines = TextsAt(json, "printed");
  run.Told.LinesAreCut = FlagAt(json, "printedCut");
  run.Told.Boxes = BoxesAt(json);
  run.Told.BoxesAreCut = FlagAt(json, "boxesCut");
  return run;
}

}  // namespace zerimo::classroom
