#include <array>
#include <cmath>

#include "classroom/findings/findings.h"

namespace zerimo::classroom {

namespace {

/// Whether a word takes two numbers or more.
bool TakesNumbers(const WordFacts* word) {
  return word != nullptr && word->Does != Action::None && word->Inputs > 1 && !TakesAName(word);
}

constexpr auto IsIf = IsOneOf<StmtIf>;
constexpr auto IsMake = IsOneOf<StmtMake>;

/// A mistake that the text of one statement shows. The reader is told the text of the expression's first group.
struct Pattern {
  Mistake What;
  /// See `ExpressionOf`; it is about any statement if it names no words.
  const char* Text;
  bool (*Words)(const WordFacts*) = IsOneOf<>;
  /// The number in the first group is a mistake if it is greater.
  double Greatest = -1;
  /// Only where a line is cut at its blanks.
  bool OnlyInBody = false;
};

/// The greatest number of units that 16 bits hold, in steps of 50.
constexpr double GreatestStep = 655;
constexpr double GreatestDrawMode = 16;

constexpr std::array Patterns = {
    Pattern{Mistake::MinusInput, R"(^(?!@ )([A-Z]+) -\s*[\d:.(A-Z])",
            IsOneOf<StmtIf, StmtMake, inputs::Print, inputs::Message, inputs::Write>},
    Pattern{Mistake::MinusSecondInput, R"(^(@) [^"]*[\w)] -[\d:.(])", TakesNumbers},
    Pattern{Mistake::MinusMake, R"(^@ "?:?([A-Z]+) -)", IsMake},
    Pattern{Mistake::DoubleMinus, R"((\S*--\S*))"},
    Pattern{Mistake::PercentAfterTimes, R"(([\w):.]*\w\*[\w:.]+%\S*))"},
    Pattern{Mistake::MissingTimes, R"(([\d)]+(?:\(|:[A-Za-z_])\S*))"},
    Pattern{Mistake::BarePoint, R"( (\.\d+))"},
    Pattern{Mistake::BlankBeforeEquals, R"(^@ [^"]* (=))", IsIf, -1, true},
    Pattern{Mistake::Exponent, R"((?:^|[^\w:"])(\d+E[+-]?\d+))"},
    Pattern{Mistake::HalfNumber, R"(^& (\d+\.\d+)$)",
            IsOneOf<"SETPC", "SETBG", "FILL", "FILLSTYLE", "FLOODFILL", "LW", "WAIT", "DRAWMODE", "TEXTSIZE", "SUM",
                    "PRODUCT", "QUOTIENT", "REMAINDER">},
    Pattern{Mistake::WholeStep, R"(^& (\(?-?\d+\.\d+\)?)$)", IsOneOf<"CIRCLE", "SETXY", "DOT", "LINE">},
    Pattern{Mistake::DivisionByZero, R"((\S*/0(?![\d.])\S*))"},
    Pattern{Mistake::DivisionByZero, R"(^(& 0)$)", IsOneOf<"QUOTIENT", "REMAINDER">},
    Pattern{Mistake::TooLarge, R"(^& \(?-?(\d+)\)?$)", IsOneOf<"SETXY", "DOT", "SETY">, GreatestStep},
    Pattern{Mistake::TooLarge, R"(^& (\d+)$)",
            IsOneOf<"SUM", "PRODUCT", "QUOTIENT", "REMAINDER", "LW", "WAIT", "SETPC", "SETBG", "FILL">, GreatestWhole},
    Pattern{Mistake::TooLarge, R"(^& (\d+)$)", IsOneOf<"DRAWMODE">, GreatestDrawMode},
    Pattern{Mistake::DigitInName, R"(^@ "([A-Z]+\d+))", IsMake},
    Pattern{Mistake::MakeWithoutQuote, R"(^@ ([A-Z]+)\b)", IsMake},
    Pattern{Mistake::SecondQuote, R"-(^@ "([A-Z]+)")-", IsMake},
    Pattern{Mistake::CounterUsed, R"((#+))"},
    Pattern{Mistake::WrongSign, R"(^@ [^"]*(==|<>|><|=<|=>|!==))", IsIf},
    Pattern{Mistake::TwoComparisons, R"(^@ ([^" ]*[<>=!]=?[^<>=!" ]+[<>!][^" ]*))", IsIf},
    Pattern{Mistake::LogicWord, R"(^@ [^"]*\b(AND|OR|NOT)\b)", IsIf},
    Pattern{Mistake::ColourCode, R"(^& (1[6-9]|[2-9]\d|\d{3,}|\(-\d+\))$)",
            IsOneOf<"SETPC", "SETBG", "FILL", "FLOODFILL", "TEXTCOLOR">},
    Pattern{Mistake::OpenQuote, R"(^@ ("[^"]+)$)", IsOneOf<"PRINT", "MESSAGE", "WRITE">},
    Pattern{Mistake::OpenSum, R"(^(@\b[^)]*)$)", IsOneOf<"(SUM", "(PRODUCT">},
    Pattern{Mistake::ElseWithMore, R"(^@ (\S.*))", IsOneOf<StmtElse>},
};

std::vector<QRegularExpression> Compiled() {
  std::vector<QRegularExpression> all;
  all.reserve(Patterns.size());
  for (const Pattern& each : Patterns) all.push_back(ExpressionOf(QString::fromLatin1(each.Text), each.Words));
  return all;
}

void FindPatterns(const Statement& statement, Findings& findings) {
  static const std::vector<QRegularExpression> compiled = Compiled();
  for (std::size_t i = 0; i < compiled.size(); ++i) {
    if (Patterns[i].OnlyInBody && !statement.InBody) continue;
    const auto match = compiled[i].match(statement.Text);
    if (match.hasMatch() && (Patterns[i].Greatest < 0 || match.captured(1).toDouble() > Patterns[i].Greatest))
      findings.push_back({Patterns[i].What, statement.Line, {match.captured(1)}});
  }
}

/// A number at the beginning of a line, as in "4 SQUARE", makes it a sum.
void FindLoneNumber(const Listing& listing, const Statement& statement, Findings& findings) {
  static const QRegularExpression number(R"(^\(?-?[\d.]+\)?(?: |$|\*([A-Z]+)$))");
  const auto match = number.match(statement.Text);
  const QString factor = match.captured(1);
  const bool isSum = !factor.isEmpty() && !IsKnownWord(factor) && listing.Find(factor) == nullptr;
  if (match.hasMatch() && !isSum) findings.push_back({Mistake::DeadWord, statement.Line, {statement.Text}});
}

/// A comparison on a line of its own, as in ":N=20", changes nothing: it shows a box.
void FindLoneComparison(const Listing& listing, const Statement& statement, Findings& findings) {
  static const QRegularExpression comparison(R"(^(?:[:(\d][^"<>=!]*|([A-Za-z]\w*))[<>=!])");
  const auto match = comparison.match(statement.Text);
  const bool isCall = statement.Known != nullptr || listing.Find(statement.Word()) != nullptr;
  if (match.hasMatch() && !isCall && !IsCommand(match.captured(1)))
    findings.push_back({Mistake::DeadWord, statement.Line, {statement.Text}});
}

/// A minus number that is not the first input of a procedure.
void FindMinusInCall(const Listing& listing, const Statement& statement, Findings& findings) {
  static const QRegularExpression minus(R"(^\S+ .*[\w)] -[\d:.(])");
  const ListedProcedure* const called = listing.Find(statement.Word());
  if (called != nullptr && called->Inputs.size() > 1 && minus.match(statement.Text).hasMatch())
    findings.push_back({Mistake::MinusSecondInput, statement.Line, {statement.Word()}});
}

/// What stands before or after a text. A second statement is reported as such.
void FindTextAndMore(const Listing& listing, const Statement& statement, Findings& findings) {
  static const QRegularExpression more(R"-(^([^"\s].*"[^"]?".*|"[^"]?" ?([^" ]+).*|"[^"]?" ?".*)$)-");
  const auto match = more.match(statement.Rest());
  const QString next = match.captured(2);
  const bool isOther = !next.isEmpty() && (IsCommand(next) || listing.Find(next) != nullptr);
  if (match.hasMatch() && !isOther && statement.Is<inputs::Print, inputs::Message, inputs::Write>())
    findings.push_back({Mistake::TextAndMore, statement.Line, {match.captured(1)}});
}

/// The text of WRITERGB has numbers in it, after a comma.
void FindBareText(const Listing& listing, const Statement& statement, Findings& findings) {
  static const QRegularExpression text(R"-(^"[^"]?"$)-");
  if (statement.Is<"WRITERGB">() && text.match(statement.Rest()).hasMatch() &&
      !listing.AsWritten(statement.Rest()).contains(u','))
    findings.push_back({Mistake::MissingInputs, statement.Line, {statement.Word(), "5", "1"}});
}

/// Whether a SHOW has a value to show, and not the name of a panel or the like.
bool ShowsAValue(const Statement& statement) {
  static const QRegularExpression name("^[A-Za-z]*$");
  const QString what = statement.Rest();
  return statement.Is<"SHOW">() && (!name.match(what).hasMatch() || (IsKnownWord(what) && !IsCommand(what)));
}

/// A word that does nothing, alone or with what follows it.
void FindDeadWord(const Statement& statement, Findings& findings) {
  if (statement.Known == nullptr) return;
  const bool losesInput = statement.Known->Match == MatchedBy::WholeLine && statement.Known->Inputs > 0;
  if (losesInput && statement.Rest().isEmpty()) return;
  if (losesInput && statement.Is<"LW">())
    findings.push_back({Mistake::LongLineWidth, statement.Line, {statement.Rest()}});
  else if (losesInput || IsDead(*statement.Known) || ShowsAValue(statement))
    findings.push_back({Mistake::DeadWord, statement.Line, {statement.Text}});
}

/// A name keeps its value, but only two decimals of it are used.
void FindThirds(const Statement& statement, Findings& findings) {
  static const QRegularExpression division = ExpressionOf(R"(^@ "[A-Z]+ \(?(\d+)/(\d+)\)?$)", IsMake);
  const auto match = division.match(statement.Text);
  if (!match.hasMatch() || match.captured(2).toDouble() == 0) return;
  const double hundredths = 100 * match.captured(1).toDouble() / match.captured(2).toDouble();
  if (hundredths != std::floor(hundredths))
    findings.push_back({Mistake::RoundedThird, statement.Line, {match.captured(1) + u'/' + match.captured(2)}});
}

/// The value of a bracket is written as a text, and that of a large number has an exponent.
void FindLargeProduct(const Statement& statement, Findings& findings) {
  constexpr double firstWithExponent = 1e15;
  static const QRegularExpression product(R"(\((\d+(?:\*\d+)+)\))");
  const auto match = product.match(statement.Text);
  double value = 1;
  for (const QString& factor : match.captured(1).split(u'*')) value *= factor.toDouble();
  if (value >= firstWithExponent) findings.push_back({Mistake::Exponent, statement.Line, {match.captured(1)}});
}

void FindMissingBlank(const Statement& statement, Findings& findings) {
  static const QRegularExpression call(R"(^([A-Z]+)[-+*/%=(])");
  const auto match = call.match(statement.Text);
  if (match.hasMatch() && IsCommand(match.captured(1)))
    findings.push_back({Mistake::NoBlankAfterWord, statement.Line, {match.captured(1)}});
}

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

void FindInStatements(const Listing& listing, Findings& findings) {
  for (const Statement& statement : listing.Statements) {
    // The statements of a body are checked one by one; a remark is reported as an unknown word.
    if (statement.Is<inputs::Repeat>() || statement.IsRemark()) continue;
    FindPatterns(statement, findings);
    FindLoneNumber(listing, statement, findings);
    FindLoneComparison(listing, statement, findings);
    FindMinusInCall(listing, statement, findings);
    FindTextAndMore(listing, statement, findings);
    FindBareText(listing, statement, findings);
    FindDeadWord(statement, findings);
    FindThirds(statement, findings);
    FindLargeProduct(statement, findings);
    FindMissingBlank(statement, findings);
  }
}

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
