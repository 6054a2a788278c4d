#include "desktop/extensions/editor_marks.h"

#include <QTextBlock>

#include "base/text.h"
#include "desktop/desktop_text.h"
#include "interpreter/line_entry.h"

namespace zerimo {

namespace {

constexpr QColor PartnerGround(0, 90, 0);
constexpr QColor LonelyGround(160, 0, 0);
constexpr QColor LineGround(120, 0, 90);

constexpr qsizetype NoPartner = -1;

bool IsBracket(QChar character) { return QStringLiteral("[]()").contains(character); }

/// The place of the partner of the bracket at a place: brackets close on the line on which they open.
qsizetype PartnerOf(const QString& line, qsizetype at) {
  const QChar own = line[at];
  const QString pair = QStringLiteral("[]").contains(own) ? QStringLiteral("[]") : QStringLiteral("()");
  const QChar other = own == pair[0] ? pair[1] : pair[0];
  const qsizetype step = own == pair[0] ? 1 : -1;
  int depth = 0;
  for (qsizetype place = at; place >= 0 && place < line.size(); place += step) {
    if (line[place] == own) ++depth;
    if (line[place] == other && --depth == 0) return place;
  }
  return NoPartner;
}

/// A line as the store would have it.
std::string Tidied(const QTextBlock& line) {
  std::string text = UpperCase(ToSystemText(line.text()));
  text = SpaceFilter(text);
  return std::string(Trimmed(text));
}

QTextEdit::ExtraSelection LookOf(QTextCursor place, const QColor& ground) {
  QTextEdit::ExtraSelection look;
  look.cursor = std::move(place);
  look.format.setBackground(ground);
  look.format.setForeground(Qt::white);
  return look;
}

}  // namespace

EditorMarks::EditorMarks(EditorArea& editor) : QObject(&editor), editor_(editor) {
  connect(&editor, &QPlainTextEdit::cursorPositionChanged, this, &EditorMarks::Show);
  connect(&editor, &QPlainTextEdit::textChanged, this, [this] {
    if (!marked_.isNull() && editor_.Text() != markedText_) marked_ = {};
    Show();
  });
}

void EditorMarks::MarkStatement(const std::string& head, const std::string& statement) {
  marked_ = {};
  bool isInProcedure = false;
  for (QTextBlock line = editor_.document()->begin(); line.isValid(); line = line.next()) {
    const std::string text = Tidied(line);
    if (WhatIsThis(text) == StmtTo) isInProcedure = text == head;
    if (!isInProcedure || statement.empty() || text.find(statement) == std::string::npos) continue;
    marked_ = QTextCursor(line);
    markedText_ = editor_.Text();
    break;
  }
  Show();
}

QList<QTextEdit::ExtraSelection> EditorMarks::Brackets() const {
  const QTextCursor caret = editor_.textCursor();
  const QString line = caret.block().text();
  // The bracket that was just typed comes first.
  qsizetype at = caret.positionInBlock() - 1;
  if (at < 0 || !IsBracket(line[at])) ++at;
  if (at >= line.size() || !IsBracket(line[at])) return {};
  const auto mark = [&](qsizetype place, const QColor& ground) {
    QTextCursor bracket(caret.block());
    bracket.movePosition(QTextCursor::Right, QTextCursor::MoveAnchor, static_cast<int>(place));
    bracket.movePosition(QTextCursor::Right, QTextCursor::KeepAnchor);
    return LookOf(bracket, ground);
  };
  const qsizetype partner = PartnerOf(line, at);
  if (partner == NoPartner) return {mark(at, LonelyGround)};
  return {mark(at, PartnerGround), mark(partner, PartnerGround)};
}

void EditorMarks::Show() {
  QList<QTextEdit::ExtraSelection> marks;
  if (!marked_.isNull()) {
    marks.append(LookOf(marked_, LineGround));
    marks.last().format.setProperty(QTextFormat::FullWidthSelection, true);
  }
  editor_.setExtraSelections(marks + Brackets());
}

}  // namespace zerimo
