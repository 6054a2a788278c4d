#include "desktop/extensions/run_chip.h"

#include <QLabel>

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

}  // namespace zerimo
