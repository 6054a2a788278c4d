#include "base/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

#include "base/failure.h"

namespace zerimo {

namespace {

bool IsExponentMark(char character) noexcept {
  return character == 'E' || character == 'e' || character == 'D' || character == 'd';
}

std::string WithoutSkipped(std::string_view text) {
  std::string rest;
  rest.reserve(text.size());
  for (const char character : text) {
    if (character != ' ' && character != '\t' && character != '\n') rest += character;
  }
  return rest;
}

int DigitValue(char character) noexcept {
  if (IsDigit(character)) return character - '0';
  if (character >= 'A' && character <= 'F') return character - 'A' + 10;
  if (character >= 'a' && character <= 'f') return character - 'a' + 10;
  return std::numeric_limits<int>::max();
}

double PrefixedNumber(std::string_view digits, int base) {
  double value = 0;
  for (const char character : digits) {
    const int digit = DigitValue(character);
    if (digit >= base) break;
    value = value * base + digit;
  }
  return Finite(value);
}

/// Copies the longest decimal number at the front of `text` in the form that from_chars reads; empty if there is none.
std::string DecimalNumber(std::string_view text) {
  std::string number;
  std::size_t at = 0;
  bool digits = false;
  bool point = false;
  if (at < text.size() && (text[at] == '-' || text[at] == '+')) {
    if (text[at] == '-') number += '-';
    ++at;
  }
  for (; at < text.size() && (IsDigit(text[at]) || (text[at] == '.' && !point)); ++at) {
    if (text[at] == '.') {
      point = true;
    } else {
      digits = true;
    }
    number += text[at];
  }
  if (!digits) return {};
  if (at < text.size() && IsExponentMark(text[at])) {
    std::string exponent = "e";
    ++at;
    if (at < text.size() && (text[at] == '-' || text[at] == '+')) exponent += text[at++];
    const std::size_t signLength = exponent.size();
    while (at < text.size() && IsDigit(text[at])) exponent += text[at++];
    if (exponent.size() > signLength) number += exponent;
  }
  return number;
}

/// The number in a text of at most 15 digits and nothing else, the most common case.
std::optional<double> WholeNumber(std::string_view text) noexcept {
  if (text.empty() || text.size() > MostExactDigits) return std::nullopt;
  std::int64_t value = 0;
  for (const char character : text) {
    if (!IsDigit(character)) return std::nullopt;
    value = value * 10 + (character - '0');
  }
  return static_cast<double>(value);
}

/// The exponent of a decimal number, 0 without one.
double ExponentOf(std::string_view number) noexcept {
  const auto mark = number.find('e');
  if (mark == std::string_view::npos) return 0;
  const char* const first = number.data() + mark + (number[mark + 1] == '+' ? 2 : 1);
  // An exponent too long to be read keeps this value.
  double exponent = *first == '-' ? std::numeric_limits<double>::lowest() : std::numeric_limits<double>::max();
  std::from_chars(first, number.data() + number.size(), exponent);
  return exponent;
}

/// Whether a decimal number that no 64-bit float can hold is too large (and not too small).
bool IsTooLarge(std::string_view number) {
  const std::string_view mantissa = number.substr(0, number.find('e'));
  const auto firstDigit = static_cast<double>(mantissa.find_first_of("123456789"));
  const auto point = static_cast<double>(std::min(mantissa.find('.'), mantissa.size()));
  return point - firstDigit + ExponentOf(number) > 0;
}

}  // namespace

double Val(std::string_view text) {
  if (const auto whole = WholeNumber(text)) return *whole;
  const std::string rest = WithoutSkipped(text);
  if (rest.size() > 1 && rest[0] == '&') {
    if (rest[1] == 'H' || rest[1] == 'h') return PrefixedNumber(std::string_view(rest).substr(2), 16);
    if (rest[1] == 'O' || rest[1] == 'o') return PrefixedNumber(std::string_view(rest).substr(2), 8);
  }
  const std::string number = DecimalNumber(rest);
  if (number.empty()) return 0;
  double value = 0;
  const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
  if (result.ec == std::errc::result_out_of_range) {
    if (IsTooLarge(number)) throw Failure(FailureKind::Overflow);
    return 0;
  }
  return value;
}

namespace {

using NumberBuffer = std::array<char, 40>;

/// Writes a number as text without a leading blank.
std::string_view WriteNumber(double number, NumberBuffer& buffer) {
  constexpr double exponentFormFrom = 1E15;
  char* const first = buffer.data();
  char* const last = first + buffer.size();
  if (std::abs(number) < exponentFormFrom && IsWhole(number)) {
    const char* const end = std::to_chars(first, last, static_cast<std::int64_t>(number)).ptr;
    return {first, static_cast<std::size_t>(end - first)};
  }
  // One character is kept free for the sign.
  char* digits = first + 1;
  const auto end = std::to_chars(digits, last, std::abs(number), std::chars_format::general, 15).ptr;
  if (char* const mark = std::find(digits, end, 'e'); mark != end) *mark = 'E';
  if (digits[0] == '0' && digits[1] == '.') ++digits;
  if (number < 0) *--digits = '-';
  return {digits, static_cast<std::size_t>(end - digits)};
}

}  // namespace

std::string Str(double number) {
  NumberBuffer buffer;
  const std::string_view text = WriteNumber(number, buffer);
  std::string result;
  if (text.front() != '-') result = ' ';
  return result.append(text);
}

std::string StrTrimmed(double number) {
  NumberBuffer buffer;
  return std::string(WriteNumber(number, buffer));
}

double FailOverflow() { throw Failure(FailureKind::Overflow); }

double RoundLarge(double number) { return std::isnan(number) ? FailOverflow() : std::nearbyint(number); }

double RoundToDecimals(double number, int decimals) {
  // From here on a 64-bit float has no decimals.
  constexpr double wholeFrom = 9007199254740992;
  if (std::abs(Finite(number)) >= wholeFrom) return number;
  const double factor = decimals == 0 ? 1 : decimals == 1 ? 10 : 100;
  return RoundHalfEven(number * factor) / factor;
}

namespace {

template <typename Whole>
Whole ToWhole(double number) {
  const double rounded = RoundHalfEven(number);
  if (rounded < static_cast<double>(std::numeric_limits<Whole>::min()) ||
      rounded > static_cast<double>(std::numeric_limits<Whole>::max())) {
    throw Failure(FailureKind::Overflow);
  }
  return static_cast<Whole>(rounded);
}

}  // namespace

std::int16_t ToInt16(double number) { return ToWhole<std::int16_t>(number); }

std::int32_t ToInt32(double number) { return ToWhole<std::int32_t>(number); }

std::uint8_t ToByte(double number) { return ToWhole<std::uint8_t>(number); }

std::int16_t AddInt16(std::int16_t a, std::int16_t b) { return ToInt16(static_cast<double>(a) + b); }

double Divide(double dividend, double divisor) {
  if (divisor == 0) throw Failure(dividend == 0 ? FailureKind::Overflow : FailureKind::DivisionByZero);
  return Finite(dividend / divisor);
}

}  // namespace zerimo
