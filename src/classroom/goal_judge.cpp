#include "classroom/goal_judge.h"

#include <QImage>
#include <QPainter>
#include <algorithm>

#include "classroom/drawings/picture_comparison.h"
#include "classroom/readable.h"
#include "classroom/record.h"
#include "files/disk_files.h"

namespace zerimo::classroom {

namespace {

namespace fs = std::filesystem;

/// Pixels: a line that is off by no more than this is the same line.
constexpr int NearPixels = 2;

constexpr double UnitsPerDot = UnitsPerPixel;

fs::path ModelPictureOf(const Order& order, std::size_t index) {
  return order.ModelPicture.empty() ? order.ModelFolder / run_file::GoalPicture(index) : order.ModelPicture;
}

void Draw(QPainter& painter, const Drawing& drawing, const QColor& colour, int width) {
  painter.setPen(QPen(colour, width));
  for (const Line& line : drawing.Lines)
    painter.drawLine(QPointF(line.From.X / UnitsPerDot, line.From.Y / UnitsPerDot),
                     QPointF(line.To.X / UnitsPerDot, line.To.Y / UnitsPerDot));
  for (const Figure& figure : drawing.Figures)
    painter.drawEllipse(QPointF(figure.Centre.X / UnitsPerDot, figure.Centre.Y / UnitsPerDot),
                        std::max(2.0, figure.Across / UnitsPerDot), std::max(2.0, figure.Down / UnitsPerDot));
}

/// The drawing in grey, what it lacks in blue, and what it has in excess in orange.
void WriteDifference(const fs::path& file, QSize size, const Drawing& drawing, const ShapeComparison& comparison) {
  QImage image(size, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  Draw(painter, drawing, QColor(170, 170, 170), 2);
  Draw(painter, comparison.Missing, QColor(0, 90, 200), 4);
  Draw(painter, comparison.Extra, QColor(225, 100, 0), 4);
  painter.end();
  image.save(NameOf(file));
}

QStringList TextsIn(const fs::path& file) {
  const std::optional<std::string> bytes = BytesOf(file);
  const std::optional<Json> json = bytes ? ParsedObject(*bytes) : std::nullopt;
  return json ? TextsAt(*json, "printed") : QStringList();
}

/// What was printed, and what the boxes said.
QStringList TextsOf(const SessionRun& run) {
  const Said told = run.Told();
  QStringList texts;
  // The prompt in front is not the program's.
  for (const QString& line : told.Printed) texts.append(line.startsWith(u'?') ? line.sliced(1) : line);
  for (const ShownBox& box : told.Boxes) texts.append(box.Text);
  return texts;
}

void JudgeShapes(GoalOutcome& outcome, const Order& order, std::size_t index, const SessionRun& run) {
  const std::optional<Drawing> model = ReadDrawing(order.ModelFolder / run_file::Drawn(index));
  if (!model) return;
  const ShapeComparison comparison = Compare(*model, run.Recorder().Drawn(), order.Goals[index].Shapes);
  outcome.Met = comparison.Same;
  // Within the tolerance, nothing is missing.
  outcome.Percent = comparison.Same ? 100 : comparison.Percent;
  outcome.Placed = comparison.Placed;
  outcome.Broken = comparison.Broken;
  const QSize size = QImage(NameOf(run_file::GoalPicture(index))).size();
  WriteDifference(run_file::Difference(index), size, run.Recorder().Drawn(), comparison);
}

/// A picture is only turned by quarters, and a figure that is a little wrong looks like the goal: strokes, if the goal
/// has any, decide.
std::optional<Placement> PlacementOf(const Order& order, std::size_t index, const SessionRun& run, const QImage& wanted,
                                     const QImage& drawn) {
  const Goal& goal = order.Goals[index];
  const std::optional<Drawing> model =
      order.ModelPicture.empty() ? ReadDrawing(order.ModelFolder / run_file::Drawn(index)) : std::nullopt;
  if (!model || model->IsEmpty()) return PlacementOfPicture(wanted, drawn, NearPixels, goal.Enough);
  return Compare(*model, run.Recorder().Drawn(), {.Tolerance = goal.Shapes.Tolerance}).Placed;
}

void JudgePixels(GoalOutcome& outcome, const Order& order, std::size_t index, const SessionRun& run) {
  const QImage wanted(NameOf(ModelPictureOf(order, index)));
  const QImage drawn(NameOf(run_file::GoalPicture(index)));
  const PixelComparison comparison = ComparePixels(wanted, drawn, NearPixels, order.Goals[index].Shapes.Colour);
  outcome.Percent = comparison.Percent;
  outcome.Met = comparison.Percent >= order.Goals[index].Enough;
  if (!outcome.Met) outcome.Placed = PlacementOf(order, index, run, wanted, drawn);
  comparison.Difference.save(NameOf(run_file::Difference(index)));
}

void JudgeTexts(GoalOutcome& outcome, const Order& order, std::size_t index, const SessionRun& run) {
  outcome.Wanted = TextsIn(order.ModelFolder / run_file::Printed(index));
  outcome.Printed = TextsOf(run);
  outcome.Percent = PercentOfTexts(outcome.Wanted, outcome.Printed);
  outcome.Met = outcome.Percent == 100;
  for (QStringList* const texts : {&outcome.Wanted, &outcome.Printed}) {
    outcome.TextsAreCut = outcome.TextsAreCut || texts->size() > MostTexts;
    *texts = texts->mid(0, MostTexts);
  }
}

/// Whether there is anything to compare. The picture at the start shows something too, but nobody has drawn it.
bool HasSomething(GoalWay way, std::size_t index, const SessionRun& run) {
  if (way == GoalWay::Shapes) return !run.Recorder().Drawn().IsEmpty();
  if (way == GoalWay::Texts) return !TextsOf(run).isEmpty();
  return run.Recorder().HasDrawn() && !IsBlank(QImage(NameOf(run_file::GoalPicture(index))));
}

}  // namespace

QString PlainText(const QString& text) { return text.simplified().toUpper(); }

double PercentOfTexts(const QStringList& wanted, const QStringList& printed) {
  const qsizetype all = std::max(wanted.size(), printed.size());
  if (all == 0) return 100;
  qsizetype alike = 0;
  for (qsizetype i = 0; i < std::min(wanted.size(), printed.size()); ++i) {
    if (PlainText(wanted[i]) == PlainText(printed[i])) ++alike;
  }
  return 100.0 * static_cast<double>(alike) / static_cast<double>(all);
}

GoalOutcome Judge(const Order& order, std::size_t index, const SessionRun& run) {
  const Goal& goal = order.Goals[index];
  std::error_code ignored;
  fs::copy_file(ModelPictureOf(order, index), run_file::ModelPicture(index), ignored);
  GoalOutcome outcome = goal.NotMet();
  if (goal.Way == GoalWay::Shapes) JudgeShapes(outcome, order, index, run);
  if (goal.Way == GoalWay::Pixels) JudgePixels(outcome, order, index, run);
  if (goal.Way == GoalWay::Texts) JudgeTexts(outcome, order, index, run);
  return outcome;
}

GoalOutcome TakeModel(const Goal& goal, std::size_t index, const SessionRun& run) {
  WriteDrawing(run_file::Drawn(index), run.Recorder().Drawn());
  WriteBeside(run_file::Printed(index), Compact({{"printed", ValueOf(TextsOf(run))}}));
  GoalOutcome outcome = goal.NotMet();
  outcome.Met = run.Outcome().How == Result::Ended && HasSomething(goal.Way, index, run);
  return outcome;
}

}  // namespace zerimo::classroom
