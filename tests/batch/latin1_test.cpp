#include "batch/latin1.h"

#include <gtest/gtest.h>

namespace zerimo::batch {
namespace {

TEST(Latin1, CharactersUpToFFBecomeTheirCodes) { EXPECT_EQ(FromUtf8("A\xC3\xA4\xC3\xBF\xC2\x80"), "A\xE4\xFF\x80"); }

TEST(Latin1, EveryCodeComesBack) {
  std::string all;
  for (int code = 0; code < 256; ++code) all += static_cast<char>(code);
  EXPECT_EQ(FromUtf8(ToUtf8(all)), all);
}

TEST(Latin1, CharacterAboveFFIsNamed) {
  try {
    FromUtf8("\xE2\x82\xAC");
    FAIL();
  } catch (const TextError& error) {
    EXPECT_STREQ(error.what(), "the character U+20AC is above U+00FF");
  }
}

TEST(Latin1, FirstCharacterAboveTheRangeIsRefused) { EXPECT_THROW(FromUtf8("\xC4\x80"), TextError); }

class BrokenUtf8 : public testing::TestWithParam<const char*> {};

TEST_P(BrokenUtf8, IsRefused) {
  try {
    FromUtf8(GetParam());
    FAIL();
  } catch (const TextError& error) {
    EXPECT_STREQ(error.what(), "the text is not UTF-8");
  }
}

INSTANTIATE_TEST_SUITE_P(Forms, BrokenUtf8,
                         testing::Values("\x80", "\xC3", "\xC3(", "\xC0\x80", "\xC1\xBF", "\xE0\x80\x80",
                                         "\xED\xA0\x80", "\xF0\x80\x80\x80", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80",
                                         "\xFF", "\xE2\x82"));

}  // namespace
}  // namespace zerimo::batch
