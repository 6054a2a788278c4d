#pragma once

#include <QString>
#include <QStringList>

namespace zerimo::classroom {

/// Whether a text is a word of the language, including `TO`, `IF` and the like.
bool IsKnownWord(const QString& word);

/// How many inputs a word needs: 0 if it can do without, is not a word, or takes the rest of its line.
int NeededInputsOf(const QString& word);

/// The known word, or the one among `others`, whose spelling is most like this one, or empty.
QString SuggestionFor(const QString& word, const QStringList& others);

/// How many letters have to be changed, inserted, removed or swapped to turn one text into the other.
int LettersBetween(const QString& one, const QString& other);

}  // namespace zerimo::classroom
