#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

/// The conversions between numbers and texts, and the roundings. Everything in the system uses these.
/// Behaviour: docs/interpreter.md, "Text".
namespace zerimo {

/// How many digits a number can have so that its text and its value are one to one.
inline constexpr std::size_t MostExactDigits = 15;

constexpr bool IsDigit(char character) noexcept { return character >= '0' && character <= '9'; }

/// The number at the beginning of a text. Blanks, tabs and line feeds are skipped wherever they stand; an optional
/// sign, digits with at most one decimal point and an optional exponent ("E" or "D", either case) are read, and the
/// prefixes "&H" and "&O" read hexadecimal and octal. Reading stops at the first character that can't go on; a text
/// with no leading number is 0. A number beyond the 64-bit float's range fails (overflow).
double Val(std::string_view text);

/// A number as text: a leading blank if it is not negative, no zero before the point of a fraction (" .5"), at most
/// 15 significant digits, the exponent form from 1E+15 upward and below 0.0001 (" 1E-05").
std::string Str(double number);

/// `Str` without the leading blank.
std::string StrTrimmed(double number);

/// Fails (overflow); there is no result.
[[noreturn]] double FailOverflow();

/// Whether a number has no decimals. It must be within 64 bits.
inline bool IsWhole(double number) noexcept { return static_cast<double>(static_cast<std::int64_t>(number)) == number; }

/// What `RoundHalfEven` does with a number that is large, or none.
double RoundLarge(double number);

/// To the nearest whole number, a half going to the even neighbour. Not-a-number fails (overflow).
inline double RoundHalfEven(double number) {
  constexpr double largeFrom = 1E15;
  if (!(std::abs(number) < largeFrom)) return RoundLarge(number);
  // Most numbers are whole, and then nothing is to be rounded.
  if (IsWhole(number)) return number;
  // A number of this size has no decimals, so that the sum is rounded; no minus zero is left.
  constexpr double withoutDecimals = 6755399441055744;
  return number + withoutDecimals - withoutDecimals;
}

/// The number times 10 to the power of `decimals` (0 to 2), rounded half to even, and divided again; a number too large
/// to have decimals is left as it is. Fails (overflow) unless the number is finite.
double RoundToDecimals(double number, int decimals);

/// Rounded half to even; fails (overflow) outside -32768 to 32767.
std::int16_t ToInt16(double number);

/// Rounded half to even; fails (overflow) outside the 32-bit range.
std::int32_t ToInt32(double number);

/// Rounded half to even; fails (overflow) outside 0 to 255.
std::uint8_t ToByte(double number);

/// As a single; fails (overflow) beyond the range of singles.
inline float ToSingle(double number) {
  constexpr double greatest = std::numeric_limits<float>::max();
  return std::abs(number) <= greatest ? static_cast<float>(number) : static_cast<float>(FailOverflow());
}

/// The sum in 16 bits; fails (overflow) out of range.
std::int16_t AddInt16(std::int16_t a, std::int16_t b);

/// The number itself if it is finite; fails (overflow) if a computation has left the 64-bit float's range.
inline double Finite(double number) { return std::isfinite(number) ? number : FailOverflow(); }

/// The quotient of two numbers: a zero divisor fails (division by zero; overflow for 0/0), and so does a result that
/// is too large (overflow).
double Divide(double dividend, double divisor);

}  // namespace zerimo
