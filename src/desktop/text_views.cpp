#include "desktop/text_views.h"

#include <QPainter>
#include <QSignalBlocker>
#include <QValidator>
#include <algorithm>
#include <cmath>

#include "desktop/desktop_text.h"

namespace zerimo {

namespace {

/// The distance between rows in pixels.
int RowDistance(const QWidget& widget) { return static_cast<int>(std::lround(24 * ZoomOf(widget))); }

/// Admits only characters that the system has. Pasted line ends and tabs become blanks.
class KnownCharacters final : public QValidator {
 public:
  using QValidator::QValidator;
  State validate(QString& text, int& position) const override {
    QString known = OnlyKnownCharacters(text);
    std::replace_if(
        known.begin(), known.end(), [](QChar character) { return character < QLatin1Char(' '); }, QLatin1Char(' '));
    position -= static_cast<int>(text.size() - known.size());
    text = known;
    return Acceptable;
  }
};

class PromptColumn final : public QWidget {
 public:
  PromptColumn(QWidget& parent, const TextBox& box) : QWidget(&parent), box_(box) { setAutoFillBackground(true); }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Text));
    painter.setFont(font());
    const int distance = RowDistance(*this);
    QRect line(0, 0, width(), distance + 1);
    for (const QString& text : WithLineEnds(box_.Text).split(QLatin1Char('\n'))) {
      painter.drawText(line, Qt::AlignCenter, text);
      line.translate(0, distance);
    }
  }

 private:
  const TextBox& box_;
};

}  // namespace

RowEdit::RowEdit(QWidget& parent) : QLineEdit(&parent) {
  setFrame(false);
  setTextMargins(2, 0, 2, 0);
}

void RowEdit::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  if (!hasFocus()) return;
  QPainter painter(this);
  QColor frame = ReadableOn(palette().color(QPalette::Base));
  frame.setAlpha(200);
  painter.setPen(frame);
  painter.drawRect(0, 0, width() - 1, RowDistance(*this) - 1);
}

LineView::LineView(TextBox& box, QLineEdit& shownIn, Events& events)
    : ControlView(box, shownIn), box_(box), edit_(shownIn) {
  edit_.setValidator(new KnownCharacters(&edit_));
  QObject::connect(&edit_, &QLineEdit::textChanged, &edit_, [this, &events] {
    touched_ = true;
    events.Deliver([this](Form1& form1) { form1.Change(box_); });
  });
}

void LineView::Collect() {
  if (!touched_) return;
  touched_ = false;
  box_.Text = ToSystemText(edit_.text());
}

void LineView::SyncLook() {
  const bool isRow = box_.FontSize > 12;
  ShowLetters(edit_, box_.FontSize, isRow);
  ShowTextColours(edit_, box_.BackColor, box_.ForeColor);
  const QString text = ToQString(box_.Text);
  if (touched_ || edit_.text() == text) return;
  const QSignalBlocker notOfUser(edit_);
  edit_.setText(text);
}

QRect RowView::Place(const Room& room) const {
  QRect place = PlaceInData();
  place.setRight(std::min(place.right(), room.Client.right()));
  return place;
}

PromptView::PromptView(TextBox& box, QWidget& parent, Events&)
    : ControlView(box, *new PromptColumn(parent, box)), box_(box) {}

void PromptView::SyncLook() {
  ShowLetters(Widget(), box_.FontSize, true);
  ShowTextColours(Widget(), box_.BackColor, box_.ForeColor);
}

}  // namespace zerimo
