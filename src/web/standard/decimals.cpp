#include "web/standard/decimals.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <string>
#include <string_view>

namespace zerimo::web {

namespace {

bool IsDigit(char character) { return character >= '0' && character <= '9'; }

std::size_t CountDigits(std::string_view text) {
  std::size_t count = 0;
  while (count < text.size() && IsDigit(text[count])) ++count;
  return count;
}

/// Characters of the digits with their point; 0 if there is no digit.
std::size_t MantissaLength(std::string_view text) {
  const std::size_t whole = CountDigits(text);
  if (whole == text.size() || text[whole] != '.') return whole;
  const std::size_t fraction = CountDigits(text.substr(whole + 1));
  return whole + fraction == 0 ? 0 : whole + 1 + fraction;
}

/// Characters of an exponent with its letter; 0 if there is none.
std::size_t ExponentLength(std::string_view text) {
  if (text.empty() || (text[0] != 'e' && text[0] != 'E')) return 0;
  const bool isSigned = text.size() > 1 && (text[1] == '-' || text[1] == '+');
  const std::size_t letters = isSigned ? 2 : 1;
  const std::size_t digits = CountDigits(text.substr(letters));
  return digits == 0 ? 0 : letters + digits;
}

std::size_t WordLength(std::string_view text) {
  for (const std::string_view word : {std::string_view("infinity"), std::string_view("inf"), std::string_view("nan")}) {
    std::size_t same = 0;
    while (same < word.size() && same < text.size() && (text[same] | 0x20) == word[same]) ++same;
    if (same == word.size()) return same;
  }
  return 0;
}

std::size_t NumberLength(std::string_view text, bool mayHaveExponent) {
  const std::size_t sign = !text.empty() && text[0] == '-' ? 1 : 0;
  const std::size_t mantissa = MantissaLength(text.substr(sign));
  if (mantissa == 0) {
    const std::size_t word = WordLength(text.substr(sign));
    return word == 0 ? 0 : sign + word;
  }
  return sign + mantissa + (mayHaveExponent ? ExponentLength(text.substr(sign + mantissa)) : 0);
}

/// The largest number where the fraction of a digit text, without its exponent, holds anything but zeros.
bool HasNonZeroDigit(std::string_view text) {
  for (const char character : text) {
    if (character == 'e' || character == 'E') return false;
    if (character >= '1' && character <= '9') return true;
  }
  return false;
}

template <typename Float>
ReadDecimal Read(const char* first, const char* last, bool mayHaveExponent, Float (*read)(const char*, char**)) {
  const std::string_view text(first, static_cast<std::size_t>(last - first));
  const std::size_t length = NumberLength(text, mayHaveExponent);
  if (length == 0) return {first, std::errc::invalid_argument};
  const std::string number(text.substr(0, length));
  const Float value = read(number.c_str(), nullptr);
  const bool isWord = !HasNonZeroDigit(number) && !std::isfinite(value);
  const bool isLost = value == 0 && HasNonZeroDigit(number);
  if (isLost || (!isWord && !std::isfinite(value))) return {first + length, std::errc::result_out_of_range};
  return {first + length, std::errc(), value};
}

/// A number in digits and a power of ten: 0.DIGITS times ten to the power of Exponent.
struct Digits {
  std::string Text;
  int Exponent;
};

Digits DigitsOf(double value, int count) {
  std::array<char, 40> buffer{};
  std::snprintf(buffer.data(), buffer.size(), "%.*e", count - 1, value);
  const std::string_view written(buffer.data());
  const std::size_t mark = written.find('e');
  std::string text(written.substr(0, 1));
  if (mark > 2) text += written.substr(2, mark - 2);
  return {text, std::atoi(buffer.data() + mark + 1) + 1};
}

std::string Scientific(const Digits& digits) {
  std::string text = digits.Text.substr(0, 1);
  if (digits.Text.size() > 1) text += "." + digits.Text.substr(1);
  const int exponent = digits.Exponent - 1;
  const std::string power = std::to_string(std::abs(exponent));
  return text + (exponent < 0 ? "e-" : "e+") + (power.size() < 2 ? "0" : "") + power;
}

std::string Fixed(const Digits& digits) {
  const auto size = static_cast<int>(digits.Text.size());
  if (digits.Exponent <= 0) return "0." + std::string(static_cast<std::size_t>(-digits.Exponent), '0') + digits.Text;
  const auto point = static_cast<std::size_t>(digits.Exponent);
  if (digits.Exponent >= size) return digits.Text + std::string(point - digits.Text.size(), '0');
  return digits.Text.substr(0, point) + "." + digits.Text.substr(point);
}

/// The digits one step farther from zero.
Digits StepUp(Digits digits) {
  std::size_t place = digits.Text.size();
  while (place > 0 && digits.Text[place - 1] == '9') digits.Text[--place] = '0';
  if (place > 0) {
    ++digits.Text[place - 1];
    return digits;
  }
  return {"1" + digits.Text.substr(1), digits.Exponent + 1};
}

template <typename Float>
Digits ShortestDigits(Float value, Float (*read)(const char*, char**)) {
  for (int count = 1; count <= std::numeric_limits<Float>::max_digits10; ++count) {
    const Digits nearest = DigitsOf(static_cast<double>(value), count);
    // Below a power of two numbers lie closer together than above it, so the nearest may be the wrong neighbour.
    for (const Digits& digits : {nearest, StepUp(nearest)}) {
      if (read(Scientific(digits).c_str(), nullptr) == value) return digits;
    }
  }
  return DigitsOf(static_cast<double>(value), std::numeric_limits<Float>::max_digits10);
}

char* Copy(const std::string& text, char* first) { return first + text.copy(first, text.size()); }

template <typename Float>
char* WriteShortestOf(char* first, Float value, Float (*read)(const char*, char**)) {
  const std::string sign = std::signbit(value) ? "-" : "";
  if (value == 0) return Copy(sign + "0", first);
  const Digits digits = ShortestDigits(std::abs(value), read);
  const std::string fixed = Fixed(digits);
  const std::string scientific = Scientific(digits);
  return Copy(sign + (fixed.size() <= scientific.size() ? fixed : scientific), first);
}

}  // namespace

ReadDecimal ReadDouble(const char* first, const char* last, bool mayHaveExponent) {
  return Read<double>(first, last, mayHaveExponent, &std::strtod);
}

ReadDecimal ReadSingle(const char* first, const char* last, bool mayHaveExponent) {
  return Read<float>(first, last, mayHaveExponent, &std::strtof);
}

char* WriteShortest(char* first, char*, double value) { return WriteShortestOf<double>(first, value, &std::strtod); }
char* WriteShortest(char* first, char*, float value) { return WriteShortestOf<float>(first, value, &std::strtof); }

char* WriteWhole(char* first, char* last, double value) {
  return first + std::snprintf(first, static_cast<std::size_t>(last - first), "%.0f", value);
}

char* WriteDigits(char* first, char* last, double value, int digits) {
  return first + std::snprintf(first, static_cast<std::size_t>(last - first), "%.*g", digits, value);
}

}  // namespace zerimo::web
