#include "classroom/task.h"

#include <QRegularExpression>
#include <algorithm>
#include <array>

#include "batch/errors.h"
#include "classroom/readable.h"
#include "files/disk_files.h"
#include "files/program_files.h"

namespace zerimo::classroom {

namespace {

namespace fs = std::filesystem;

/// What the section about the goals says; its heading is English or German.
QString GoalSection(const QString& text) {
  static const QRegularExpression pattern(R"(^##\s+(?:Goals|Ziele)\s*$(.*?)(?=^#|\z))",
                                          QRegularExpression::MultilineOption |
                                              QRegularExpression::DotMatchesEverythingOption |
                                              QRegularExpression::CaseInsensitiveOption);
  return pattern.match(text).captured(1);
}

/// One of the items after the colon of a goal.
bool Take(Goal& goal, const QString& word) {
  static const QRegularExpression points(R"(^(\d+(?:\.\d+)?) points?$)");
  static const QRegularExpression pixels(R"(^pixels(?: (\d+(?:\.\d+)?) ?%)?$)");
  static const QRegularExpression tolerance(R"(^tolerance (\d+(?:\.\d+)?)$)");
  if (const auto match = points.match(word); match.hasMatch()) {
    goal.Points = match.captured(1).toDouble();
  } else if (const auto pixelMatch = pixels.match(word); pixelMatch.hasMatch()) {
    goal.Way = GoalWay::Pixels;
    if (!pixelMatch.captured(1).isEmpty()) goal.Enough = pixelMatch.captured(1).toDouble();
    return goal.Enough > 0 && goal.Enough <= 100;
  } else if (const auto stepMatch = tolerance.match(word); stepMatch.hasMatch()) {
    goal.Shapes.Tolerance = stepMatch.captured(1).toDouble() * UnitsPerStep;
  } else if (word == "shapes" || word == "texts") {
    goal.Way = word == "shapes" ? GoalWay::Shapes : GoalWay::Texts;
  } else {
    const std::array<std::pair<const char*, bool*>, 4> flags = {{{"order", &goal.Shapes.Order},
                                                                 {"direction", &goal.Shapes.Direction},
                                                                 {"splitting", &goal.Shapes.Splitting},
                                                                 {"colour", &goal.Shapes.Colour}}};
    const auto* const flag =
        std::ranges::find_if(flags, [&word](const auto& each) { return word == QLatin1String(each.first); });
    if (flag == flags.end()) return false;
    *flag->second = true;
  }
  return true;
}

Goal GoalOf(const QString& item) {
  static const QRegularExpression typed("`([^`]*)`");
  Goal goal;
  for (auto walk = typed.globalMatch(item); walk.hasNext();) goal.Typed.append(walk.next().captured(1).simplified());
  QString text = item;
  text.remove(typed);
  // What stood between the lines.
  static const QRegularExpression leftOver(R"(^(?:and\b|[\s,])+|(?:\band|[\s,:])+$)");
  const qsizetype colon = text.lastIndexOf(u':');
  goal.Words = text.left(colon).remove(leftOver).simplified();
  for (const QString& word : text.mid(colon < 0 ? text.size() : colon + 1).split(u',', Qt::SkipEmptyParts)) {
    if (!Take(goal, word.simplified().toLower()))
      throw batch::UsageError("TASK.md: \"" + word.trimmed().toStdString() + "\" in \"" + item.toStdString() +
                              "\" is not understood");
  }
  return goal;
}

fs::path ModelIn(const fs::path& folder) {
  std::error_code error;
  for (const char* name : {"GOAL.ZRM", "goal.zrm", "GOAL.png", "goal.png", "GOAL.PNG", "GOAL.bmp", "GOAL.jpg"}) {
    if (fs::is_regular_file(folder / name, error)) return fs::canonical(folder / name, error);
  }
  return {};
}

QString TextOf(const fs::path& file) { return QString::fromStdString(BytesOf(file).value_or(std::string())); }

}  // namespace

QString Goal::Title() const {
  const QString lines = Typed.join(QStringLiteral(", "));
  if (Words.isEmpty() || lines.isEmpty()) return Words + lines;
  return Words + QStringLiteral(" (") + lines + u')';
}

bool Task::HasModelProgram() const { return ProgramFiles::IsProgramName(Model.string()); }

std::vector<Goal> GoalsIn(const QString& taskText) {
  static const QRegularExpression item(R"(^\s*[-*]\s+(.*\S)\s*$)", QRegularExpression::MultilineOption);
  std::vector<Goal> goals;
  for (auto walk = item.globalMatch(GoalSection(taskText)); walk.hasNext();)
    goals.push_back(GoalOf(walk.next().captured(1)));
  return goals;
}

Task ReadTask(const fs::path& place) {
  std::error_code error;
  Task task;
  if (!fs::is_directory(place, error)) {
    task.Model = fs::canonical(place, error);
    task.Goals = {Goal{}};
    if (error) throw batch::UsageError("--task " + place.string() + ": there is no such folder or file");
  } else {
    const QString text = TextOf(place / "TASK.md");
    static const QRegularExpression title(R"(^#\s+(.*\S)\s*$)", QRegularExpression::MultilineOption);
    task.Title = title.match(text).captured(1);
    task.Words = QString(text)
                     .remove(GoalSection(text))
                     .remove(QRegularExpression("^#.*$", QRegularExpression::MultilineOption))
                     .trimmed();
    task.Model = ModelIn(place);
    task.Goals = GoalsIn(text);
    if (task.Model.empty()) throw batch::UsageError("--task " + place.string() + ": GOAL.ZRM or GOAL.png is missing");
    if (task.Goals.empty()) task.Goals = {Goal{.Words = task.Title}};
  }
  // Of a picture, only the pixels are known.
  if (!task.HasModelProgram()) {
    for (Goal& goal : task.Goals) goal.Way = GoalWay::Pixels;
  }
  return task;
}

}  // namespace zerimo::classroom
