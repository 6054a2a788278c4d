#pragma once

#include <system_error>

/// Decimal numbers as <charconv> reads and writes them, for a C++ library that can't yet.
namespace zerimo::web {

struct ReadDecimal {
  const char* End;
  std::errc Error;
  double Value = 0;
};

/// The longest decimal number at the front of a text, correctly rounded: an optional minus sign, digits with at most
/// one point, and if wanted an exponent. Neither blanks nor a plus sign come first; "inf" and "nan" are read, too.
ReadDecimal ReadDouble(const char* first, const char* last, bool mayHaveExponent);
/// The same, rounded to a single at once.
ReadDecimal ReadSingle(const char* first, const char* last, bool mayHaveExponent);

/// Writes the fewest digits that are read as the same number, without an exponent unless that is shorter. Returns the
/// end; there is room for 320 characters. The number is finite.
char* WriteShortest(char* first, char* last, double value);
char* WriteShortest(char* first, char* last, float value);

/// Writes a whole number with all its digits.
char* WriteWhole(char* first, char* last, double value);

/// Writes at most that many significant digits, with an exponent where the number is very large or small.
char* WriteDigits(char* first, char* last, double value, int digits);

}  // namespace zerimo::web
