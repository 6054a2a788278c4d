#include "classroom/findings/known_words.h"

#include <QHash>
#include <algorithm>
#include <vector>

#include "interpreter/word_table.h"

namespace zerimo::classroom {

namespace {

QString TextOf(std::string_view latin1) {
  return QString::fromLatin1(latin1.data(), static_cast<qsizetype>(latin1.size()));
}

/// The known words with the number of their inputs, or a negative marker for those that take the rest of the line.
QHash<QString, int> TableOfWords() {
  QHash<QString, int> words;
  for (const WordFacts& facts : AllWords())
    words.insert(TextOf(facts.Word), facts.Inputs == inputs::NotCounted ? 0 : facts.Inputs);
  for (const char* word : {"TO", "END", "ELSE", "ENDIF"}) words.insert(QString::fromLatin1(word), 0);
  for (const char* inner : {"AEXP", "REXP"}) words.remove(QString::fromLatin1(inner));
  return words;
}

const QHash<QString, int>& Words() {
  static const QHash<QString, int> words = TableOfWords();
  return words;
}

/// Words that are complete without their input.
bool MayStandAlone(const QString& word) {
  static const QStringList alone = {"HELP", "SHOW", "SOUND", "HIDE", "SLIDESHOW"};
  return alone.contains(word);
}

}  // namespace

bool IsKnownWord(const QString& word) { return Words().contains(word); }

int NeededInputsOf(const QString& word) { return MayStandAlone(word) ? 0 : std::max(0, Words().value(word)); }

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

QString SuggestionFor(const QString& word, const QStringList& others) {
  QStringList all = Words().keys() + others;
  all.sort();
  QString best;
  // A third of the letters may be wrong, and at most two of a short word.
  int least = std::min<int>(2, static_cast<int>(word.size()) / 3) + 1;
  for (const QString& each : all) {
    const int letters = LettersBetween(word, each);
    if (letters >= least) continue;
    least = letters;
    best = each;
  }
  return best;
}

}  // namespace zerimo::classroom
