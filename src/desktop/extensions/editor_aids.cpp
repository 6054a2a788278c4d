#include "desktop/extensions/editor_aids.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QTextBlock>
#include <algorithm>

#include "base/failure.h"
#include "base/text.h"
#include "desktop/desktop_text.h"
#include "interpreter/word_table.h"

namespace zerimo {

namespace {

constexpr int EdgeDistance = 8;
constexpr Colour StripGround = 0xA00000;
constexpr Colour Digits = 0xFFFFFF;
/// Narrower strips would change their width while a short program is typed.
constexpr int FewestDigits = 2;

// On the blue of the editor, each has a contrast of at least seven to one.
constexpr Colour WordLetters = 0x00FFFF;
constexpr Colour NameLetters = 0xFFFF80;

bool IsName(const QString& word) { return word.startsWith(QLatin1Char(':')) || word.startsWith(QLatin1Char('"')); }

}  // namespace

LineNumbers::LineNumbers(EditorArea& editor) : QWidget(&editor), editor_(editor) {
  setObjectName(QStringLiteral("LineNumbers"));
  setAttribute(Qt::WA_TransparentForMouseEvents);
  editor.installEventFilter(this);
  connect(&editor, &QPlainTextEdit::blockCountChanged, this, [this] { Fit(); });
  connect(&editor, &QPlainTextEdit::updateRequest, this, &LineNumbers::Follow);
  Fit();
}

void LineNumbers::Fit() {
  const auto digits = std::max(FewestDigits, static_cast<int>(QString::number(editor_.blockCount()).size()));
  const int width = editor_.fontMetrics().horizontalAdvance(QLatin1Char('0')) * digits + 2 * EdgeDistance;
  QMargins margins = editor_.viewportMargins();
  margins.setLeft(width);
  editor_.setViewportMargins(margins);
  setGeometry(0, 0, width, editor_.height());
}

void LineNumbers::Follow(const QRect& changed, int scrolled) {
  if (scrolled != 0) return scroll(0, scrolled);
  update(0, changed.y(), width(), changed.height());
}

bool LineNumbers::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize || event->type() == QEvent::FontChange) Fit();
  return QWidget::eventFilter(watched, event);
}

void LineNumbers::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.fillRect(event->rect(), ToQColor(StripGround));
  painter.setFont(editor_.font());
  painter.setPen(ToQColor(Digits));
  QTextBlock line = editor_.firstVisibleBlock();
  QRectF place = editor_.blockBoundingGeometry(line).translated(editor_.contentOffset());
  while (line.isValid() && place.top() <= event->rect().bottom()) {
    // The last line is as high as the page's margin makes it.
    const QRectF number(0, place.top(), width() - EdgeDistance, painter.fontMetrics().height());
    painter.drawText(number, Qt::AlignRight | Qt::AlignTop, QString::number(line.blockNumber() + 1));
    line = line.next();
    place = editor_.blockBoundingGeometry(line).translated(editor_.contentOffset());
  }
}

ProgramColours::ProgramColours(QTextDocument& document)
    : QSyntaxHighlighter(&document), words_(QStringLiteral("[:\"]?[A-Za-z][A-Za-z0-9]*")) {
  word_.setForeground(ToQColor(WordLetters));
  name_.setForeground(ToQColor(NameLetters));
  head_.setFontWeight(QFont::Bold);
}

void ProgramColours::highlightBlock(const QString& text) {
  bool followsTo = false;
  for (QRegularExpressionMatchIterator matches = words_.globalMatch(text); matches.hasNext();) {
    const QRegularExpressionMatch match = matches.next();
    const QString word = match.captured().toUpper();
    const WordFacts* const known = FindWord(word.toStdString());
    const auto format = [&](const QTextCharFormat& look) {
      setFormat(static_cast<int>(match.capturedStart()), static_cast<int>(match.capturedLength()), look);
    };
    if (IsName(word)) {
      format(name_);
    } else if (followsTo) {
      format(head_);
    } else if (known != nullptr) {
      format(word_);
    }
    followsTo = known != nullptr && known->LineClass == StmtTo;
  }
}

EditorAids::EditorAids(Session& session)
    : session_(session),
      editor_(static_cast<EditorArea&>(session.window.WidgetOf(session.form1.controls.Text2))),
      marks_(*new EditorMarks(editor_)),
      bar_(*new FindBar(editor_)) {
  new LineNumbers(editor_);
  auto* colours = new ProgramColours(*editor_.document());
  // Their first look at the text counts as a change of it: it must not come when a text is already there.
  QCoreApplication::sendPostedEvents(colours, QEvent::MetaCall);
  QPalette palette = editor_.palette();
  palette.setColor(QPalette::PlaceholderText, QColor(0xEE, 0xEE, 0xFF));
  editor_.setPalette(palette);
  editor_.setPlaceholderText(
      QStringLiteral("Write a program here.\n\nF2: done, Zerimo learns it\nF10: save\nF9: load\nF3: leave; Zerimo "
                     "learns nothing, the text stays here\nEsc: nothing\nCtrl+F: find and replace"));
}

bool EditorAids::PressKey(const QKeyEvent& press) {
  const bool isFind = press.key() == Qt::Key_F && press.modifiers() == Qt::ControlModifier;
  if (!isFind || session_.stage.IsRunning() || !editor_.isVisible()) return false;
  bar_.Open();
  return true;
}

void EditorAids::BoxOpens(QDialog&) {
  const Store& store = session_.form1.interpreter.store;
  const int line = session_.form1.interpreter.runner.LineNow();
  if (line < 1) return;
  // While it runs, a line may have a blank at its end.
  const auto textOf = [&](int number) { return std::string(Trimmed(store.Line(number))); };
  SkipOnFailure([&] { marks_.MarkStatement(textOf(store.HeaderOf(line)), textOf(line)); });
}

}  // namespace zerimo
