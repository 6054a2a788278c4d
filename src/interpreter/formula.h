#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace zerimo {

/// One operand of an expression, before its names are replaced.
struct Operand {
  enum class Kind : std::uint8_t {
    /// A number of the text itself.
    Constant,
    /// The local in a slot: its text is pasted as it is.
    Local,
    /// The global in a slot: rounded to two decimals, and gone if that is 0.
    Global,
    XCor,
    YCor,
    /// The value of a pair of brackets.
    Bracket,
    /// There is nothing before the sign.
    Nothing,
  };
  bool IsName() const noexcept { return What == Kind::Local || What == Kind::Global; }

  Kind What = Kind::Nothing;
  double Number = 0;
  /// The slot, or the number of the brackets.
  int Index = 0;
};

/// Gives formulas the values that are pasted into them.
class OperandSource {
 public:
  virtual ~OperandSource() = default;
  /// The value of a local, a global or a coordinate, if its text is nothing but digits, a point and a minus sign.
  virtual std::optional<double> NumberOf(const Operand& operand) const = 0;
};

/// An expression whose passes are done once and for all: the operations on numbers that remain if every pasted text is
/// a plain number. Anything else, and whatever fails, has no value here and is evaluated literally.
class Formula {
 public:
  static constexpr int MostFactors = 24;

  /// One operation inside a term, in the order of the passes. The result goes to the left place.
  struct Step {
    char Operator;
    std::uint8_t Left;
    std::uint8_t Right;
  };
  /// Factors with "%", "/", "*" between them.
  struct Term {
    char Sign = '+';
    std::vector<Operand> Factors;
    std::vector<Step> Steps;
  };
  using Sum = std::vector<Term>;
  /// One side of a condition, or all of an expression: the contents of its brackets, innermost first, then the whole.
  using Side = std::vector<Sum>;

  Side Left;
  /// The comparison, or empty if there is none.
  std::string_view Comparison;
  Side Right;

  /// The value of an expression.
  std::optional<double> Value(const OperandSource& source) const;

  /// Whether a condition holds.
  std::optional<bool> Holds(const OperandSource& source) const;

  /// The operand if the expression is nothing else, otherwise null.
  const Operand* OnlyOperand() const noexcept;
};

}  // namespace zerimo
