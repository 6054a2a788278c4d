#include "classroom/findings/known_words.h"

#include <QHash>
#include <algorithm>
#include <utility>
#include <vector>

namespace zerimo::classroom {

namespace {

QString TextOf(std::string_view latin1) {
  return QString::fromLatin1(latin1.data(), static_cast<qsizetype>(latin1.size()));
}

/// Without the words that only the system itself uses.
std::vector<const WordFacts*> ListOfWords() {
  std::vector<const WordFacts*> words;
  for (const WordFacts& word : AllWords()) {
    if (!IsOneOf<"AEXP", "REXP">(&word)) words.push_back(&word);
  }
  return words;
}

const std::vector<const WordFacts*>& Words() {
  static const std::vector<const WordFacts*> words = ListOfWords();
  return words;
}

/// Whether a word takes no input: a line with anything after it is another line to the system.
bool StandsAlone(const WordFacts& word) { return word.Match == MatchedBy::WholeLine; }

}  // namespace

const WordFacts* KnownWord(const QString& word) {
  static const QHash<QString, const WordFacts*> rows = [] {
    QHash<QString, const WordFacts*> all;
    for (const WordFacts* each : Words()) all.insert(TextOf(each->Word), each);
    return all;
  }();
  return rows.value(word);
}

bool IsCommand(const QString& word) {
  const WordFacts* const known = KnownWord(word);
  return known != nullptr && !IsOneOf<"XCOR", "YCOR">(known);
}

bool IsDead(const WordFacts& word) {
  if (word.Does != Action::None) return word.Place == 0;
  return word.LineClass == StmtCall && !IsOneOf<inputs::Repeat>(&word);
}

bool TakesAName(const WordFacts* word) {
  return IsOneOf<StmtLabel, StmtGoto, "LOAD", "SHOW", "HIDE", "HELP", "SAVEPICTURE", "LOADPICTURE", "SLIDESHOW">(
             word) ||
         (word != nullptr && IsDead(*word));
}

int NeededInputsOf(const WordFacts* word) {
  const bool mayStandAlone = IsOneOf<"HELP", "SHOW", "SOUND", "SLIDESHOW">(word);
  return word == nullptr || mayStandAlone ? 0 : std::max<int>(0, word->Inputs);
}

QString FirstNameOf(const WordFacts& word) {
  const auto found = std::ranges::find_if(Words(), [&word](const WordFacts* each) {
    return each->Does == word.Does && each->LineClass == word.LineClass && each->Inputs == word.Inputs;
  });
  return TextOf((*found)->Word);
}

QString NameOf(bool (*isSuch)(const WordFacts*)) {
  const auto found = std::ranges::find_if(Words(), isSuch);
  return found == Words().end() ? QString() : TextOf((*found)->Word);
}

QRegularExpression ExpressionOf(QString text, bool (*isSuch)(const WordFacts*)) {
  QStringList names;
  QStringList withInputs;
  for (const WordFacts* word : Words()) {
    if (!isSuch(word)) continue;
    names.append(QRegularExpression::escape(TextOf(word->Word)));
    if (!StandsAlone(*word)) withInputs.append(names.last() + QString(" \\S+").repeated(std::max(0, word->Inputs - 1)));
  }
  text.replace(u'@', "(?:" + names.join(u'|') + ')');
  return QRegularExpression(text.replace(u'&', "(?:" + withInputs.join(u'|') + ')'));
}

int LettersBetween(const QString& one, const QString& other) {
  const auto columns = static_cast<std::size_t>(other.size());
  std::vector<int> before(columns + 1), above(columns + 1), row(columns + 1);
  for (std::size_t j = 0; j <= columns; ++j) above[j] = static_cast<int>(j);
  for (qsizetype i = 1; i <= one.size(); ++i) {
    row[0] = static_cast<int>(i);
    for (std::size_t j = 1; j <= columns; ++j) {
      const auto column = static_cast<qsizetype>(j);
      const bool same = one[i - 1] == other[column - 1];
      row[j] = std::min({above[j] + 1, row[j - 1] + 1, above[j - 1] + (same ? 0 : 1)});
      const bool swapped = i > 1 && j > 1 && one[i - 1] == other[column - 2] && one[i - 2] == other[column - 1];
      if (swapped) row[j] = std::min(row[j], before[j - 2] + 1);
    }
    before = above;
    above = row;
  }
  return above[columns];
}

QString WordForOther(const QString& name) {
  struct OtherNames {
    const char* Names;
    bool (*IsMeant)(const WordFacts*);
  };
  static constexpr OtherNames rows[] = {
      {"BACKWARD BACKWARDS RW", IsOneOf<"BK">},
      {"FW GO MOVE WALK VW", IsOneOf<"FD">},
      {"TURN TURNRIGHT RE RECHTS", IsOneOf<"RT">},
      {"TURNLEFT LI LINKS", IsOneOf<"LT">},
      {"COLOR COLOUR SETCOLOR SETCOLOUR PENCOLOR PENCOLOUR SETPENCOLOR SETPENCOLOUR", IsOneOf<"SETPC">},
      {"BACKGROUND SETBACKGROUND BGCOLOR", IsOneOf<"SETBG">},
      {"WIDTH PENSIZE PENWIDTH SETWIDTH SETPENSIZE", IsOneOf<"LW">},
      {"PEN_UP STIFTHOCH", IsOneOf<"PU">},
      {"PEN_DOWN STIFTAB", IsOneOf<"PD">},
      {"SETPOS GOTOXY", IsOneOf<"SETXY">},
      {"CLEAR", IsOneOf<"CS">},
      {"SHOWTEXT SAY OUTPUT", IsOneOf<"PRINT">},
      {"LOOP FOR WH WIEDERHOLE", IsOneOf<inputs::Repeat>},
  };
  QString single = name;
  single.replace(u' ', u'_');
  for (const OtherNames& row : rows) {
    if (QString::fromLatin1(row.Names).split(u' ').contains(single)) return NameOf(row.IsMeant);
  }
  return {};
}

QString SuggestionFor(const QString& word, const QStringList& others) {
  QString usual = WordForOther(word);
  if (!usual.isEmpty() && !others.contains(word)) return usual;
  QStringList all = others;
  for (const WordFacts* each : Words()) all.append(TextOf(each->Word));
  return MostLike(word, all);
}

QString MostLike(const QString& word, QStringList others) {
  others.sort();
  QString best;
  // A third of the letters may be wrong, and at most two of a short word.
  int least = std::min<int>(2, static_cast<int>(word.size()) / 3) + 1;
  for (const QString& each : std::as_const(others)) {
    const int letters = LettersBetween(word, each);
    if (letters >= least) continue;
    least = letters;
    best = each;
  }
  return best;
}

}  // namespace zerimo::classroom
