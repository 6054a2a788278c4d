#include <QSet>
#include <algorithm>

#include "classroom/findings/findings.h"

namespace zerimo::classroom {

namespace {

/// The names that a text uses, with their colons.
QStringList NamesIn(const QString& text) {
  static const QRegularExpression name(":[A-Z]+");
  QStringList names;
  for (auto walk = name.globalMatch(text); walk.hasNext();) names.append(walk.next().captured());
  return names;
}

/// The name that a statement makes, with its colon, or empty.
QString MadeBy(const Statement& statement) {
  static const QRegularExpression make = ExpressionOf("^@ [\":]([A-Z]+)", IsOneOf<StmtMake>);
  const auto match = make.match(statement.Text);
  return match.hasMatch() ? u':' + match.captured(1) : QString();
}

QStringList InputsOf(const Listing& listing, const Statement& statement) {
  if (statement.Procedure < 0) return {};
  return listing.Procedures[static_cast<std::size_t>(statement.Procedure)].Inputs;
}

/// The names that the program makes, with their colons.
QSet<QString> KnownNames(const Listing& listing) {
  QSet<QString> known;
  for (const ListedProcedure& each : listing.Procedures) {
    for (const QString& input : each.Inputs) known.insert(input);
  }
  for (const Statement& each : listing.Statements) known.insert(MadeBy(each));
  return known;
}

void FindUnknown(const Listing& listing, const QSet<QString>& known, Findings& findings) {
  for (const Statement& statement : listing.Statements) {
    for (const QString& name : NamesIn(statement.Text)) {
      if (!known.contains(name)) findings.push_back({Mistake::UnknownName, statement.Line, {name}});
    }
  }
}

/// A name that is known, but written without its colon, counts as 0.
void FindWithoutColon(const Listing& listing, const QSet<QString>& known, Findings& findings) {
  static const QRegularExpression plain("(?<![:\"#\\w.])[A-Z]+(?![\\w.])");
  for (const Statement& statement : listing.Statements) {
    if (statement.Is<inputs::Repeat>() || TakesAName(statement.Known)) continue;
    // What MAKE makes is written without one.
    const QString read = statement.Is<StmtMake>() ? statement.Rest().section(u' ', 1) : statement.Rest();
    for (auto walk = plain.globalMatch(read); walk.hasNext();) {
      const QString name = walk.next().captured();
      if (known.contains(u':' + name) && !IsKnownWord(name) && listing.Find(name) == nullptr)
        findings.push_back({Mistake::NameWithoutColon, statement.Line, {name}});
    }
  }
}

/// A name that is 0 vanishes from its line: harmful before a `*` or `/`, and between a `*` and a minus.
void FindZeros(const Listing& listing, Findings& findings) {
  QStringList zeros;
  for (const Statement& each : listing.Statements) {
    if (each.Is<StmtMake>() && each.Text.endsWith(" 0")) zeros.append(MadeBy(each));
  }
  for (const Statement& statement : listing.Statements) {
    for (const QString& name : std::as_const(zeros)) {
      const QString word = QRegularExpression::escape(name);
      const QRegularExpression harmful("(?:^| )" + word + "[*/]|[*]" + word + "-");
      if (harmful.match(statement.Text).hasMatch()) findings.push_back({Mistake::ZeroVanishes, statement.Line, {name}});
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

void FindInNames(const Listing& listing, Findings& findings) {
  const QSet<QString> known = KnownNames(listing);
  FindUnknown(listing, known, findings);
  FindWithoutColon(listing, known, findings);
  FindZeros(listing, findings);
  for (const Statement& statement : listing.Statements) {
    FindInputTwice(listing, statement, findings);
    FindSums(listing, statement, findings);
  }
}

}  // namespace zerimo::classroom
