/// Sums, conditions and the filter of typed text, beside their literal versions.

#include <bit>
#include <cstdint>
#include <optional>
#include <string>

#include "base/failure.h"
#include "base/numbers.h"
#include "fuzz.h"
#include "interpreter/arithmetic.h"
#include "interpreter/line_entry.h"
#include "interpreter/lowering.h"
#include "interpreter/relations.h"
#include "reference/interpreter/arithmetic.h"
#include "reference/interpreter/line_entry.h"
#include "reference/interpreter/relations.h"
#include "support/limited_watch.h"

namespace zerimo::fuzz {

namespace {

constexpr int MostTicks = 2000;

/// What came of a call: the value, or the kind of its failure, and what became of the caller's text.
struct Result {
  std::optional<FailureKind> Failed;
  std::uint64_t Bits = 0;
  std::string Text;
  bool operator==(const Result&) const = default;
};

std::uint64_t BitsOf(double value) { return std::bit_cast<std::uint64_t>(value); }
std::uint64_t BitsOf(bool value) { return value ? 1 : 0; }
std::uint64_t BitsOf(const std::string& value) { return std::hash<std::string>{}(value); }

/// Nothing if the call did not come to its end.
template <typename Call>
std::optional<Result> ResultOf(std::string_view input, Call&& call) {
  Result result{{}, 0, std::string(input)};
  try {
    result.Bits = BitsOf(call(result.Text));
  } catch (const Failure& failure) {
    result.Failed = failure.Kind;
  } catch (const Stopped&) {
    return std::nullopt;
  }
  return result;
}

template <typename Call, typename OtherCall>
void Compare(std::string_view input, Call&& call, OtherCall&& other) {
  const std::optional<Result> one = ResultOf(input, call);
  const std::optional<Result> another = ResultOf(input, other);
  if (one && another) Require(*one == *another);
}

void CompareSums(std::string_view input) {
  LimitedWatch watch(MostTicks, MostTicks);
  LimitedWatch otherWatch(MostTicks, MostTicks);
  const Arithmetic arithmetic(watch);
  const reference::Arithmetic other(otherWatch);
  Compare(
      input, [&](std::string& text) { return arithmetic.ArithmeticEvaluator(text); },
      [&](std::string& text) { return other.ArithmeticEvaluator(text); });
}

void CompareConditions(std::string_view input) {
  LimitedWatch watch(MostTicks, MostTicks);
  LimitedWatch otherWatch(MostTicks, MostTicks);
  const Arithmetic arithmetic(watch);
  const reference::Arithmetic other(otherWatch);
  Compare(
      input, [&](std::string& text) { return RelationEvaluator(text, arithmetic); },
      [&](std::string& text) { return reference::RelationEvaluator(text, other); });
}

/// A text stays what it is when it is filtered again, and a number when its text is read.
void CheckTexts(std::string_view input) {
  SkipOnFailure([&] {
    const double number = Val(input);
    if (number == RoundToDecimals(number, 0) && number > -1e15 && number < 1e15) Require(Val(Str(number)) == number);
  });
  for (int word = 1; word <= 3; ++word) {
    Compare(
        input, [&](std::string& text) { return GiveWord(text, word); },
        [&](std::string& text) { return reference::GiveWord(text, word); });
  }
}

}  // namespace

void Try(std::string_view input) {
  Compare(
      input, [](std::string& text) { return SpaceFilter(text); },
      [](std::string& text) { return reference::SpaceFilter(text); });
  CompareSums(input);
  CompareConditions(input);
  CheckTexts(input);
}

}  // namespace zerimo::fuzz
