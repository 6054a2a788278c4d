#include "desktop/editor_view.h"

#include <QInputMethodEvent>
#include <QMimeData>
#include <QTextBlock>
#include <QTextDocument>
#include <algorithm>

#include "desktop/desktop_text.h"

namespace zerimo {

namespace {

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
