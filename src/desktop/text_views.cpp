#include "desktop/text_views.h"

#include <QPainter>
#include <QSignalBlocker>
#include <QValidator>
#include <algorithm>

#include "desktop/desktop_text.h"

namespace zerimo {

namespace {

/// The distance of the rows in pixels.
constexpr int RowDistance = 24;

/// Lets no character in that the system does not have. Pasted line ends and tabs, which look like blanks, become ones.
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
  PromptColumn(QWidget& parent, const TextBox& textBox) : QWidget(&parent), box(textBox) {
    setAutoFillBackground(true);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setPen(ToQColor(box.ForeColor));
    painter.setFont(font());
    QRect line(0, 0, width(), RowDistance + 1);
    for (const QString& text : WithLineEnds(box.Text).split(QLatin1Char('\n'))) {
      painter.drawText(line, Qt::AlignCenter, text);
      line.translate(0, RowDistance);
    }
  }

 private:
  const TextBox& box;
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
  painter.drawRect(0, 0, width() - 1, RowDistance - 1);
}

LineView::LineView(TextBox& textBox, QLineEdit& shownIn, Events& theEvents)
    : ControlView(textBox, shownIn), box(textBox), edit(shownIn) {
  edit.setValidator(new KnownCharacters(&edit));
  QObject::connect(&edit, &QLineEdit::textChanged, &edit, [this, &theEvents] {
    touched = true;
    theEvents.Deliver([this](Form1& form1) { form1.Change(box); });
  });
}

void LineView::Collect() {
  if (!touched) return;
  touched = false;
  box.Text = ToSystemText(edit.text());
}

void LineView::SyncLook() {
  const bool isRow = box.FontSize > 12;
  const QFont font = ControlFont(box.FontSize, isRow);
  if (edit.font() != font) edit.setFont(font);
  ShowColours(edit, box.BackColor, box.ForeColor);
  const QString text = ToQString(box.Text);
  if (touched || edit.text() == text) return;
  const QSignalBlocker notOfUser(edit);
  edit.setText(text);
}

QRect RowView::Place(const Room& room) const {
  QRect place = InPixels(Source());
  place.setRight(std::min(place.right(), room.Client.right()));
  return place;
}

PromptView::PromptView(TextBox& textBox, QWidget& parent, Events&)
    : ControlView(textBox, *new PromptColumn(parent, textBox)), box(textBox) {}

void PromptView::SyncLook() {
  const QFont font = ControlFont(box.FontSize, true);
  if (Widget().font() != font) Widget().setFont(font);
  ShowColours(Widget(), box.BackColor, box.ForeColor);
}

}  // namespace zerimo
