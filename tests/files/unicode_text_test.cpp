#include "files/unicode_text.h"

#include <gtest/gtest.h>

namespace zerimo {
namespace {

TEST(UnicodeText, WritesOneToFourBytes) {
  std::string text;
  for (const char32_t character : {U'A', U'\u00E4', U'\u20AC', U'\U0001F422'}) AppendUtf8(text, character);
  EXPECT_EQ(text, "A\xC3\xA4\xE2\x82\xAC\xF0\x9F\x90\xA2");
}

TEST(UnicodeText, WritesTheReplacementForWhatIsNoCharacter) {
  for (const char32_t character : {char32_t{0xD800}, char32_t{0xDFFF}, char32_t{0x110000}, char32_t{0xFFFFFFFF}}) {
    std::string text;
    AppendUtf8(text, character);
    EXPECT_EQ(text, "\xEF\xBF\xBD");
  }
}

TEST(UnicodeText, ReadsBackWhatItWrites) {
  for (const char32_t character : {char32_t{0}, char32_t{0x7F}, char32_t{0x80}, char32_t{0x7FF}, char32_t{0x800},
                                   char32_t{0xFFFF}, char32_t{0x10000}, char32_t{0x10FFFF}}) {
    std::string text;
    AppendUtf8(text, character);
    std::size_t offset = 0;
    EXPECT_EQ(NextCharacter(text, offset), character);
    EXPECT_EQ(offset, text.size());
  }
}

TEST(UnicodeText, ABadByteCountsAlone) {
  std::size_t offset = 0;
  const std::string text = "\xE2\x82Z";
  EXPECT_EQ(NextCharacter(text, offset), ReplacementCharacter);
  EXPECT_EQ(offset, 1U);
}

TEST(UnicodeText, KnowsUtf8) {
  EXPECT_TRUE(IsUtf8(""));
  EXPECT_TRUE(IsUtf8("h\xC3\xB6her \xE2\x82\xAC"));
}

TEST(UnicodeText, KnowsWhatIsNoUtf8) {
  for (const char* bytes : {"\xE4", "\xC0\xAF", "\xE2\x82", "\xED\xA0\x80", "\xF5\x80\x80\x80", "\xF4\x90\x80\x80",
                            "\xE0\x80\x80", "\x80"}) {
    EXPECT_FALSE(IsUtf8(bytes)) << bytes;
  }
}

TEST(UnicodeText, EveryLatin1CodeComesBack) {
  std::string all;
  for (int code = 0; code < 256; ++code) all += static_cast<char>(code);
  EXPECT_EQ(Latin1FromUtf8(Utf8FromLatin1(all)), all);
}

TEST(UnicodeText, CharactersBeyondLatin1BecomeQuestionMarks) {
  EXPECT_EQ(Latin1FromUtf8("a\xE2\x82\xAC\xC3\xBF"), "a?\xFF");
}

}  // namespace
}  // namespace zerimo
