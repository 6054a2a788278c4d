#include "web/standard/decimals.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace zerimo::web {

namespace {

constexpr int Rounds = 20'000;

/// Numbers of all sizes, those of programs, and the neighbours of the powers of two and ten.
template <typename Float, typename Bits>
std::vector<Float> Numbers() {
  std::mt19937_64 random(5);
  std::vector<Float> numbers;
  for (int round = 0; round < Rounds; ++round) {
    const auto any = std::bit_cast<Float>(static_cast<Bits>(random()));
    if (std::isfinite(any)) numbers.push_back(any);
    numbers.push_back(static_cast<Float>(static_cast<double>(random() % 2'000'000) / 1000 - 1000));
  }
  for (int exponent = -330; exponent < 310; ++exponent) {
    for (const double each : {std::ldexp(1, exponent * 3), std::pow(10, exponent), 1 - std::ldexp(1, exponent)}) {
      const auto number = static_cast<Float>(each);
      if (!std::isfinite(number)) continue;
      for (const Float near : {number, std::nextafter(number, Float{0}), std::nextafter(number, Float{9})}) {
        numbers.push_back(near);
      }
    }
  }
  return numbers;
}

std::string Standard(auto... format) {
  std::array<char, 400> buffer{};
  return {buffer.data(), std::to_chars(buffer.data(), buffer.data() + buffer.size(), format...).ptr};
}

std::string Ours(auto write, auto... format) {
  std::array<char, 400> buffer{};
  return {buffer.data(), write(buffer.data(), buffer.data() + buffer.size(), format...)};
}

template <typename Float>
void ExpectTheSameTexts(const std::vector<Float>& numbers) {
  const auto shortest = [](char* first, char* last, Float value) { return WriteShortest(first, last, value); };
  for (const Float number : numbers) {
    if (std::trunc(number) == number) {
      ASSERT_EQ(Ours(&WriteWhole, static_cast<double>(number)), Standard(number, std::chars_format::fixed));
    } else {
      ASSERT_EQ(Ours(shortest, number), Standard(number));
    }
  }
}

TEST(Decimals, OfDoublesAreWrittenAsTheStandardLibraryWritesThem) {
  ExpectTheSameTexts(Numbers<double, std::uint64_t>());
}

TEST(Decimals, OfSinglesAreWrittenAsTheStandardLibraryWritesThem) {
  ExpectTheSameTexts(Numbers<float, std::uint32_t>());
}

TEST(Decimals, InFifteenDigitsAreThoseOfTheStandardLibrary) {
  for (const double number : Numbers<double, std::uint64_t>()) {
    ASSERT_EQ(Ours(&WriteDigits, number, 15), Standard(number, std::chars_format::general, 15));
  }
}

template <typename Float>
void ExpectTheSameReading(const std::string& text, auto read, std::chars_format format) {
  Float expected = 0;
  const auto standard = std::from_chars(text.data(), text.data() + text.size(), expected, format);
  const ReadDecimal ours = read(text.data(), text.data() + text.size(), format != std::chars_format::fixed);
  ASSERT_EQ(ours.End, standard.ptr) << text;
  ASSERT_EQ(ours.Error, standard.ec) << text;
  if (standard.ec == std::errc() && !std::isnan(expected)) {
    ASSERT_EQ(static_cast<Float>(ours.Value), expected) << text;
  }
}

void ExpectTheSameReadings(const std::string& text) {
  for (const std::chars_format format : {std::chars_format::general, std::chars_format::fixed}) {
    ExpectTheSameReading<double>(text, &ReadDouble, format);
    ExpectTheSameReading<float>(text, &ReadSingle, format);
  }
}

TEST(Decimals, AreReadAsTheStandardLibraryReadsThem) {
  std::mt19937 random(9);
  const std::string letters = "0123456789.-e5E+ 1";
  for (int round = 0; round < Rounds; ++round) {
    std::string text;
    for (std::uint_fast32_t count = random() % 12; count > 0; --count) text += letters[random() % letters.size()];
    ASSERT_NO_FATAL_FAILURE(ExpectTheSameReadings(text));
  }
}

TEST(Decimals, OfOddFormsAreReadAsTheStandardLibraryReadsThem) {
  for (const char* text :
       {"",    "-",    ".",        "-.",    "1.",  ".5",   "5e",     "5e+", "1e400", "-1e400", "1e-400", "0e999",
        "inf", "-INF", "infinity", "infin", "nan", "0x10", "1e-320", "+1",  " 1",    "1e39",   "1e-50"}) {
    ASSERT_NO_FATAL_FAILURE(ExpectTheSameReadings(text));
  }
}

}  // namespace

}  // namespace zerimo::web
