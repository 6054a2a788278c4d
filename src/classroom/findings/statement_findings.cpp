#include <QRegularExpression>
#include <array>
#include <cmath>

#include "classroom/findings/findings.h"
#include "classroom/findings/known_words.h"

namespace zerimo::classroom {

namespace {

/// A mistake that the text of one statement shows. The reader is told the text of the pattern's first group.
struct Pattern {
  Mistake What;
  const char* Text;
};

constexpr std::array Patterns = {
    Pattern{Mistake::MinusInput, "^(?!IF |MAKE |PRINT |MESSAGE |WRITE|WRITERGB )([A-Z]+) -\\s*[\\d:.(A-Z]"},
    Pattern{Mistake::MinusSecondInput,
            "^(SETXY|DOT|POINT|LINE|CIRCLE|ELLIPSE|STAMPOVAL|STAMPRECT|LINERGB|ELLIPSERGB) [^\"]*[\\w)] -[\\d:.(]"},
    Pattern{Mistake::MinusMake, "^MAKE \"?:?([A-Z]+) -"},
    Pattern{Mistake::DoubleMinus, "(\\S*--\\S*)"},
    Pattern{Mistake::PercentAfterTimes, "([\\w):.]*\\w\\*[\\w:.]+%\\S*)"},
    Pattern{Mistake::MissingTimes, "([\\d)]+\\(\\S*)"},
    Pattern{Mistake::BarePoint, " (\\.\\d+)"},
    Pattern{Mistake::BlankBeforeEquals, "^IF [^\"]* (=)"},
    Pattern{Mistake::Exponent, "(?:^|[^\\w:\"])(\\d+E[+-]?\\d+)"},
    Pattern{Mistake::HalfNumber, "^(?:SETPC|SETBG|FILL|FILLSTYLE|FLOODFILL|LW|WAIT|DRAWMODE|TEXTSIZE) (\\d+\\.\\d+)$"},
    Pattern{Mistake::WholeStep,
            "^(?:CIRCLE \\S+ \\S+|SETXY \\S+|DOT \\S+|LINE \\S+ \\S+ \\S+) (\\(?-?\\d+\\.\\d+\\)?)$"},
    Pattern{Mistake::DivisionByZero, "(\\S*/0(?![\\d.])\\S*)"},
    Pattern{Mistake::DigitInName, "(:[A-Z]+\\d+)"},
    Pattern{Mistake::DigitInName, "^MAKE \"([A-Z]+\\d+)"},
    Pattern{Mistake::MakeWithoutQuote, "^MAKE ([A-Z]+)\\b"},
    Pattern{Mistake::WrongSign, "^IF [^\"]*(==|<>|><|=<|=>|!==)"},
    Pattern{Mistake::TwoComparisons, "^IF ([^\" ]*[<>=!]=?[^<>=!\" ]+[<>!][^\" ]*)"},
    Pattern{Mistake::LogicWord, "^IF [^\"]*\\b(AND|OR|NOT)\\b"},
    Pattern{Mistake::LongLineWidth, "^LINEWIDTH (\\S.*)"},
    Pattern{Mistake::ColourCode, "^(?:SETPC|SETBG|FILL|FLOODFILL|TEXTCOLOR) (1[6-9]|[2-9]\\d|\\d{3,}|\\(-\\d+\\))$"},
    Pattern{Mistake::OpenQuote, "^(?:PRINT|MESSAGE|WRITE) (\"[^\"]+)$"},
    Pattern{Mistake::OpenSum, "^(\\((?:SUM|PRODUCT)\\b[^)]*)$"},
    Pattern{Mistake::DeadWord, "^(GETX|GETY|FULLSCREEN|SPLITSCREEN|TEXTSCREEN|CLEARTEXT|SAVE|SAVE \\S.*|SOUND \\S.*)$"},
    Pattern{Mistake::ElseWithMore, "^ELSE (\\S.*)"},
};

/// Numbers from which on these words do nothing: a step counts 50 units, and 16 bits hold 32767.
struct Bound {
  const char* Text;
  double Greatest;
};

constexpr std::array Bounds = {
    Bound{"^(?:SETXY \\S+|DOT \\S+|SETY) \\(?-?(\\d+)\\)?$", 655},
    Bound{"^(?:SUM|PRODUCT|QUOTIENT|REMAINDER) \\S+ (\\d+)$", 32767},
    Bound{"^(?:LW|WAIT|SETPC|SETBG|FILL) (\\d+)$", 32767},
};

std::vector<QRegularExpression> Compiled() {
  std::vector<QRegularExpression> all;
  for (const Pattern& each : Patterns) all.emplace_back(QString::fromLatin1(each.Text));
  return all;
}

void FindLargeNumbers(const Statement& statement, Findings& findings) {
  for (const Bound& bound : Bounds) {
    const auto match = QRegularExpression(QString::fromLatin1(bound.Text)).match(statement.Text);
    if (match.hasMatch() && match.captured(1).toDouble() > bound.Greatest)
      findings.push_back({Mistake::TooLarge, statement.Line, {match.captured(1)}});
  }
}

/// A name keeps its value, but only two decimals of it are used.
void FindThirds(const Statement& statement, Findings& findings) {
  static const QRegularExpression division("^MAKE \"[A-Z]+ \\(?(\\d+)/(\\d+)\\)?$");
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
  static const std::vector<QRegularExpression> compiled = Compiled();
  for (const Statement& statement : listing.Statements) {
    // The statements of a body are checked one by one.
    if (statement.Word() == "REPEAT") continue;
    for (std::size_t i = 0; i < compiled.size(); ++i) {
      const auto match = compiled[i].match(statement.Text);
      if (match.hasMatch()) findings.push_back({Patterns[i].What, statement.Line, {match.captured(1)}});
    }
    FindLargeNumbers(statement, findings);
    FindThirds(statement, findings);
    FindMissingBlank(statement, findings);
  }
}

}  // namespace zerimo::classroom
