#include <algorithm>

#include "classroom/findings/findings.h"

namespace zerimo::classroom {

namespace {

void FindEnds(const Listing& listing, Findings& findings) {
  for (const ListedProcedure& each : listing.Procedures) {
    if (!each.HasEnd) findings.push_back({Mistake::WithoutEnd, each.Line, {each.Name}});
    if (IsKnownWord(each.Name)) findings.push_back({Mistake::NameIsAWord, each.Line, {each.Name}});
    static const QRegularExpression sign("[-+*/%<>=!]");
    if (each.Name.contains(sign)) findings.push_back({Mistake::NameIsASum, each.Line, {each.Name}});
    const ListedProcedure* const first = listing.Find(each.Name);
    if (first != &each)
      findings.push_back({Mistake::DuplicateProcedure, each.Line, {each.Name, QString::number(first->Line)}});
  }
}

/// A typed line is turned to capitals, so that it can't call a procedure whose name has small letters; the program can.
void FindUncallable(const Listing& listing, Findings& findings) {
  for (const ListedProcedure& each : listing.Procedures) {
    const QString capitals = each.Name.toUpper();
    const bool isCalled =
        std::ranges::find(listing.Statements, each.Name, &Statement::Word) != listing.Statements.end();
    const bool isTold = std::ranges::find(findings, Mistake::SmallLetters, &Finding::What) != findings.end();
    if (each.Name != capitals && !isCalled && !isTold)
      findings.push_back({Mistake::SmallLetters, each.Line, {each.Name, capitals}});
  }
}

/// Outside the procedures only `MAKE` lines with a number, above the first procedure, are read.
void FindOutside(const Listing& listing, Findings& findings) {
  static const QRegularExpression name = ExpressionOf(R"(^@ (:[A-Z]+) (\(?-?[\d.]+\)?)$)", IsOneOf<StmtMake>);
  if (listing.Procedures.empty()) return;
  const int first = listing.Procedures.front().Line;
  for (const Statement& each : listing.Statements) {
    if (each.Procedure >= 0 || each.InBody) continue;
    const auto match = name.match(each.Text);
    if (each.Line < first && match.hasMatch()) {
      findings.push_back({Mistake::MakeAtTop, each.Line, {match.captured(1), match.captured(2)}});
    } else {
      findings.push_back({Mistake::OutsideProcedures, each.Line, {each.Text.left(40)}});
    }
  }
}

/// The first statement from a place on that does more than close the IFs around it. What stands between an ELSE and
/// its ENDIF is not carried out.
std::size_t AfterClosedIfs(const std::vector<Statement>& all, std::size_t at) {
  int skipped = 0;
  for (; at < all.size(); ++at) {
    const bool isElse = all[at].Is<StmtElse>() && all[at].Rest().isEmpty();
    if (skipped > 0 && all[at].Is<StmtIf>()) ++skipped;
    if (skipped > 0 && all[at].Is<StmtEndIf>()) --skipped;
    if (skipped == 0 && isElse) skipped = 1;
    if (skipped == 0 && !all[at].Is<StmtEndIf>()) break;
  }
  return at;
}

/// A procedure that calls itself loses what follows the call, and does not pass on its inputs.
void FindRecursion(const Listing& listing, Findings& findings) {
  const std::vector<Statement>& all = listing.Statements;
  for (std::size_t i = 0; i < all.size(); ++i) {
    if (all[i].Procedure < 0) continue;
    const ListedProcedure& own = listing.Procedures[static_cast<std::size_t>(all[i].Procedure)];
    if (all[i].Word() != own.Name) continue;
    const bool hasInput = std::ranges::any_of(own.Inputs, [&](const QString& input) {
      return all[i].Rest() != own.Inputs.join(u' ') && all[i].Rest().contains(input);
    });
    if (hasInput) findings.push_back({Mistake::RecursionWithInput, all[i].Line, {own.Name}});
    const std::size_t next = AfterClosedIfs(all, i + 1);
    if (next < all.size() && all[next].Procedure == all[i].Procedure)
      findings.push_back({Mistake::RecursionGoesOn, all[i].Line, {own.Name}});
  }
}

}  // namespace

void FindInProcedures(const Listing& listing, Findings& findings) {
  FindEnds(listing, findings);
  FindUncallable(listing, findings);
  FindOutside(listing, findings);
  FindRecursion(listing, findings);
}

}  // namespace zerimo::classroom
