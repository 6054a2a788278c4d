#include "desktop/extensions/speed.h"

#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QThread>
#include <algorithm>

#include "desktop/desktop_text.h"

namespace zerimo {

namespace {

constexpr int LongRun = 2000;
/// Between two checks of the clock, in milliseconds.
constexpr int Beat = 250;
constexpr int EdgeDistance = 8;
constexpr double ChipPoints = 10.5;
constexpr Colour ChipGround = 0x303030;
constexpr Colour ChipLetters = 0xFFFFFF;

}  // namespace

RunChip::RunChip(Session& session) : session_(session), label_(*new QLabel(&session.window)) {
  label_.setObjectName(QStringLiteral("RunChip"));
  label_.setAttribute(Qt::WA_TransparentForMouseEvents);
  label_.setTextFormat(Qt::PlainText);
  label_.setAutoFillBackground(true);
  label_.setMargin(6);
  ShowColours(label_, ChipGround, ChipLetters);
  label_.hide();
  QObject::connect(&clock_, &QTimer::timeout, &clock_, [this] {
    clock_.start(Beat);
    Show();
  });
}

void RunChip::Say(const QString& words) {
  said_ = words;
  Show();
}

void RunChip::RunBegins() {
  running_.start();
  clock_.start(LongRun);
}

void RunChip::RunEnds() {
  running_.invalidate();
  clock_.stop();
  Show();
}

void RunChip::Show() {
  QStringList lines;
  if (!said_.isEmpty()) lines.append(said_);
  // While a box is open, the program waits for its answer.
  const bool isLong = running_.isValid() && running_.elapsed() >= LongRun && !session_.stage.HasBox();
  if (isLong) lines.append(QStringLiteral("Running for %1 s. Ctrl+Break stops.").arg(running_.elapsed() / 1000));
  ShowLetters(label_, ChipPoints, true);
  label_.setText(lines.join(u'\n'));
  label_.adjustSize();
  QRect place(QPoint(session_.window.width() - label_.width() - EdgeDistance, EdgeDistance), label_.size());
  const QWidget& panel = session_.window.WidgetOf(session_.form1.controls.Frame1);
  // The panel is closed in its upper right corner.
  if (panel.isVisible() && panel.geometry().intersects(place)) place.moveLeft(EdgeDistance);
  label_.move(place.topLeft());
  label_.raise();
  if (label_.isHidden() != lines.isEmpty()) label_.setHidden(lines.isEmpty());
}

const Speed::Pace Speed::Paces[4] = {
    {Qt::Key_1, 0, ""},
    {Qt::Key_2, 60, "Fast, line by line. Ctrl+1: full speed"},
    {Qt::Key_3, 500, "Slow, line by line. Ctrl+1: full speed"},
    {Qt::Key_4, -1, "The space bar runs one line. Ctrl+1: full speed"},
};

Speed::Speed(Session& session, RunChip& chip, Zoom& zoom)
    : session_(session),
      chip_(chip),
      zoom_(zoom),
      list_(static_cast<QListView&>(session.window.WidgetOf(session.form1.controls.List1))),
      runningLine_(session.form1.interpreter) {}

bool Speed::PressKey(const QKeyEvent& press) {
  if (waiting_ && pace_->Pause < 0 && press.key() == Qt::Key_Space && press.modifiers() == Qt::NoModifier) {
    waiting_ = false;
    return true;
  }
  // Digits of the number pad count too, and those that a keyboard has on Shift.
  if ((press.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier)) != Qt::ControlModifier) return false;
  const auto* chosen =
      std::find_if(std::begin(Paces), std::end(Paces), [&](const Pace& pace) { return pace.Key == press.key(); });
  if (chosen == std::end(Paces)) return false;
  Choose(*chosen);
  return true;
}

void Speed::Choose(const Pace& pace) {
  pace_ = &pace;
  waiting_ = false;
  chip_.Say(QLatin1String(pace.Words));
  // At full speed, a step costs nothing extra.
  session_.watch.OnStep = pace.Pause == 0 ? std::function<void()>() : [this] { Step(); };
  if (pace.Pause == 0) ForgetLine();
}

void Speed::RunEnds() {
  waiting_ = false;
  if (pace_->Pause == 0) return;
  ForgetLine();
  chip_.Say(QLatin1String(pace_->Words));
}

void Speed::Step() {
  runningLine_.Step();
  if (!runningLine_.IsWritten()) return;
  MarkLine();
  const QString next = pace_->Pause < 0 ? QStringLiteral("\nThe space bar runs it.") : QString();
  chip_.Say(ToQString(runningLine_.Words()) + next);
  waiting_ = true;
  zoom_.FollowTurtle();
  session_.stage.ShowState();
  QElapsedTimer shown;
  shown.start();
  while (waiting_) {
    QThread::msleep(5);
    session_.stage.AnswerDesktop();
    if (pace_->Pause >= 0 && shown.elapsed() >= pace_->Pause) waiting_ = false;
  }
}

void Speed::MarkLine() {
  const QAbstractItemModel& entries = *list_.model();
  // A typed line runs after the program, where the list ends.
  const bool isListed = runningLine_.Number() > 0 && runningLine_.Number() <= entries.rowCount();
  const QModelIndex index = isListed ? entries.index(runningLine_.Number() - 1, 0) : QModelIndex();
  list_.setCurrentIndex(index);
  if (isListed) list_.scrollTo(index);
}

void Speed::ForgetLine() {
  if (runningLine_.Number() == 0) return;
  runningLine_.Clear();
  MarkLine();
}

}  // namespace zerimo
