#include "classroom/findings/findings.h"

namespace zerimo::classroom {

namespace {

constexpr auto IsText = IsOneOf<inputs::Print, inputs::Message, inputs::Write>;

/// The first sign that belongs to no number, sum or name: it vanishes, and what stands beside it is joined.
QString StrangeSignIn(const QString& sum, bool mayCompare) {
  static const QRegularExpression inConditions(R"(:(?![A-Za-z_])|[^\w.:+\-*/%()#<>=!])");
  static const QRegularExpression inSums(R"(:(?![A-Za-z_])|[^\w.:+\-*/%()#])");
  static const QRegularExpression inNumber(R"((?<![\w:.])(?|\d*\.\d*(\.)|\d[\d.]*(_)))");
  if (const auto found = inNumber.match(sum); found.hasMatch()) return found.captured(1);
  const QRegularExpressionMatch match = (mayCompare ? inConditions : inSums).match(sum);
  if (match.hasMatch()) return match.captured();
  return sum.count(u')') > sum.count(u'(') ? ")" : "";
}

void FindInSum(const Statement& statement, const QString& sum, Findings& findings) {
  static const QRegularExpression half(R"(^[+*/%]|[-+*/%][*/%]|[-+*/%]$)");
  const QString sign = StrangeSignIn(sum, statement.Is<StmtIf>());
  if (sign == ",") findings.push_back({Mistake::Comma, statement.Line, {sum}});
  if (!sign.isEmpty() && sign != ",") findings.push_back({Mistake::StrangeSign, statement.Line, {sum, sign}});
  if (sum.count(u'(') > sum.count(u')')) findings.push_back({Mistake::OpenSum, statement.Line, {sum}});
  if (half.match(sum).hasMatch()) findings.push_back({Mistake::MissingNumber, statement.Line, {sum}});
}

}  // namespace

void FindInNumbers(const Listing& listing, Findings& findings) {
  for (const Statement& statement : listing.Statements) {
    const bool hasText = IsText(statement.Known) && statement.Text.contains(u'"');
    const bool hasNoBody = statement.Is<inputs::Repeat>() && !statement.Text.contains(u'[');
    // What is wrong with their own brackets is reported for the whole statement.
    if (hasText || hasNoBody || statement.Is<"(SUM", "(PRODUCT">()) continue;
    for (const QString& sum : listing.SumsOf(statement)) FindInSum(statement, sum, findings);
  }
}

}  // namespace zerimo::classroom
