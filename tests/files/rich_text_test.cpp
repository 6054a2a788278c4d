#include "files/rich_text.h"

#include <gtest/gtest.h>

namespace zerimo {
namespace {

RichText OfLines(std::initializer_list<const char*> lines) {
  RichText page;
  page.Paragraphs.clear();
  for (const char* line : lines) Append(page.Paragraphs.emplace_back(), line, {});
  return page;
}

TEST(RichText, AppendingTheSameFormMakesOneRun) {
  Paragraph paragraph;
  Append(paragraph, "one ", {});
  Append(paragraph, "two", {});
  ASSERT_EQ(paragraph.Runs.size(), 1U);
  EXPECT_EQ(paragraph.Runs[0].Text, "one two");
}

TEST(RichText, AppendingAnotherFormMakesAnotherRun) {
  CharacterForm bold;
  bold.Bold = true;
  Paragraph paragraph;
  Append(paragraph, "one ", {});
  Append(paragraph, "two", bold);
  EXPECT_EQ(paragraph.Runs.size(), 2U);
}

TEST(RichText, AppendingNothingMakesNoRun) {
  Paragraph paragraph;
  Append(paragraph, "", {});
  EXPECT_TRUE(paragraph.Runs.empty());
}

TEST(RichText, KnowsRtfByItsBeginning) {
  EXPECT_TRUE(IsRtf("{\\rtf1 x}"));
  EXPECT_TRUE(IsRtf("{\\rtf"));
  EXPECT_FALSE(IsRtf(" {\\rtf1 x}"));
  EXPECT_FALSE(IsRtf("{\\rt"));
  EXPECT_FALSE(IsRtf("Forward"));
}

TEST(RichText, PlainTextDividesParagraphsAndBreaks) {
  EXPECT_EQ(PlainText(OfLines({"one", "", "two\nthree"})), "one\r\n\r\ntwo\r\nthree");
}

TEST(RichText, PlainTextOfAnEmptyDocumentIsEmpty) { EXPECT_EQ(PlainText(RichText{}), ""); }

TEST(RichText, EveryLineOfPlainTextIsAParagraph) {
  for (const char* text : {"one\r\n\r\ntwo", "one\n\ntwo", "one\r\rtwo"}) {
    EXPECT_EQ(FromPlainText(text), OfLines({"one", "", "two"})) << text;
  }
}

TEST(RichText, ALineEndAtTheEndGivesAnEmptyParagraph) { EXPECT_EQ(FromPlainText("one\r\n"), OfLines({"one", ""})); }

TEST(RichText, PlainTextWithoutTextIsOneParagraph) { EXPECT_EQ(FromPlainText(""), RichText{}); }

TEST(RichText, PlainTextLosesControlCharactersButTabs) {
  EXPECT_EQ(FromPlainText(std::string("a\0b\x01"
                                      "c\td\x1F",
                                      8)),
            OfLines({"abc\td"}));
}

TEST(RichText, PlainTextBeyondTheMostParagraphsStaysInTheLastOne) {
  std::string text;
  for (std::size_t i = 0; i < MostParagraphs + 2; ++i) text += "a\n";
  const RichText page = FromPlainText(text);
  EXPECT_EQ(page.Paragraphs.size(), MostParagraphs);
  EXPECT_EQ(page.Paragraphs.back().Runs[0].Text, "a\na\na\n");
}

}  // namespace
}  // namespace zerimo
