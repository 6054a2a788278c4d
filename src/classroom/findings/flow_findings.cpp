#include <QHash>
#include <algorithm>
#include <cmath>

#include "classroom/findings/findings.h"

namespace zerimo::classroom {

namespace {

bool IsElse(const Statement& statement) { return statement.Is<StmtElse>() && statement.Rest().isEmpty(); }

/// Follows the IFs of one procedure.
class IfWalk {
 public:
  explicit IfWalk(Findings& findings) : findings_(findings) {}

  void Take(const Statement& statement) {
    if (statement.Is<StmtIf>() && !HasItsEndif(statement)) open_.push_back({statement.Line, false});
    if (IsElse(statement)) TakeElse(statement.Line);
    if (statement.Is<StmtEndIf>() && !open_.empty()) open_.pop_back();
  }

  void End() {
    for (const Level& level : open_)
      findings_.push_back({level.HasElse ? Mistake::MisplacedElse : Mistake::IfWithoutEndif, level.Line, {}});
    open_.clear();
  }

 private:
  struct Level {
    int Line;
    bool HasElse;
  };

  /// All on one line: that several statements stand on it is reported elsewhere.
  static bool HasItsEndif(const Statement& statement) {
    return std::ranges::any_of(statement.Inputs(),
                               [](const QString& word) { return IsOneOf<StmtEndIf>(KnownWord(word)); });
  }

  void TakeElse(int line) {
    if (open_.empty()) return findings_.push_back({Mistake::MisplacedElse, line, {}});
    open_.back().HasElse = true;
  }

  Findings& findings_;
  std::vector<Level> open_;
};

void FindIfs(const Listing& listing, Findings& findings) {
  IfWalk walk(findings);
  for (std::size_t i = 0; i < listing.Statements.size(); ++i) {
    const Statement& statement = listing.Statements[i];
    if (i > 0 && statement.Procedure != listing.Statements[i - 1].Procedure) walk.End();
    if (!statement.Is<inputs::Repeat>()) walk.Take(statement);
  }
  walk.End();
}

/// Follows the search that begins at an IF that is not true. The search remembers whether it last met an IF or an
/// ENDIF, but not how many are open, so that it may take an ELSE of another one: the line of this one, or 0.
int WrongElseOf(const std::vector<Statement>& statements, std::size_t ifAt) {
  int depth = 1;
  bool lastWasIf = false;
  for (std::size_t i = ifAt + 1; i < statements.size() && depth > 0; ++i) {
    const Statement& each = statements[i];
    if (each.Procedure != statements[ifAt].Procedure) return 0;
    if (IsElse(each) && !lastWasIf) return depth > 1 ? each.Line : 0;
    if (each.Is<StmtIf>()) ++depth;
    if (each.Is<StmtEndIf>()) --depth;
    // A REPEAT becomes a loop that ends with an IF and its ENDIF.
    if (each.Is<StmtIf, StmtEndIf, inputs::Repeat>()) lastWasIf = each.Is<StmtIf>();
  }
  return 0;
}

void FindWrongElses(const Listing& listing, Findings& findings) {
  for (std::size_t i = 0; i < listing.Statements.size(); ++i) {
    const int line = listing.Statements[i].Is<StmtIf>() ? WrongElseOf(listing.Statements, i) : 0;
    if (line > 0) findings.push_back({Mistake::DeepElse, line, {}});
  }
}

void FindLabels(const Listing& listing, Findings& findings) {
  QHash<QString, int> lines;
  for (const Statement& each : listing.Statements) {
    if (!each.Is<StmtLabel>()) continue;
    if (lines.contains(each.Rest()))
      findings.push_back(
          {Mistake::DuplicateLabel, each.Line, {each.Rest(), QString::number(lines.value(each.Rest()))}});
    lines.insert(each.Rest(), each.Line);
  }
  for (const Statement& each : listing.Statements) {
    if (each.Is<StmtGoto>() && !lines.contains(each.Rest()))
      findings.push_back({Mistake::UnknownLabel, each.Line, {each.Rest()}});
  }
}

/// After an ENDIF a LABEL swallows the next line.
void FindSwallowed(const Listing& listing, Findings& findings) {
  for (std::size_t i = 1; i < listing.Statements.size(); ++i) {
    const Statement& label = listing.Statements[i];
    if (label.Is<StmtLabel>() && listing.Statements[i - 1].Is<StmtEndIf>())
      findings.push_back({Mistake::LabelAfterEndif, label.Line, {label.Rest()}});
  }
}

constexpr qsizetype MostStatements = 199;

/// The number in the name of a count, if the program makes it once and with a number; otherwise the count itself.
QString ValueOf(const Listing& listing, const QString& count) {
  static const QRegularExpression make = ExpressionOf(R"(^@ "([A-Za-z_]+) \(?(-?[\d.]+)\)?$)", IsOneOf<StmtMake>);
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
      ExpressionOf(R"re((?:^|[ \[])(@) ([^" \]\[]+) ([A-Z]+))re", IsOneOf<"PRINT", "WRITE", "MESSAGE">);
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

void FindInJumps(const Listing& listing, Findings& findings) {
  FindIfs(listing, findings);
  FindWrongElses(listing, findings);
  FindLabels(listing, findings);
  FindSwallowed(listing, findings);
}

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
