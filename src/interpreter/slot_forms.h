#pragma once

#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "base/numbers.h"
#include "interpreter/since_change.h"

namespace zerimo {

/// Stands for a value that is not known; no evaluation gives it.
inline constexpr double NoNumber = std::numeric_limits<double>::quiet_NaN();
inline bool IsNumber(double value) { return !std::isnan(value); }

/// A number whose text is pasted with all its digits and no exponent, or no number. A minus zero becomes a zero.
inline double PlainOrNone(double number) {
  constexpr double plainBelow = 1E13;
  return std::abs(number) < plainBelow ? number + 0.0 : NoNumber;
}

/// What is derived from the text of a variable slot.
/// Behaviour: docs/interpreter.md, "Beside a variable slot".
struct SlotForm {
  SlotForm() = default;
  explicit SlotForm(std::string_view slot);

  /// The length of the name with its "=", or 0 if there is none.
  std::size_t KeyLength = 0;
  /// The value, if its text is nothing but digits, a point and a minus sign.
  double Number = NoNumber;
  /// The same as it is pasted for a global: rounded to two decimals.
  double Pasted = NoNumber;
};

/// The texts of all variable slots, numbered from 1, and what is derived from each. A number that takes the place of a
/// value is written as text when that is read.
class SlotTable {
 public:
  static constexpr int SlotCount = 500;

  /// Fails (subscript) outside 1 to 500.
  const std::string& Text(int number) const;
  /// Fails (subscript) outside 1 to 500.
  void SetText(int number, std::string text);
  /// Replaces the value of a slot that has one; for slots 1 to 500.
  void SetNumber(int number, double value) {
    const double plain = PlainOrNone(value);
    if (!IsNumber(plain) || !IsWhole(plain)) return WriteNumber(number, value);
    Slot& slot = slots_[static_cast<std::size_t>(number - 1)];
    slot.Form.Number = slot.Form.Pasted = plain;
    slot.IsWritten = false;
  }

  /// For slots 1 to 500.
  const SlotForm& FormOf(int number) const noexcept { return slots_[static_cast<std::size_t>(number - 1)].Form; }

 private:
  struct Slot {
    std::string Text;
    SlotForm Form;
    bool IsWritten = true;
  };
  Slot& At(int number) const;
  void WriteNumber(int number, double value);

  mutable std::array<Slot, SlotCount> slots_;
};

/// The part of a slot's text that decides which searches find it: all of it, or, if its value is a number, the text up
/// to the "=".
std::string_view NamePart(std::string_view slot) noexcept;

/// The state of the names in all slots, as a number: throughout one run of the system, equal numbers mean the same
/// names in the same slots.
class NameStates {
 public:
  std::uint64_t Now() const noexcept { return now_; }

  /// A slot, counted from 0, gets another name part.
  void Change(std::size_t slot, std::string_view name);

 private:
  /// Names have numbers too, the empty one 0.
  using Names = std::vector<std::uint32_t>;

  std::uint32_t NumberOf(std::string_view name);
  std::uint64_t StateOf(Names names);

  std::uint64_t now_ = 1;
  std::uint64_t lastState_ = 1;
  std::uint32_t lastName_ = 0;
  Names slots_;
  TextMap<std::uint32_t> names_;
  std::map<Names, std::uint64_t> states_{{{}, 1}};
  /// The states to which known changes of known states lead.
  std::unordered_map<std::uint64_t, std::uint64_t> next_;
};

}  // namespace zerimo
