#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "interpreter/relations.h"
#include "interpreter/slot_forms.h"

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
  bool IsPasted() const noexcept { return IsName() || What == Kind::XCor || What == Kind::YCor; }

  Kind What = Kind::Nothing;
  double Number = 0;
  /// The slot, or the number of the brackets.
  int Index = 0;
};

class Operands;

/// An expression whose passes are done once and for all: the operations on numbers that remain if every pasted text is
/// a plain number. Anything else, and whatever fails, has no value here and is evaluated literally. It is valid as long
/// as the slots exist, since it reads values where they are kept.
/// Behaviour: docs/interpreter.md, "Beside an expression".
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
    /// Whether literal evaluation goes on as usual if its only factor leaves nothing in the text.
    bool MayVanish = true;
    /// Its value with its sign, if that can be worked out once and for all.
    double Known = NoNumber;
    /// Where the value of its only factor is kept, if that is a name and may vanish; otherwise null.
    const double* Place = nullptr;

    bool IsPlain() const noexcept { return IsNumber(Known) || Place != nullptr; }
  };
  using Sum = std::vector<Term>;
  /// One side of a condition, or all of an expression: the whole, and the contents of its brackets, innermost first.
  struct Side {
    Sum Whole;
    std::vector<Sum> Brackets;
    /// Its value, if that can be worked out once and for all.
    double Known = NoNumber;
    /// Whether it is a sum of plain terms.
    bool IsPlain = false;
  };

  Side Left;
  /// How the sides are compared; nothing if there is only one.
  std::optional<Comparison> Compare;
  Side Right;

  /// Works out once and for all the terms and sides that hold no names, and where the values of the others are kept.
  void Prepare(const Operands& operands);

  /// The value of an expression, or no number.
  double Value(const Operands& operands) const;

  /// Whether a condition holds; nothing if a side has no value.
  std::optional<bool> Holds(const Operands& operands) const;

  /// The operand if the expression is nothing else, otherwise null.
  const Operand* OnlyOperand() const noexcept;
};

}  // namespace zerimo
