#include "classroom/zero_watch.h"

#include <algorithm>
#include <iterator>

#include "base/failure.h"

namespace zerimo::classroom {

ZeroWatch::ZeroWatch(const Interpreter& interpreter, Findings possible)
    : interpreter_(interpreter), possible_(std::move(possible)) {}

void ZeroWatch::Look() {
  const int line = interpreter_.runner.LineNow();
  if (line < 1 || line > Store::LineCount) return;
  std::vector<Suspect>& suspects =
      suspects_[static_cast<std::size_t>(line)].Get(interpreter_.store.Changes(), [&] { return SuspectsOn(line); });
  std::erase_if(suspects, [&](Suspect& suspect) {
    if (!HasVanished(suspect.Name)) return false;
    const bool doesHarm = DoesHarm(suspect.Name, SumsOn(line));
    if (doesHarm) seen_.emplace(line, suspect.Name);
    return doesHarm || --suspect.LooksLeft == 0;
  });
}

std::vector<ZeroWatch::Suspect> ZeroWatch::SuspectsOn(int line) const {
  std::vector<Suspect> suspects;
  for (const QString& name : NamesThatMayNotVanish(SumsOn(line))) suspects.push_back({name});
  return suspects;
}

QStringList ZeroWatch::SumsOn(int line) const {
  static const QRegularExpression comparison("[<>=!]+");
  Statement statement;
  statement.Text = QString::fromStdString(interpreter_.store.Line(line)).simplified();
  return statement.Inputs().join(u'=').split(comparison);
}

/// A name for everybody vanishes if it is 0, an input if it was given such a name.
bool ZeroWatch::HasVanished(const QString& name) const {
  const Variables& variables = interpreter_.variables;
  const Formula* const formula = variables.Known().Of(variables.Known(name.toStdString()));
  const Operand* const operand = formula == nullptr ? nullptr : formula->OnlyOperand();
  if (operand == nullptr) return false;
  return operand->What == Operand::Kind::Local ? variables.Slot(operand->Index).ends_with('=')
                                               : variables.TextOf(*operand) == "";
}

bool ZeroWatch::DoesHarm(const QString& name, const QStringList& sums) const {
  const QRegularExpression vanished(QRegularExpression::escape(name) + "(?![A-Za-z_])");
  return std::ranges::any_of(sums, [&](const QString& sum) {
    return NamesThatMayNotVanish({sum}).contains(name) && ValueOf(sum) != ValueOf(QString(sum).replace(vanished, "0"));
  });
}

/// As a line would work it out, or nothing if that fails.
std::optional<double> ZeroWatch::ValueOf(const QString& sum) const {
  std::string text = sum.toStdString();
  std::optional<double> value;
  SkipOnFailure([&] {
    text = interpreter_.variables.ReplaceXcorAndYcor(text);
    text = interpreter_.variables.VarValReplacer(text);
    text = interpreter_.variables.GlobalVariableReplacer(text);
    value = interpreter_.arithmetic.ArithmeticEvaluator(text);
  });
  return value;
}

Findings ZeroWatch::Found(const ProgramSource& source) const {
  Findings found;
  std::ranges::copy_if(possible_, std::back_inserter(found), [&](const Finding& finding) {
    return std::ranges::any_of(seen_, [&](const auto& seen) {
      return source.LineOf(seen.first) == finding.Line && seen.second == finding.Details.first();
    });
  });
  return found;
}

}  // namespace zerimo::classroom
