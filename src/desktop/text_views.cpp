#include "desktop/text_views.h"

#include <QInputMethodEvent>
#include <QMimeData>
#include <QPainter>
#include <QSignalBlocker>
#include <QTextBlock>
#include <QTextDocument>
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

constexpr QChar ParagraphEnd = QChar(u'\u2029');
/// Stands in for a tab, which the program would lose, joining the words around it.
const char* const Tab = "  ";

/// A place in the text by line and column, both from 0.
struct CaretPlace {
  int Line = 0;
  int Column = 0;
};

CaretPlace PlaceOf(const QTextCursor& cursor) { return {cursor.blockNumber(), cursor.positionInBlock()}; }

int PositionOf(const QTextDocument& document, CaretPlace place) {
  QTextBlock block = document.findBlockByNumber(place.Line);
  if (!block.isValid()) block = document.lastBlock();
  return block.position() + std::min(place.Column, block.length() - 1);
}

qsizetype CommonStart(const QString& one, const QString& other) {
  const auto end = std::mismatch(one.begin(), one.end(), other.begin(), other.end());
  return end.first - one.begin();
}

qsizetype CommonEnd(const QString& one, const QString& other, qsizetype limit) {
  qsizetype length = 0;
  while (length < limit && one[one.size() - 1 - length] == other[other.size() - 1 - length]) ++length;
  return length;
}

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

EditorArea::EditorArea(QWidget& parent) : QPlainTextEdit(&parent) {
  setLineWrapMode(NoWrap);
  setFrameShape(NoFrame);
  setCursorWidth(CaretWidth);
  document()->setDocumentMargin(8);
}

QString EditorArea::Text() const {
  // `toPlainText` would turn code 160 into a blank.
  QString text = document()->toRawText();
  return text.replace(ParagraphEnd, QLatin1Char('\n'));
}

bool EditorArea::HasKeys() const {
  const QWidget* focus = window()->focusWidget();
  return focus == this || isAncestorOf(focus);
}

void EditorArea::ReplaceText(const QString& text) {
  const QString old = Text();
  const qsizetype start = CommonStart(old, text);
  const qsizetype end = CommonEnd(old, text, std::min(old.size(), text.size()) - start);
  const CaretPlace caret = PlaceOf(textCursor());
  QTextCursor edit(document());
  edit.setPosition(static_cast<int>(start));
  edit.setPosition(static_cast<int>(old.size() - end), QTextCursor::KeepAnchor);
  edit.insertText(text.mid(start, text.size() - start - end));
  QTextCursor cursor = textCursor();
  cursor.setPosition(PositionOf(*document(), caret));
  setTextCursor(cursor);
}

void EditorArea::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Tab && event->modifiers() == Qt::NoModifier) return insertPlainText(QLatin1String(Tab));
  const QString known = OnlyKnownCharacters(event->text());
  if (known == event->text()) return QPlainTextEdit::keyPressEvent(event);
  QKeyEvent press(event->type(), event->key(), event->modifiers(), known, event->isAutoRepeat());
  QPlainTextEdit::keyPressEvent(&press);
}

void EditorArea::inputMethodEvent(QInputMethodEvent* event) {
  event->setCommitString(OnlyKnownCharacters(event->commitString()), event->replacementStart(),
                         event->replacementLength());
  QPlainTextEdit::inputMethodEvent(event);
}

void EditorArea::insertFromMimeData(const QMimeData* source) {
  QMimeData known;
  known.setText(OnlyKnownCharacters(source->text()).replace(QLatin1Char('\t'), QLatin1String(Tab)));
  QPlainTextEdit::insertFromMimeData(&known);
}

EditorView::EditorView(TextBox& box, QWidget& parent, Events&)
    : ControlView(box, *new EditorArea(parent)), box_(box), area_(static_cast<EditorArea&>(Widget())) {
  QObject::connect(&area_, &QPlainTextEdit::textChanged, &area_, [this] { touched_ = true; });
}

void EditorView::Collect() {
  if (!touched_) return;
  touched_ = false;
  box_.Text = WithCarriageReturns(area_.Text());
  shown_ = box_.Text;
}

QRect EditorView::Place(const Room& room) const { return PlaceInData().intersected(room.Client); }

void EditorView::SyncLook() {
  ShowLetters(area_, box_.FontSize);
  ShowTextColours(area_, box_.BackColor, box_.ForeColor);
  if (touched_ || box_.Text == shown_) return;
  area_.ReplaceText(WithLineEnds(box_.Text));
  shown_ = box_.Text;
  touched_ = false;
}

}  // namespace zerimo
