#include <algorithm>
#include <cmath>

#include "classroom/findings/findings.h"

namespace zerimo::classroom {

namespace {

constexpr qsizetype MostStatements = 199;

/// The number in the name of a count, if the program makes it once and with a number; otherwise the count itself.
QString ValueOf(const Listing& listing, const QString& count) {
  static const QRegularExpression make = ExpressionOf("^@ \"([A-Za-z_]+) \\(?(-?[\\d.]+)\\)?$", IsOneOf<StmtMake>);
  QString value;
  for (const Statement& each : listing.Statements) {
    if (!each.Is<StmtMake>() || each.Rest().section(u' ', 0, 0) != u'"' + count.mid(1)) continue;
    if (!value.isEmpty()) return count;
    value = make.match(each.Text).captured(2);
  }
  const bool isInput = std::ranges::any_of(
      listing.Procedures, [&count](const ListedProcedure& each) { return each.Inputs.contains(count); });
  return !count.startsWith(u':') || isInput || value.isEmpty() ? count : value;
}

void FindInCount(const Listing& listing, const Statement& repeat, Findings& findings) {
  const QString count = PartsOf(repeat.Text).Count;
  if (count.isEmpty()) findings.push_back({Mistake::CountMissing, repeat.Line, {}});
  bool isNumber = false;
  const double number = ValueOf(listing, count).remove(u'(').remove(u')').toDouble(&isNumber);
  if (isNumber && number <= 0) findings.push_back({Mistake::CountZero, repeat.Line, {count}});
  if (isNumber && number > 0 && number != std::floor(number))
    findings.push_back({Mistake::CountFraction, repeat.Line, {count}});
  if (isNumber && number > GreatestWhole) findings.push_back({Mistake::CountTooLarge, repeat.Line, {count}});
  const QString make = NameOf(IsOneOf<StmtMake>) + " \"" + count.mid(1) + ' ';
  if (count.startsWith(u':') && repeat.Text.contains(make))
    findings.push_back({Mistake::CountChanged, repeat.Line, {count}});
}

void FindBrackets(const Statement& repeat, Findings& findings) {
  const qsizetype opened = repeat.Text.count(u'[');
  const qsizetype closed = repeat.Text.count(u']');
  if (opened > 0 && closed > opened) return findings.push_back({Mistake::ExtraBracket, repeat.Line, {}});
  if (opened == 0 || closed < opened || PartsOf(repeat.Text).Body.trimmed().isEmpty())
    findings.push_back({Mistake::MissingBracket, repeat.Line, {}});
}

/// A PRINT that is not the last in its body takes the following statements as part of its sum.
void FindPrint(const Statement& repeat, Findings& findings) {
  static const QRegularExpression print =
      ExpressionOf("(?:^|[ \\[])(@) ([^\" \\]\\[]+) ([A-Z]+)", IsOneOf<"PRINT", "WRITE", "MESSAGE">);
  for (auto walk = print.globalMatch(PartsOf(repeat.Text).Body); walk.hasNext();) {
    const auto match = walk.next();
    if (IsKnownWord(match.captured(3))) findings.push_back({Mistake::PrintInRepeat, repeat.Line, {match.captured(1)}});
  }
}

void FindIndented(const Listing& listing, Findings& findings) {
  static const QRegularExpression indented = ExpressionOf("^[ \t]+@\\b", IsOneOf<inputs::Repeat>);
  for (int i = 0; i < listing.Lines.size(); ++i) {
    if (indented.match(listing.Lines[i]).hasMatch()) findings.push_back({Mistake::IndentedRepeat, i + 1, {}});
  }
}

void FindLongBody(const Listing& listing, const Statement& repeat, Findings& findings) {
  const auto size = std::ranges::count_if(
      listing.Statements, [&repeat](const Statement& each) { return each.Line == repeat.Line && each.InBody; });
  if (size > MostStatements) findings.push_back({Mistake::LongBody, repeat.Line, {QString::number(size)}});
}

}  // namespace

void FindInRepeats(const Listing& listing, Findings& findings) {
  FindIndented(listing, findings);
  for (const Statement& statement : listing.Statements) {
    if (!statement.Is<inputs::Repeat>()) continue;
    FindInCount(listing, statement, findings);
    FindPrint(statement, findings);
    // An inner one is checked with the brackets of the whole line.
    if (statement.InBody) continue;
    FindBrackets(statement, findings);
    FindLongBody(listing, statement, findings);
  }
}

}  // namespace zerimo::classroom
