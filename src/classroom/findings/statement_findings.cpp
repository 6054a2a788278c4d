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
};

/// The greatest number of units that 16 bits hold, in steps of 50.
constexpr double GreatestStep = 655;
constexpr double GreatestNumber = 32767;

using enum Action;

constexpr std::array Patterns = {
    Pattern{Mistake::MinusInput, "^(?!@ )([A-Z]+) -\\s*[\\d:.(A-Z]",
            IsOneOf<StmtIf, StmtMake, inputs::Print, inputs::Message, inputs::Write>},
    Pattern{Mistake::MinusSecondInput, "^(@) [^\"]*[\\w)] -[\\d:.(]", TakesNumbers},
    Pattern{Mistake::MinusMake, "^@ \"?:?([A-Z]+) -", IsMake},
    Pattern{Mistake::DoubleMinus, "(\\S*--\\S*)"},
    Pattern{Mistake::PercentAfterTimes, "([\\w):.]*\\w\\*[\\w:.]+%\\S*)"},
    Pattern{Mistake::MissingTimes, "([\\d)]+\\(\\S*)"},
    Pattern{Mistake::BarePoint, " (\\.\\d+)"},
    Pattern{Mistake::BlankBeforeEquals, "^@ [^\"]* (=)", IsIf},
    Pattern{Mistake::Exponent, "(?:^|[^\\w:\"])(\\d+E[+-]?\\d+)"},
    Pattern{Mistake::HalfNumber, "^& (\\d+\\.\\d+)$",
            IsOneOf<SetPC, SetBG, Fill, FillStyle, FloodFill, LineWidth, Wait, DrawMode, TextSize>},
    Pattern{Mistake::WholeStep, "^& (\\(?-?\\d+\\.\\d+\\)?)$", IsOneOf<Circle, SetXY, Dot, Line>},
    Pattern{Mistake::DivisionByZero, "(\\S*/0(?![\\d.])\\S*)"},
    Pattern{Mistake::TooLarge, "^& \\(?-?(\\d+)\\)?$", IsOneOf<SetXY, Dot, SetY>, GreatestStep},
    Pattern{Mistake::TooLarge, "^& (\\d+)$",
            IsOneOf<Sum, Product, Quotient, Remainder, LineWidth, Wait, SetPC, SetBG, Fill>, GreatestNumber},
    Pattern{Mistake::DigitInName, "(:[A-Z]+\\d+)"},
    Pattern{Mistake::DigitInName, "^@ \"([A-Z]+\\d+)", IsMake},
    Pattern{Mistake::MakeWithoutQuote, "^@ ([A-Z]+)\\b", IsMake},
    Pattern{Mistake::WrongSign, "^@ [^\"]*(==|<>|><|=<|=>|!==)", IsIf},
    Pattern{Mistake::TwoComparisons, "^@ ([^\" ]*[<>=!]=?[^<>=!\" ]+[<>!][^\" ]*)", IsIf},
    Pattern{Mistake::LogicWord, "^@ [^\"]*\\b(AND|OR|NOT)\\b", IsIf},
    Pattern{Mistake::ColourCode, "^& (1[6-9]|[2-9]\\d|\\d{3,}|\\(-\\d+\\))$",
            IsOneOf<SetPC, SetBG, Fill, FloodFill, TextColor>},
    Pattern{Mistake::OpenQuote, "^@ (\"[^\"]+)$", IsOneOf<Print, Message, Write>},
    Pattern{Mistake::OpenSum, "^(@\\b[^)]*)$", IsOneOf<BracketSum, BracketProduct>},
    Pattern{Mistake::ElseWithMore, "^@ (\\S.*)", IsOneOf<StmtElse>},
};

std::vector<QRegularExpression> Compiled() {
  std::vector<QRegularExpression> all;
  for (const Pattern& each : Patterns) all.push_back(ExpressionOf(QString::fromLatin1(each.Text), each.Words));
  return all;
}

void FindPatterns(const Statement& statement, Findings& findings) {
  static const std::vector<QRegularExpression> compiled = Compiled();
  for (std::size_t i = 0; i < compiled.size(); ++i) {
    const auto match = compiled[i].match(statement.Text);
    if (match.hasMatch() && (Patterns[i].Greatest < 0 || match.captured(1).toDouble() > Patterns[i].Greatest))
      findings.push_back({Patterns[i].What, statement.Line, {match.captured(1)}});
  }
}

/// A word that does nothing, alone or with what follows it.
void FindDeadWord(const Statement& statement, Findings& findings) {
  if (statement.Known == nullptr) return;
  const bool losesInput = statement.Known->Match == MatchedBy::WholeLine && statement.Known->Inputs > 0;
  if (losesInput && statement.Rest().isEmpty()) return;
  if (losesInput && statement.Is<LineWidth>())
    findings.push_back({Mistake::LongLineWidth, statement.Line, {statement.Rest()}});
  else if (losesInput || IsDead(*statement.Known))
    findings.push_back({Mistake::DeadWord, statement.Line, {statement.Text}});
}

/// A name keeps its value, but only two decimals of it are used.
void FindThirds(const Statement& statement, Findings& findings) {
  static const QRegularExpression division = ExpressionOf("^@ \"[A-Z]+ \\(?(\\d+)/(\\d+)\\)?$", IsMake);
  const auto match = division.match(statement.Text);
  if (!match.hasMatch() || match.captured(2).toDouble() == 0) return;
  const double hundredths = 100 * match.captured(1).toDouble() / match.captured(2).toDouble();
  if (hundredths != std::floor(hundredths))
    findings.push_back({Mistake::RoundedThird, statement.Line, {match.captured(1) + u'/' + match.captured(2)}});
}

void FindMissingBlank(const Statement& statement, Findings& findings) {
  static const QRegularExpression call("^([A-Z]+)\\(");
  const auto match = call.match(statement.Text);
  if (match.hasMatch() && IsKnownWord(match.captured(1)))
    findings.push_back({Mistake::NoBlankAfterWord, statement.Line, {match.captured(1)}});
}

}  // namespace

void FindInStatements(const Listing& listing, Findings& findings) {
  for (const Statement& statement : listing.Statements) {
    // The statements of a body are checked one by one.
    if (statement.Is<inputs::Repeat>()) continue;
    FindPatterns(statement, findings);
    FindDeadWord(statement, findings);
    FindThirds(statement, findings);
    FindMissingBlank(statement, findings);
  }
}

}  // namespace zerimo::classroom
