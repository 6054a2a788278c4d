#include <algorithm>

#include "claims.h"

namespace zerimo::help {

namespace {

constexpr int chordsOfAnEllipse = 51;

std::string TextIn(const QJsonObject& event, const char* key) { return event[key].toString().toStdString(); }

/// The entry that a typed line itself makes comes right after it.
std::vector<std::string> HistoryOf(const std::vector<QJsonObject>& events) {
  std::vector<std::string> history;
  bool isAfterTyped = false;
  for (const QJsonObject& event : events) {
    const bool isEntry = event["event"].toString() == "list" && event["op"].toString() == "add";
    if (isEntry && !isAfterTyped) history.push_back(TextIn(event, "item"));
    isAfterTyped = event["event"].toString() == "typed";
  }
  return history;
}

std::string FileNameIn(std::string path) {
  const std::size_t divider = path.find_last_of("\\/");
  if (divider != std::string::npos) path.erase(0, divider + 1);
  std::ranges::transform(path, path.begin(), [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
  return path;
}

std::string WordFor(const QJsonObject& operation) {
  static const std::map<std::string, std::string> words = {
      {"Line", "line"}, {"LineTo", "chord"}, {"Box", "box"}, {"PSet", "dot"}, {"FloodFill", "patch"}};
  const std::string name = TextIn(operation, "op");
  if (name == "Circle") return operation.contains("aspect") ? "oval" : "circle";
  const auto word = words.find(name);
  return word == words.end() ? std::string() : word->second;
}

void AddOperation(Deeds& deeds, const QJsonObject& operation) {
  const std::string word = WordFor(operation);
  if (!word.empty()) ++deeds.Drawn[word];
  if (TextIn(operation, "op") == "Print") deeds.Writings.push_back(TextIn(operation, "text"));
  if (TextIn(operation, "op") == "Picture") deeds.Pictures.push_back(FileNameIn(TextIn(operation, "path")));
}

void JoinChords(Deeds& deeds) {
  const auto chords = deeds.Drawn.find("chord");
  if (chords == deeds.Drawn.end() || chords->second % chordsOfAnEllipse != 0) return;
  deeds.Drawn["ellipse"] = chords->second / chordsOfAnEllipse;
  deeds.Drawn.erase("chord");
}

}  // namespace

Deeds DeedsOf(const BatchRun& run) {
  Deeds deeds;
  for (const QJsonObject& box : run.EventsOf("box")) deeds.Boxes.push_back(TextIn(box, "text"));
  for (const QJsonObject& sleep : run.EventsOf("sleep")) deeds.Waits.push_back(sleep["ms"].toInt());
  for (const QJsonObject& operation : run.EventsOf("surface")) AddOperation(deeds, operation);
  deeds.History = HistoryOf(run.Events);
  JoinChords(deeds);
  return deeds;
}

}  // namespace zerimo::help
