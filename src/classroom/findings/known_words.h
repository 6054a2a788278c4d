#pragma once

#include <QRegularExpression>
#include <QString>
#include <QStringList>

#include "interpreter/word_table.h"

/// The words of the language as a reader of programs needs them. They are told apart by what they do, never by their
/// spelling: another word, or another name for one, needs no change here. An action is written as its first name.
namespace zerimo::classroom {

/// The row of a word that programs can use, `TO`, `IF` and the like included, or null.
const WordFacts* KnownWord(const QString& word);

inline bool IsKnownWord(const QString& word) { return KnownWord(word) != nullptr; }

/// What tells a word from others: its action, the class of its lines, or its marker of inputs.
struct Meaning {
  consteval Meaning(const char* action) : Does(action) {}
  constexpr Meaning(StatementClass lineClass) : LineClass(lineClass) {}
  constexpr Meaning(std::int16_t inputs) : Inputs(inputs) {}

  constexpr bool IsOf(const WordFacts& word) const {
    if (Does != Action::None) return word.Does == Does;
    return LineClass != StmtCall ? word.LineClass == LineClass : word.Inputs == Inputs;
  }

  Action Does = Action::None;
  StatementClass LineClass = StmtCall;
  std::int16_t Inputs = 0;
};

/// Whether a word has one of these meanings. A null pointer has none.
template <Meaning... Which>
bool IsOneOf(const WordFacts* word) {
  return word != nullptr && (... || Which.IsOf(*word));
}

/// Whether a word begins a statement wherever it stands: all do but those that a sum may contain.
bool IsCommand(const QString& word);

/// Whether a word is in the language, but does nothing.
bool IsDead(const WordFacts& word);

/// Whether a word takes the name of a file, a page, a window or a label.
bool TakesAName(const WordFacts* word);

/// How many inputs a word needs: 0 if it can do without, is not a word, or takes the rest of its line.
int NeededInputsOf(const WordFacts* word);

/// The first of the words that do the same: the short name of an action.
QString FirstNameOf(const WordFacts& word);

/// The name of the first such word.
QString NameOf(bool (*isSuch)(const WordFacts*));

/// An expression in which @ stands for any of the known words that are such, and & for any of them with all its inputs
/// but the last.
QRegularExpression ExpressionOf(QString text, bool (*isSuch)(const WordFacts*));

/// The word for what has another name elsewhere, or empty: SETPC for SETCOLOR, PENUP for PEN UP.
QString WordForOther(const QString& name);

/// The known word, or the one among `others`, whose spelling is most like this one, or empty.
QString SuggestionFor(const QString& word, const QStringList& others);

/// The one among some texts whose spelling is most like this one, or empty if none is.
QString MostLike(const QString& word, QStringList others);

/// How many letters have to be changed, inserted, removed or swapped to turn one text into the other.
int LettersBetween(const QString& one, const QString& other);

}  // namespace zerimo::classroom
