#include "classroom/findings/findings.h"

namespace zerimo::classroom {

namespace {

bool IsWord(const QString& text) {
  static const QRegularExpression word("^\\(?[A-Z][A-Z0-9_]*$");
  return word.match(text).hasMatch();
}

bool TakesTheRest(const WordFacts* word) {
  const bool isCounted = word == nullptr || word->Inputs >= 0 || word->Inputs == inputs::NotCounted;
  return !isCounted || TakesAName(word) || IsOneOf<StmtIf, StmtElse>(word);
}

/// Whether a line of one word is a sum: it begins like a name or a number, or has a sign in it.
bool IsSum(const Statement& statement) {
  static const QRegularExpression sum("^[(:#\\d-]|[-+*/%<>=!]");
  return sum.match(statement.Word()).hasMatch();
}

void FindUnknown(const Listing& listing, const Statement& statement, Findings& findings) {
  const QString word = statement.Word();
  const QStringList names = listing.ProcedureNames();
  if (statement.Known != nullptr || names.contains(word) || IsSum(statement)) return;
  const QString capitals = word.toUpper();
  if (word != capitals && (IsKnownWord(capitals) || names.contains(capitals))) {
    findings.push_back({Mistake::SmallLetters, statement.Line, {word, capitals}});
    return;
  }
  const QString name = word.section(u'(', 0, 0);
  if (word.contains(u'(') && IsKnownWord(name)) return;
  findings.push_back({Mistake::UnknownWord, statement.Line, {word, SuggestionFor(capitals, names)}});
}

/// In the editor a line is one statement; a second one becomes part of the first one's inputs.
void FindSeveral(const Listing& listing, const Statement& statement, Findings& findings) {
  if (statement.InBody || TakesTheRest(statement.Known)) return;
  const QStringList words = statement.Text.split(u' ');
  for (const QString& word : words.mid(1)) {
    if (!IsKnownWord(word) && listing.Find(word) == nullptr) continue;
    findings.push_back({Mistake::SeveralStatements, statement.Line, {word}});
    return;
  }
}

int GivenInputs(const Statement& statement) {
  const QString rest = statement.Rest();
  if (rest.isEmpty()) return 0;
  // Blanks beside a sign do not separate inputs.
  static const QRegularExpression besideSign(" ?([-+*/%<>=!]) ?");
  return static_cast<int>(QString(rest).replace(besideSign, "\\1").split(u' ').size());
}

void FindMissingInputs(const Listing& listing, const Statement& statement, Findings& findings) {
  const QString word = statement.Word();
  const ListedProcedure* const procedure = listing.Find(word);
  const qsizetype needed = procedure == nullptr ? NeededInputsOf(statement.Known) : procedure->Inputs.size();
  const int given = GivenInputs(statement);
  if (given < needed && (given == 0 || IsWord(word)))
    findings.push_back(
        {Mistake::MissingInputs, statement.Line, {word, QString::number(needed), QString::number(given)}});
}

}  // namespace

void FindInWords(const Listing& listing, Findings& findings) {
  for (const Statement& statement : listing.Statements) {
    FindUnknown(listing, statement, findings);
    FindSeveral(listing, statement, findings);
    if (!statement.Text.contains(" -")) FindMissingInputs(listing, statement, findings);
  }
}

}  // namespace zerimo::classroom
