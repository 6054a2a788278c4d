#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "interpreter/since_change.h"

namespace zerimo {

/// What is derived from the text of a variable slot.
struct SlotForm {
  SlotForm() = default;
  explicit SlotForm(std::string_view slot);

  /// The length of the name with its "=", or 0 if there is none.
  std::size_t KeyLength = 0;
  /// The value, if its text is nothing but digits, a point and a minus sign.
  std::optional<double> Number;
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
