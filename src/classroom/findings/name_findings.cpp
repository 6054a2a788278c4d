#include <QSet>
#include <algorithm>

#include "classroom/findings/findings.h"

namespace zerimo::classroom {

namespace {

/// The names that a text uses, with their colons.
QStringList NamesIn(const QString& text) {
  static const QRegularExpression name(":[A-Za-z_]+");
  QStringList names;
  for (auto walk = name.globalMatch(text); walk.hasNext();) names.append(walk.next().captured());
  return names;
}

/// The name that a statement makes, as it is read later, or empty: with its colon, unless its quote is missing.
QString MadeBy(const Statement& statement) {
  static const QRegularExpression make = ExpressionOf("^@ ([\":]?)([A-Za-z_]+)", IsOneOf<StmtMake>);
  const auto match = make.match(statement.Text);
  if (!match.hasMatch()) return {};
  return match.captured(1).isEmpty() ? match.captured(2) : u':' + match.captured(2);
}

QStringList InputsOf(const Listing& listing, const Statement& statement) {
  if (statement.Procedure < 0) return {};
  return listing.Procedures[static_cast<std::size_t>(statement.Procedure)].Inputs;
}

/// The text of a statement without the inputs of its procedure that have a digit in their names.
QString WithoutInputs(const Listing& listing, const Statement& statement) {
  QString text = statement.Text;
  for (const QString& input : InputsOf(listing, statement)) {
    if (input.back().isDigit()) text.remove(QRegularExpression(QRegularExpression::escape(input) + "(?![\\w])"));
  }
  return text;
}

/// The names that the program makes, as they are read.
QSet<QString> KnownNames(const Listing& listing) {
  QSet<QString> known;
  for (const ListedProcedure& each : listing.Procedures) {
    for (const QString& input : each.Inputs) known.insert(input);
  }
  for (const Statement& each : listing.Statements) known.insert(MadeBy(each));
  return known;
}

Finding UnknownName(const Statement& statement, const QString& name, const QSet<QString>& known) {
  // The same in capitals, or one that is spelled nearly so.
  const QString capitals = name.toUpper();
  const QString meant = known.contains(capitals) ? capitals : MostLike(capitals, {known.begin(), known.end()});
  return {Mistake::UnknownName, statement.Line, {name, meant}};
}

void FindUnknown(const Listing& listing, const QSet<QString>& known, Findings& findings) {
  for (const Statement& statement : listing.Statements) {
    for (const QString& name : NamesIn(WithoutInputs(listing, statement))) {
      if (!known.contains(name)) findings.push_back(UnknownName(statement, name, known));
    }
  }
}

/// The digits are left over when the name is read. Those of an input are read with it.
void FindDigits(const Listing& listing, Findings& findings) {
  static const QRegularExpression name(":[A-Za-z_]+\\d+");
  for (const Statement& statement : listing.Statements) {
    const auto match = name.match(WithoutInputs(listing, statement));
    if (match.hasMatch()) findings.push_back({Mistake::DigitInName, statement.Line, {match.captured()}});
  }
}

/// What vanishes of a word that begins with a digit: "CM" of "10CM".
QString LettersOf(const QString& word) {
  static const QRegularExpression letters("^\\d+([A-Za-z_]+)");
  const auto match = letters.match(word);
  return match.hasMatch() ? match.captured(1) : word;
}

/// A word in a sum vanishes: a name without its colon, a text without quotes, or an unknown word.
void FindVanishing(const Listing& listing, const QSet<QString>& known, Findings& findings) {
  static const QRegularExpression plain(R"((?<![:"#\w.])\w*[A-Za-z]\w*(?![\w.]))");
  static const QRegularExpression exponent("^\\d+E\\d*$");
  for (const Statement& statement : listing.Statements) {
    for (auto walk = plain.globalMatch(listing.SumsOf(statement).join(u' ')); walk.hasNext();) {
      const QString name = walk.next().captured();
      const bool isOther = IsKnownWord(name) || listing.Find(name) != nullptr || exponent.match(name).hasMatch();
      const Finding asLogic{Mistake::LogicWord, statement.Line, {name}};
      const bool isTold = std::ranges::find(findings, asLogic) != findings.end();
      if (isOther || isTold || known.contains(name)) continue;
      const Mistake what = known.contains(u':' + name)                                     ? Mistake::NameWithoutColon
                           : statement.Is<inputs::Print, inputs::Message, inputs::Write>() ? Mistake::TextWithoutQuotes
                                                                                           : Mistake::UnknownName;
      findings.push_back(what == Mistake::UnknownName ? UnknownName(statement, LettersOf(name), known)
                                                      : Finding{what, statement.Line, {name}});
    }
  }
}

/// The parts of a sum that are worked out by themselves: what is in brackets, the sides of a comparison, and the rest,
/// where a bracket is a letter.
QStringList PartsOfSum(QString sum) {
  static const QRegularExpression bracket("\\(([^()]*)\\)");
  static const QRegularExpression comparison("[<>=!]+");
  QStringList parts;
  for (auto match = bracket.match(sum); match.hasMatch(); match = bracket.match(sum)) {
    parts += match.captured(1).split(comparison);
    sum.replace(match.capturedStart(), match.capturedLength(), "b");
  }
  return parts + sum.split(comparison);
}

void FindZeros(const Listing& listing, Findings& findings) {
  QStringList zeros;
  for (const Statement& each : listing.Statements) {
    if (each.Is<StmtMake>() && each.Text.endsWith(" 0")) zeros.append(MadeBy(each));
  }
  for (const Finding& finding : PossibleZeros(listing)) {
    if (zeros.contains(finding.Details.first())) findings.push_back(finding);
  }
}

/// Of the two minus signs that a name with a minus number makes after a minus, only one counts.
void FindNegatives(const Listing& listing, Findings& findings) {
  static const QRegularExpression negative(R"( (?:\(-\d[\d.]*\)|0-\d[\d.]*)$)");
  QStringList names;
  for (const Statement& each : listing.Statements) {
    if (each.Is<StmtMake>() && negative.match(each.Text).hasMatch()) names.append(MadeBy(each));
  }
  for (const Statement& statement : listing.Statements) {
    for (const QString& name : std::as_const(names)) {
      const QRegularExpression harmful("\\S+-" + QRegularExpression::escape(name) + "(?!\\w)");
      const auto match = harmful.match(listing.SumsOf(statement).join(u' '));
      if (match.hasMatch()) findings.push_back({Mistake::DoubleMinus, statement.Line, {match.captured()}});
    }
  }
}

void FindInputTwice(const Listing& listing, const Statement& statement, Findings& findings) {
  if (statement.Is<inputs::Repeat>()) return;
  for (const QString& input : InputsOf(listing, statement)) {
    const bool isTwice = std::ranges::any_of(statement.Text.split(u' '),
                                             [&input](const QString& word) { return NamesIn(word).count(input) > 1; });
    if (isTwice) findings.push_back({Mistake::InputTwice, statement.Line, {input}});
    if (MadeBy(statement) == input) findings.push_back({Mistake::InputOverwritten, statement.Line, {input}});
  }
}

/// A call with a sum for an input that the procedure multiplies.
void FindSums(const Listing& listing, const Statement& call, Findings& findings) {
  const ListedProcedure* const procedure = listing.Find(call.Word());
  if (procedure == nullptr) return;
  const QStringList given = call.Rest().split(u' ');
  static const QRegularExpression sum("^[^(].*[+-]");
  for (qsizetype i = 0; i < given.size() && i < procedure->Inputs.size(); ++i) {
    if (!sum.match(given[i]).hasMatch()) continue;
    const QString& input = procedure->Inputs[i];
    const QRegularExpression factor("[*/]" + QRegularExpression::escape(input) + "\\b|" +
                                    QRegularExpression::escape(input) + "[*/]");
    for (const Statement& each : listing.Statements) {
      if (InputsOf(listing, each).contains(input) && factor.match(each.Text).hasMatch())
        findings.push_back({Mistake::InputWithoutBrackets, call.Line, {given[i], input}});
    }
  }
}

}  // namespace

QStringList NamesThatMayNotVanish(const QStringList& sums) {
  static const QRegularExpression name("^:?[A-Za-z_]+(?=[*/].*[-+])|(?<=[*]):?[A-Za-z_]+(?=[-*/%])");
  QStringList names;
  for (const QString& part : PartsOfSum(sums.join(u'='))) {
    for (auto walk = name.globalMatch(part); walk.hasNext();) names.append(walk.next().captured());
  }
  return names;
}

Findings PossibleZeros(const Listing& listing) {
  Findings findings;
  for (const Statement& statement : listing.Statements) {
    for (const QString& name : NamesThatMayNotVanish(listing.SumsOf(statement)))
      findings.push_back({Mistake::ZeroVanishes, statement.Line, {name}});
  }
  return findings;
}

void FindInNames(const Listing& listing, Findings& findings) {
  const QSet<QString> known = KnownNames(listing);
  if (!listing.Loads()) FindUnknown(listing, known, findings);
  FindDigits(listing, findings);
  FindVanishing(listing, known, findings);
  FindZeros(listing, findings);
  FindNegatives(listing, findings);
  for (const Statement& statement : listing.Statements) {
    FindInputTwice(listing, statement, findings);
    FindSums(listing, statement, findings);
  }
}

}  // namespace zerimo::classroom
