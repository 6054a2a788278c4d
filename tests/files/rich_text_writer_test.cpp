#include <gtest/gtest.h>

#include "files/rich_text.h"
#include "files/rich_text_samples.h"
#include "files/unicode_text.h"

namespace zerimo {
namespace {

TEST(RtfWriter, WritesRtf) { EXPECT_TRUE(IsRtf(WriteRtf(RichText{}))); }

TEST(RtfWriter, WritesSevenBitText) {
  for (const char character : WriteRtf(FullPage())) EXPECT_GT(character, 0);
}

TEST(RtfWriter, APageReadsBackTheSame) { EXPECT_EQ(ReadRtf(WriteRtf(FullPage())), FullPage()); }

TEST(RtfWriter, AnEmptyPageReadsBackTheSame) { EXPECT_EQ(ReadRtf(WriteRtf(RichText{})), RichText{}); }

TEST(RtfWriter, EmptyParagraphsReadBackTheSame) {
  for (std::size_t count = 1; count <= 3; ++count) {
    RichText page;
    page.Paragraphs.resize(count);
    EXPECT_EQ(ReadRtf(WriteRtf(page)), page) << count;
  }
}

TEST(RtfWriter, AnEmptyParagraphKeepsItsForm) {
  RichText page;
  page.Paragraphs[0].Form.Bullet = true;
  page.Paragraphs[0].Form.LeftIndent = 720;
  EXPECT_EQ(ReadRtf(WriteRtf(page)), page);
}

TEST(RtfWriter, EveryCharacterReadsBackTheSame) {
  std::string text;
  for (char32_t character = 0x20; character < 0x30000; ++character) {
    if (character < 0xD800 || character > 0xDFFF) AppendUtf8(text, character);
  }
  RichText page;
  Append(page.Paragraphs[0], text, {});
  EXPECT_EQ(ReadRtf(WriteRtf(page)), page);
}

TEST(RtfWriter, FontsOfDifferentNamesStayApart) {
  RichText page;
  for (const char* name : {"A", "B", "", "A", "C"}) {
    CharacterForm form;
    form.FontName = name;
    Append(page.Paragraphs[0], "x", form);
  }
  EXPECT_EQ(ReadRtf(WriteRtf(page)), page);
}

TEST(RtfWriter, ControlCharactersAreLeftOut) {
  RichText page;
  Append(page.Paragraphs[0],
         std::string("a\0\x01\x1F"
                     "b",
                     5),
         {});
  EXPECT_EQ(PlainText(ReadRtf(WriteRtf(page))), "ab");
}

TEST(RtfWriter, BytesThatAreNoUtf8AreReplaced) {
  RichText page;
  Append(page.Paragraphs[0], "a\xFFz", {});
  EXPECT_EQ(PlainText(ReadRtf(WriteRtf(page))), "a\xEF\xBF\xBDz");
}

}  // namespace
}  // namespace zerimo
