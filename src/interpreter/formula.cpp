#include "interpreter/formula.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/numbers.h"
#include "interpreter/operands.h"

namespace zerimo {

namespace {

/// A number beyond these has, or may have, an exponent in its text.
constexpr double PlainBelow = 1E14;
constexpr double PlainFrom = 0.001;
/// The 15 digits of a larger number may be too large to be read.
constexpr double ReadableBelow = 1E308;

bool IsPlain(double number) {
  const double size = std::abs(number);
  return size < PlainBelow && (size >= PlainFrom || size == 0);
}

/// A number after it has been written as text and read back.
double ThroughText(double number) {
  // Added to 0, so that no minus zero is left.
  if (std::abs(number) < PlainBelow && IsWhole(number)) return number + 0.0;
  return Val(Str(number));
}

double Remainder(double left, double right) {
  constexpr double wholeBelow = 2147483647;
  const double dividend = std::floor(left);
  const double divisor = std::floor(right);
  if (!(std::abs(dividend) < wholeBelow && std::abs(divisor) < wholeBelow) || divisor == 0) return NoNumber;
  return static_cast<double>(static_cast<std::int64_t>(dividend) % static_cast<std::int64_t>(divisor));
}

double Perform(char op, double left, double right) {
  if (op == '%') return Remainder(left, right);
  if (op == '/' && right == 0) return NoNumber;
  const double result = op == '/' ? left / right : left * right;
  return std::abs(result) < ReadableBelow ? ThroughText(result) : NoNumber;
}

double Signed(const Formula::Term& term, double value, bool followsSign) noexcept {
  if (term.Sign == '+') return value;
  // A minus sign that is pasted after this one replaces it.
  return -(followsSign ? std::abs(value) : value);
}

double OfPlain(const Formula::Term& term, bool followsSign) noexcept {
  return IsNumber(term.Known) ? term.Known : Signed(term, *term.Place, followsSign);
}

/// The sum of the terms, each given with its sign by a function that is also told whether it follows a sign.
template <typename ValueOf>
double Total(const Formula::Sum& sum, const ValueOf& valueOf) {
  double total = 0;
  bool followsSign = false;
  for (const Formula::Term& term : sum) {
    total += valueOf(term, followsSign);
    followsSign = true;
  }
  return std::isfinite(total) ? total : NoNumber;
}

/// Works out one side of a condition, or an expression, with terms that are not plain.
class Evaluation {
 public:
  explicit Evaluation(const Operands& operands) : operands_(operands) {}

  double Of(const Formula::Side& side) {
    for (std::size_t number = 0; number < side.Brackets.size(); ++number) {
      // A bracket's value is pasted as text.
      const double value = Of(side.Brackets[number]);
      if (!IsNumber(value)) return NoNumber;
      brackets_[number] = ThroughText(value);
      if (!IsPlain(brackets_[number])) return NoNumber;
    }
    return Of(side.Whole);
  }

 private:
  using Numbers = std::array<double, Formula::MostFactors>;

  double Of(const Formula::Sum& sum) const {
    return Total(sum, [this](const Formula::Term& term, bool followsSign) {
      return term.IsPlain() ? OfPlain(term, followsSign) : Of(term, followsSign);
    });
  }

  double Of(const Formula::Term& term, bool followsSign) const {
    if (term.Factors.size() > 1) return OfProduct(term, followsSign);
    const double value = NumberOf(term.Factors.front());
    if (HasVanished(term.Factors.front(), value)) return term.MayVanish ? 0 : NoNumber;
    return Signed(term, value, followsSign);
  }

  double OfProduct(const Formula::Term& term, bool followsSign) const {
    Numbers factors;
    if (!ReadFactors(term, factors)) return NoNumber;
    const bool subtracts = Subtracts(term, factors[0], followsSign);
    if (followsSign) factors[0] = std::abs(factors[0]);
    for (const Formula::Step& step : term.Steps) {
      factors[step.Left] = Perform(step.Operator, factors[step.Left], factors[step.Right]);
      if (!IsNumber(factors[step.Left])) return NoNumber;
    }
    return subtracts ? -factors[0] : factors[0];
  }

  /// Whether all factors are numbers that leave something in the text.
  bool ReadFactors(const Formula::Term& term, Numbers& factors) const {
    for (std::size_t at = 0; at < term.Factors.size(); ++at) {
      factors[at] = NumberOf(term.Factors[at]);
      if (!IsNumber(factors[at]) || HasVanished(term.Factors[at], factors[at])) return false;
    }
    return true;
  }

  /// A minus sign that is pasted after another sign is the one that counts.
  static bool Subtracts(const Formula::Term& term, double first, bool followsSign) noexcept {
    return term.Sign == '-' || (followsSign && first < 0);
  }

  static bool HasVanished(const Operand& operand, double value) noexcept {
    return operand.What == Operand::Kind::Nothing || (operand.What == Operand::Kind::Global && value == 0);
  }

  double NumberOf(const Operand& operand) const {
    switch (operand.What) {
      case Operand::Kind::Constant:
        return operand.Number;
      case Operand::Kind::Nothing:
        return 0;
      case Operand::Kind::Bracket:
        return brackets_[static_cast<std::size_t>(operand.Index)];
      default:
        return operands_.NumberOf(operand);
    }
  }

  const Operands& operands_;
  /// The values of the brackets that are worked out so far; the others have none.
  Numbers brackets_;
};

[[gnu::noinline]] double ValueOfOther(const Formula::Side& side, const Operands& operands) {
  return Evaluation(operands).Of(side);
}

/// Most sides are sums of plain terms: they need no more than a loop, and no room for anything else.
double ValueOf(const Formula::Side& side, const Operands& operands) {
  if (IsNumber(side.Known)) return side.Known;
  return side.IsPlain ? Total(side.Whole, OfPlain) : ValueOfOther(side, operands);
}

bool IsConstant(const Formula::Term& term) {
  return std::ranges::none_of(term.Factors, [](const Operand& operand) { return operand.IsPasted(); });
}

/// Brackets are worked out with their side.
bool IsNumbersOnly(const Formula::Term& term) {
  return std::ranges::all_of(term.Factors,
                             [](const Operand& operand) { return operand.What == Operand::Kind::Constant; });
}

bool IsConstant(const Formula::Sum& sum) {
  return std::ranges::all_of(sum, [](const Formula::Term& term) { return IsConstant(term); });
}

bool IsConstant(const Formula::Side& side) {
  return !side.Whole.empty() && IsConstant(side.Whole) &&
         std::ranges::all_of(side.Brackets, [](const Formula::Sum& sum) { return IsConstant(sum); });
}

void PrepareSum(Formula::Sum& sum, const Operands& operands) {
  // The sign after a first term that has vanished would stick to the next number and not to the next term.
  if (sum.size() > 1 && sum[1].Factors.size() > 1) sum[0].MayVanish = false;
  for (Formula::Term& term : sum) {
    if (IsNumbersOnly(term)) {
      term.Known = ValueOf(Formula::Side{{term}, {}}, operands);
    } else if (term.Factors.size() == 1 && term.MayVanish) {
      term.Place = operands.PlaceOf(term.Factors.front());
    }
  }
}

}  // namespace

void Formula::Prepare(const Operands& operands) {
  for (Side* const side : {&Left, &Right}) {
    for (Sum& sum : side->Brackets) PrepareSum(sum, operands);
    PrepareSum(side->Whole, operands);
    if (IsConstant(*side)) side->Known = ValueOf(*side, operands);
    side->IsPlain =
        side->Brackets.empty() && std::ranges::all_of(side->Whole, [](const Term& term) { return term.IsPlain(); });
  }
}

double Formula::Value(const Operands& operands) const { return Compare ? NoNumber : ValueOf(Left, operands); }

std::optional<bool> Formula::Holds(const Operands& operands) const {
  const double left = ValueOf(Left, operands);
  if (!IsNumber(left)) return std::nullopt;
  if (!Compare) return left != 0;
  const double right = ValueOf(Right, operands);
  if (!IsNumber(right)) return std::nullopt;
  return zerimo::Holds(*Compare, left, right);
}

const Operand* Formula::OnlyOperand() const noexcept {
  const bool isOne = !Compare && Left.Brackets.empty() && Left.Whole.size() == 1 && Left.Whole[0].Factors.size() == 1;
  return isOne ? &Left.Whole[0].Factors[0] : nullptr;
}

}  // namespace zerimo
