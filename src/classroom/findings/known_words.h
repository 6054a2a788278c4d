#pragma once

#include <QString>
#include <QStringList>

namespace zerimo::classroom {

/// Whether a text is a word of the language, those of control such as `TO` and `IF` among them.
bool IsKnownWord(const QString& word);

/// The inputs of a word that can't do without them: 0 for one that can, is no word, or takes the rest of its line.
int NeededInputsOf(const QString& word);

/// The word among the known ones and `others` that is spelt most like this one, or empty.
QString SuggestionFor(const QString& word, const QStringList& others);

/// How many letters have to be changed, put in, taken out or swapped to make one text the other.
int LettersBetween(const QString& one, const QString& other);

}  // namespace zerimo::classroom
