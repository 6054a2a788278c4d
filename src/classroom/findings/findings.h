#pragma once

#include <vector>

#include "classroom/findings/listing.h"
#include "classroom/findings/mistakes.h"

namespace zerimo::classroom {

using Findings = std::vector<Finding>;

/// What is suspicious in the text of a program, in the order of its lines, each mistake once a line. If a program is
/// empty or read as one line, only that is reported: the rest would follow from it.
Findings FindingsIn(const QString& program);

/// What is suspicious in the calls of a typed line: inputs that a procedure of the program does not take, or lacks.
/// Each is reported at the head of the procedure.
Findings FindingsInCalls(const QString& program, const QString& typed);

/// The names in sums that change the rest of their sum if they vanish, as a name does that is 0: a sum that then begins
/// with a `*` or `/` is 0 as a whole, and a sign after a `*` that has lost its number takes the next one.
QStringList NamesThatMayNotVanish(const QStringList& sums);

/// The same for all statements of a program, as what is found if such a name is 0 there.
Findings PossibleZeros(const Listing& listing);

/// The greatest count, and the greatest input of a word that wants a whole one: 16 bits hold no more.
inline constexpr double GreatestWhole = 32767;

/// The parts of the search, each with a kind of its own; they add to what is there.
void FindInStatements(const Listing& listing, Findings& findings);
void FindInRepeats(const Listing& listing, Findings& findings);
void FindInWords(const Listing& listing, Findings& findings);
void FindInNumbers(const Listing& listing, Findings& findings);
void FindInNames(const Listing& listing, Findings& findings);
void FindInProcedures(const Listing& listing, Findings& findings);
void FindInJumps(const Listing& listing, Findings& findings);
void FindInPens(const Listing& listing, Findings& findings);

}  // namespace zerimo::classroom
