#include "desktop/extensions/program_colours.h"

#include "desktop/desktop_text.h"
#include "interpreter/word_table.h"

namespace zerimo {

namespace {

// On the blue of the editor, each has a contrast of at least seven to one.
constexpr Colour WordLetters = 0x00FFFF;
constexpr Colour NameLetters = 0xFFFF80;

bool IsName(const QString& word) { return word.startsWith(QLatin1Char(':')) || word.startsWith(QLatin1Char('"')); }

}  // namespace

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

}  // namespace zerimo
