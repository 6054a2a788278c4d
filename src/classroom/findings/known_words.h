#pragma once

#include <QRegularExpression>
#include <QString>
#include <QStringList>

#include "interpreter/word_table.h"

/// The words of the language as a reader of programs needs them. They are told apart by what they do, never by their
/// spelling: another word, or another name for one, needs no change here.
namespace zerimo::classroom {

/// The row of a word that programs can use, `TO`, `IF` and the like included, or null.
const WordFacts* KnownWord(const QString& word);

inline bool IsKnownWord(const QString& word) { return KnownWord(word) != nullptr; }

inline bool Means(const WordFacts& word, Action does) { return word.Does == does; }
inline bool Means(const WordFacts& word, StatementClass lineClass) { return word.LineClass == lineClass; }
inline bool Means(const WordFacts& word, std::int16_t inputs) { return word.Inputs == inputs; }

/// Whether a word has one of these actions, classes of lines, or markers of inputs. A null pointer has none.
template <auto... Which>
bool IsOneOf(const WordFacts* word) {
  return word != nullptr && (... || Means(*word, Which));
}

/// Whether a word begins a statement wherever it stands: all do but those that a sum may contain.
bool IsCommand(const QString& word);

/// Whether a word is in the language, but does nothing.
bool IsDead(const WordFacts& word);

/// Whether what follows a word names a file, a page, a window or a label.
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
