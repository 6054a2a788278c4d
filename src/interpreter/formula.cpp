#include "interpreter/formula.h"

#include <array>
#include <cmath>

#include "base/numbers.h"
#include "interpreter/relations.h"

namespace zerimo {

namespace {

/// A number beyond these has, or may have, an exponent in its text.
constexpr double PlainBelow = 1E14;
constexpr double PlainFrom = 0.001;

bool IsPlain(double number) {
  const double size = std::abs(number);
  return size < PlainBelow && (size >= PlainFrom || size == 0);
}

/// A number after it has been written as text and read back.
double ThroughText(double number) {
  // Added to 0, so that no minus zero is left.
  if (std::abs(number) < PlainBelow && number == std::trunc(number)) return number + 0.0;
  return Val(Str(number));
}

std::optional<double> Remainder(double left, double right) {
  constexpr double wholeBelow = 2147483647;
  const double dividend = std::floor(left);
  const double divisor = std::floor(right);
  if (!(std::abs(dividend) < wholeBelow && std::abs(divisor) < wholeBelow) || divisor == 0) return std::nullopt;
  return static_cast<double>(static_cast<std::int64_t>(dividend) % static_cast<std::int64_t>(divisor));
}

std::optional<double> Perform(char op, double left, double right) {
  if (op == '%') return Remainder(left, right);
  if (op == '/' && right == 0) return std::nullopt;
  const double result = op == '/' ? left / right : left * right;
  if (!std::isfinite(result)) return std::nullopt;
  return ThroughText(result);
}

/// Works out one side of a condition, or an expression.
class Evaluation {
 public:
  explicit Evaluation(const OperandSource& source) : source_(source) {}

  std::optional<double> Of(const Formula::Side& side) {
    std::optional<double> value;
    for (std::size_t number = 0; number < side.size(); ++number) {
      value = Of(side[number]);
      if (!value) return std::nullopt;
      if (number + 1 == side.size()) break;
      // A bracket's value is pasted as text.
      brackets_[number] = ThroughText(*value);
      if (!IsPlain(brackets_[number])) return std::nullopt;
    }
    return value;
  }

 private:
  std::optional<double> Of(const Formula::Sum& sum) {
    double total = 0;
    for (std::size_t at = 0; at < sum.size(); ++at) {
      const Formula::Term& term = sum[at];
      bool subtracts = term.Sign == '-';
      if (!ReadFactors(term)) return std::nullopt;
      if (vanished_) {
        // The sign after it would stick to the next number and not to the next term.
        const bool heads = at == 0 && sum.size() > 1 && sum[1].Factors.size() > 1;
        if (term.Factors.size() > 1 || heads) return std::nullopt;
        continue;
      }
      // A minus sign that is pasted after another sign is the one that counts.
      if (at > 0 && factors_[0] < 0) {
        subtracts = true;
        factors_[0] = -factors_[0];
      }
      for (const Formula::Step& step : term.Steps) {
        const auto result = Perform(step.Operator, factors_[step.Left], factors_[step.Right]);
        if (!result) return std::nullopt;
        factors_[step.Left] = *result;
      }
      total = subtracts ? total - factors_[0] : total + factors_[0];
      if (!std::isfinite(total)) return std::nullopt;
    }
    return total;
  }

  bool ReadFactors(const Formula::Term& term) {
    vanished_ = false;
    for (std::size_t at = 0; at < term.Factors.size(); ++at) {
      const Operand& operand = term.Factors[at];
      const std::optional<double> number = NumberOf(operand);
      if (!number) return false;
      const bool leavesNothing =
          operand.What == Operand::Kind::Nothing || (operand.What == Operand::Kind::Global && *number == 0);
      vanished_ = vanished_ || leavesNothing;
      factors_[at] = *number;
    }
    return true;
  }

  std::optional<double> NumberOf(const Operand& operand) const {
    switch (operand.What) {
      case Operand::Kind::Constant:
        return operand.Number;
      case Operand::Kind::Nothing:
        return 0;
      case Operand::Kind::Bracket:
        return brackets_[static_cast<std::size_t>(operand.Index)];
      default:
        return source_.NumberOf(operand);
    }
  }

  const OperandSource& source_;
  std::array<double, Formula::MostFactors> factors_;
  std::array<double, Formula::MostFactors> brackets_;
  /// Whether a factor of the term has vanished from the text.
  bool vanished_ = false;
};

}  // namespace

std::optional<double> Formula::Value(const OperandSource& source) const {
  if (!Comparison.empty()) return std::nullopt;
  return Evaluation(source).Of(Left);
}

std::optional<bool> Formula::Holds(const OperandSource& source) const {
  const auto left = Evaluation(source).Of(Left);
  if (!left) return std::nullopt;
  if (Comparison.empty()) return *left != 0;
  const auto right = Evaluation(source).Of(Right);
  if (!right) return std::nullopt;
  return Compare(*left, Comparison, *right);
}

const Operand* Formula::OnlyOperand() const noexcept {
  const bool isOne = Comparison.empty() && Left.size() == 1 && Left[0].size() == 1 && Left[0][0].Factors.size() == 1;
  return isOne ? &Left[0][0].Factors[0] : nullptr;
}

}  // namespace zerimo
