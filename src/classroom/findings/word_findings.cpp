#include <algorithm>

#include "classroom/findings/findings.h"

namespace zerimo::classroom {

namespace {

bool IsWord(const QString& text) {
  static const QRegularExpression word("^\\(?[A-Z][A-Z0-9_]*$");
  return word.match(text).hasMatch();
}

QString WithoutBrackets(QString word) { return word.remove(u'(').remove(u')'); }

/// Whether a line of one word is a sum: it begins like a name or a number, or has a sign in it.
bool IsSum(const Statement& statement) {
  static const QRegularExpression sum("^\\(*[:#\\d-]|[-+*/%<>=!]");
  const QString inside = WithoutBrackets(statement.Word());
  const bool isValue = IsKnownWord(inside) && !IsCommand(inside);
  return isValue || (sum.match(statement.Word()).hasMatch() && !statement.IsRemark());
}

/// What the writer of an unknown word probably meant, or empty: "FD50" is "FD 50", and "(FD" is "FD".
QString WordMeantBy(const QString& unknown, const QStringList& procedures) {
  static const QRegularExpression withNumber("^([A-Z]+)(\\d.*)$");
  QString word = WithoutBrackets(unknown);
  if (word != unknown && (IsKnownWord(word) || procedures.contains(word))) return word;
  const auto match = withNumber.match(word);
  if (match.hasMatch() && IsKnownWord(match.captured(1))) return match.captured(1) + u' ' + match.captured(2);
  return SuggestionFor(word, procedures);
}

void FindUnknown(const Listing& listing, const Statement& statement, Findings& findings) {
  const QString word = statement.Word();
  const QStringList names = listing.ProcedureNames();
  if (statement.Known != nullptr || names.contains(word) || IsSum(statement)) return;
  const QString capitals = word.toUpper();
  if (word != capitals && (IsKnownWord(capitals) || names.contains(capitals))) {
    // F2 cures all of them, so they are reported once.
    if (std::ranges::find(findings, Mistake::SmallLetters, &Finding::What) == findings.end())
      findings.push_back({Mistake::SmallLetters, statement.Line, {word, capitals}});
    return;
  }
  const QString name = word.section(u'(', 0, 0);
  if (word.contains(u'(') && IsKnownWord(name)) return;
  const QString meant = WordMeantBy(capitals, names);
  // What has been loaded may have a procedure of this name.
  if (!listing.Loads() || !meant.isEmpty()) findings.push_back({Mistake::UnknownWord, statement.Line, {word, meant}});
}

/// The second statement of a line, where a line is one statement, or empty. It becomes part of the first one's inputs.
QString SecondStatementOf(const Listing& listing, const Statement& statement) {
  const bool isUnknown = statement.Known == nullptr && listing.Find(statement.Word()) == nullptr;
  if (isUnknown || statement.InBody || statement.Is<StmtElse>()) return {};
  // A bracket too many is reported as such.
  if (statement.Is<inputs::Repeat>()) return PartsOf(statement.Text).After.remove(u']').section(u' ', 0, 0);
  const QStringList words = statement.Text.split(u' ');
  const auto begin = words.begin() + std::min<qsizetype>(words.size(), TakesAName(statement.Known) ? 2 : 1);
  const auto found = std::find_if(
      begin, words.end(), [&listing](const QString& word) { return IsCommand(word) || listing.Find(word) != nullptr; });
  return found == words.end() ? QString() : *found;
}

void FindMissingInputs(const Listing& listing, const Statement& statement, Findings& findings) {
  const QString word = statement.Word();
  const ListedProcedure* const procedure = listing.Find(word);
  const bool isSilent = statement.Is<inputs::Print, inputs::Message, inputs::Write>();
  const qsizetype needed = procedure != nullptr ? procedure->Inputs.size()
                           : isSilent           ? 1
                                                : NeededInputsOf(statement.Known);
  const qsizetype given = statement.Inputs().size();
  if (given < needed && (given == 0 || IsWord(word)))
    findings.push_back(
        {Mistake::MissingInputs, statement.Line, {word, QString::number(needed), QString::number(given)}});
}

/// Whether all that follows a word is one sum, in which numbers side by side are joined. A minus is a sign there, and a
/// comma is reported by itself.
bool IsJoinedSum(const Statement& statement) {
  return statement.Is<inputs::Print, inputs::Message, inputs::Write>() && !statement.Text.contains(u'"') &&
         !statement.Text.contains(u',') && !statement.Text.contains(QLatin1String(" -"));
}

/// More than the word of a statement takes: a number, or a second statement that is misspelt.
void FindTooMany(const Listing& listing, const Statement& statement, Findings& findings) {
  const bool isJoined = IsJoinedSum(statement);
  const std::optional<qsizetype> taken = isJoined ? 1 : listing.InputsTakenBy(statement);
  const QStringList given = statement.Inputs();
  if (!taken || given.size() <= *taken) return;
  const QString& first = given[*taken];
  const QString both = statement.Word() + u' ' + first;
  if (const QString meant = WordForOther(both); !meant.isEmpty()) {
    findings.push_back({Mistake::UnknownWord, statement.Line, {both, meant}});
  } else if (IsWord(first) && !IsKnownWord(first)) {
    // Where a text may stand, it is reported as one.
    if (isJoined) return;
    findings.push_back({Mistake::UnknownWord, statement.Line, {first, WordMeantBy(first, listing.ProcedureNames())}});
  } else {
    findings.push_back({Mistake::TooManyInputs,
                        statement.Line,
                        {statement.Word(), QString::number(*taken), QString::number(given.size())}});
  }
}

/// Where inputs are told apart by their blanks, a sum may have none.
void FindBlankInSum(const Listing& listing, const Statement& statement, Findings& findings) {
  const qsizetype taken = listing.InputsTakenBy(statement).value_or(0);
  const bool isAlone = taken == 1 && listing.Find(statement.Word()) == nullptr;
  const bool isCut = statement.InBody ? taken > 0 || statement.Is<StmtIf>() : taken > 0 && !isAlone;
  const QStringList pieces = statement.Rest().split(u' ');
  if (!isCut) return;
  for (const QString& input : statement.Inputs()) {
    // A blank before = is reported by itself, and MAKE needs no =.
    const bool isOther = input.contains(u'=') && statement.Is<StmtIf, StmtMake>();
    if (!pieces.contains(input) && !isOther) findings.push_back({Mistake::BlankInSum, statement.Line, {input}});
  }
}

/// What follows the condition of an IF on its line is lost, unless it is a statement, which is reported as such.
void FindAfterCondition(const Statement& statement, Findings& findings) {
  const QStringList given = statement.Inputs();
  const bool isOther = statement.Text.contains(u'=') || statement.Text.contains(u'"');
  if (statement.Is<StmtIf>() && !statement.InBody && given.size() > 1 && !isOther && !IsWord(given[1]))
    findings.push_back({Mistake::BlankInSum, statement.Line, {statement.Rest()}});
}

void FindInInputs(const Listing& listing, const Statement& statement, Findings& findings) {
  const QString second = SecondStatementOf(listing, statement);
  if (!second.isEmpty()) return findings.push_back({Mistake::SeveralStatements, statement.Line, {second}});
  FindMissingInputs(listing, statement, findings);
  FindTooMany(listing, statement, findings);
  FindBlankInSum(listing, statement, findings);
  FindAfterCondition(statement, findings);
}

void FindInHeads(const Listing& listing, Findings& findings) {
  for (const ListedProcedure& each : listing.Procedures) {
    const auto second = std::ranges::find_if(each.Inputs, IsCommand);
    if (second != each.Inputs.end()) findings.push_back({Mistake::SeveralStatements, each.Line, {*second}});
  }
}

}  // namespace

Findings FindingsInCalls(const QString& program, const QString& typed) {
  // In a body, a line is cut as a row is.
  const Listing listing(program + "\r\n" + NameOf(IsOneOf<inputs::Repeat>) + " 1 [" + typed + ']');
  const auto last = static_cast<int>(listing.Lines.size());
  Findings findings;
  for (const Statement& statement : listing.Statements) {
    const ListedProcedure* const called = listing.Find(statement.Word());
    if (statement.Line != last || !statement.InBody || called == nullptr) continue;
    const std::size_t before = findings.size();
    FindMissingInputs(listing, statement, findings);
    FindTooMany(listing, statement, findings);
    for (std::size_t i = before; i < findings.size(); ++i) findings[i].Line = called->Line;
  }
  return findings;
}

void FindInWords(const Listing& listing, Findings& findings) {
  for (const Statement& statement : listing.Statements) {
    FindUnknown(listing, statement, findings);
    FindInInputs(listing, statement, findings);
  }
  FindInHeads(listing, findings);
}

}  // namespace zerimo::classroom
