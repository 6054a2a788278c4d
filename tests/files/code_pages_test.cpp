#include <gtest/gtest.h>

#include <ostream>

#include "files/unicode_text.h"

namespace zerimo {
namespace {

struct Code {
  int Page;
  unsigned char Byte;
  char32_t Character;
};

void PrintTo(const Code& one, std::ostream* out) { *out << one.Page << ", " << int{one.Byte}; }

class CodePageTable : public ::testing::TestWithParam<Code> {};

TEST_P(CodePageTable, GivesTheCharacter) {
  EXPECT_EQ(CharacterOf(GetParam().Page, GetParam().Byte), GetParam().Character);
}

INSTANTIATE_TEST_SUITE_P(CodePages, CodePageTable,
                         ::testing::Values(Code{1252, 'A', U'A'}, Code{1252, 0x80, U'\u20AC'},
                                           Code{1252, 0x81, char32_t{0x81}}, Code{1252, 0xE4, U'\u00E4'},
                                           Code{1252, 0xFF, U'\u00FF'}, Code{1250, 0xB9, U'\u0105'},
                                           Code{1251, 0xC0, U'\u0410'}, Code{437, 0x81, U'\u00FC'},
                                           Code{437, 0x9E, U'\u20A7'}, Code{850, 0x9E, U'\u00D7'},
                                           Code{10000, 0x8A, U'\u00E4'}, Code{932, 0xE4, U'\u00E4'}));

TEST(CodePages, CharsetsOfFonts) {
  EXPECT_EQ(CodePageOfCharset(0), 0);
  EXPECT_EQ(CodePageOfCharset(77), 10000);
  EXPECT_EQ(CodePageOfCharset(204), 1251);
  EXPECT_EQ(CodePageOfCharset(238), 1250);
  EXPECT_EQ(CodePageOfCharset(254), 437);
  EXPECT_EQ(CodePageOfCharset(255), 850);
}

}  // namespace
}  // namespace zerimo
