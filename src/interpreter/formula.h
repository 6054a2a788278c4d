#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace zerimo {

/// What stands at a place of an expression before its names are replaced.
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
    /// Nothing stands in front of the sign.
    Nothing,
  };
  bool IsName() const { return What == Kind::Local || What == Kind::Global; }

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

/// An expression whose passes were done once: the operations over numbers that are left when every pasted text is a
/// plain number. What is not of that form, and what fails, has no value here and takes the literal road.
class Formula {
 public:
  static constexpr int MostFactors = 24;

  /// One operation inside a term, in the order of the passes. The result takes the left place.
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

  /// The operand, if the expression is nothing else.
  const Operand* OnlyOperand() const;
};

}  // namespace zerimo
