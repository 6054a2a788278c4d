#include <gtest/gtest.h>

#include <ostream>

#include "files/rich_text.h"
#include "support/quoted.h"

namespace zerimo {
namespace {

/// The only run of a page.
TextRun RunOf(const std::string& rtf) {
  const RichText page = ReadRtf(rtf);
  EXPECT_EQ(page.Paragraphs.size(), 1U) << rtf;
  EXPECT_EQ(page.Paragraphs[0].Runs.size(), 1U) << rtf;
  return page.Paragraphs[0].Runs.empty() ? TextRun{} : page.Paragraphs[0].Runs[0];
}

CharacterForm FormOf(const std::string& words) { return RunOf("{\\rtf1 " + words + " x}").Form; }

ParagraphForm ParagraphOf(const std::string& words) {
  return ReadRtf("{\\rtf1 " + words + " x\\par}").Paragraphs[0].Form;
}

struct Words {
  const char* Rtf;
  /// UTF-8.
  const char* Text;
};

void PrintTo(const Words& one, std::ostream* out) { *out << Quoted(one.Rtf); }

class RtfTextTable : public ::testing::TestWithParam<Words> {};

TEST_P(RtfTextTable, GivesTheWords) { EXPECT_EQ(PlainText(ReadRtf(GetParam().Rtf)), GetParam().Text); }

INSTANTIATE_TEST_SUITE_P(Paragraphs, RtfTextTable,
                         ::testing::Values(Words{"{\\rtf1 Hello}", "Hello"}, Words{"{\\rtf1 Hello\\par}", "Hello"},
                                           Words{"{\\rtf1 one\\par two}", "one\r\ntwo"},
                                           Words{"{\\rtf1 one\\par\\par two\\par\\par}", "one\r\n\r\ntwo\r\n"},
                                           Words{"{\\rtf1 one\\\ntwo\\\r\nthree}", "one\r\ntwo\r\nthree"},
                                           Words{"{\\rtf1 one\\line two\\lbr three}", "one\r\ntwo\r\nthree"},
                                           Words{"{\\rtf1 o\r\nn\ne}", "one"},
                                           Words{"{\\rtf1 a\\cell b\\row c}", "a\tb\r\nc"},
                                           Words{"{\\rtf1 a\\sect b}", "a\r\nb"}, Words{"{\\rtf1 }", ""},
                                           Words{"", ""}));

INSTANTIATE_TEST_SUITE_P(Characters, RtfTextTable,
                         ::testing::Values(Words{"{\\rtf1 a\\tab b\tc}", "a\tb\tc"},
                                           Words{"{\\rtf1 \\{\\\\\\}}", "{\\}"},
                                           Words{"{\\rtf1 a\\~b}",
                                                 "a\xC2\xA0"
                                                 "b"},
                                           Words{"{\\rtf1 a\\_b}",
                                                 "a\xE2\x80\x91"
                                                 "b"},
                                           Words{"{\\rtf1 a\\-b}",
                                                 "a\xC2\xAD"
                                                 "b"},
                                           Words{"{\\rtf1 \\emdash\\endash}", "\xE2\x80\x94\xE2\x80\x93"},
                                           Words{"{\\rtf1 \\lquote\\rquote\\ldblquote\\rdblquote\\bullet}",
                                                 "\xE2\x80\x98\xE2\x80\x99\xE2\x80\x9C\xE2\x80\x9D\xE2\x80\xA2"},
                                           Words{"{\\rtf1 \x01\x02"
                                                 "a}",
                                                 "a"}));

INSTANTIATE_TEST_SUITE_P(
    CodePages, RtfTextTable,
    ::testing::Values(Words{"{\\rtf1\\ansi gr\\'fcn \\'80}", "gr\xC3\xBCn \xE2\x82\xAC"},
                      Words{"{\\rtf1\\ansi\\ansicpg1250 \\'b9}", "\xC4\x85"},
                      Words{"{\\rtf1\\ansi\\ansicpg1251 \\'c0}", "\xD0\x90"}, Words{"{\\rtf1\\pc \\'81}", "\xC3\xBC"},
                      Words{"{\\rtf1\\pca \\'9e}", "\xC3\x97"}, Words{"{\\rtf1\\ansi\\ansicpg437 \\'81}", "\xC3\xBC"},
                      Words{"{\\rtf1\\mac \\'8A}", "\xC3\xA4"}, Words{"{\\rtf1 gr\xFCn}", "gr\xC3\xBCn"},
                      Words{"{\\rtf1{\\fonttbl{\\f0\\fcharset0 A;}{\\f1\\fcharset238 B;}}\\f0\\'b9\\f1\\'b9}",
                            "\xC2\xB9\xC4\x85"},
                      Words{"{\\rtf1{\\fonttbl{\\f1\\cpg437 B;}}\\f1\\'81}", "\xC3\xBC"},
                      Words{"{\\rtf1 \\'zz}", "'zz"}, Words{"{\\rtf1 \\'4", "'4"}));

INSTANTIATE_TEST_SUITE_P(
    Unicode, RtfTextTable,
    ::testing::Values(
        Words{"{\\rtf1 \\u8212?x}", "\xE2\x80\x94x"}, Words{"{\\rtf1 \\u-3913?}", "\xEF\x82\xB7"},
        Words{"{\\rtf1 \\u228\\'e4x}", "\xC3\xA4x"}, Words{"{\\rtf1\\uc0 \\u228 x}", "\xC3\xA4x"},
        Words{"{\\rtf1\\uc2 \\u228 abx}", "\xC3\xA4x"}, Words{"{\\rtf1\\uc3 \\u228 a\\{\\'e4x}", "\xC3\xA4x"},
        Words{"{\\rtf1{\\uc0 \\u228 x}\\u228 yz}", "\xC3\xA4x\xC3\xA4z"}, Words{"{\\rtf1 {\\u228}x}", "\xC3\xA4x"},
        Words{"{\\rtf1 \\u8212\\emdash x}", "\xE2\x80\x94x"}, Words{"{\\rtf1 \\u228\\u246?}", "\xC3\xA4\xC3\xB6"},
        Words{"{\\rtf1 \\u228\\par x}", "\xC3\xA4\r\nx"}, Words{"{\\rtf1 \\u-10179?\\u-9182?}", "\xF0\x9F\x90\xA2"},
        Words{"{\\rtf1 \\u-10179?x}", "\xEF\xBF\xBDx"}, Words{"{\\rtf1 \\u-9182?x}", "\xEF\xBF\xBDx"},
        Words{"{\\rtf1 x\\u-10179?}", "x\xEF\xBF\xBD"}, Words{"{\\rtf1 \\u99999999999?}", "\xEF\xBF\xBD"},
        Words{"{\\rtf1 a\\u0?b\\u7?c}", "abc"}));

INSTANTIATE_TEST_SUITE_P(
    WhatIsUnknown, RtfTextTable,
    ::testing::Values(Words{"{\\rtf1 \\unknown123 x}", "x"}, Words{"{\\rtf1 {\\*\\unknown hidden}x}", "x"},
                      Words{"{\\rtf1 {\\unknown shown}x}", "shownx"},
                      Words{"{\\rtf1 {\\info{\\title T}}{\\stylesheet{\\s0 Normal;}}x}", "x"},
                      Words{"{\\rtf1 {\\pict\\wmetafile8 0102ff}x}", "x"},
                      Words{"{\\rtf1 {\\pict\\bin4 }}{\\x}x}", "x"}, Words{"{\\rtf1 a\\bin3 }}}b}", "ab"},
                      Words{"{\\rtf1 {\\header H}{\\footer F}x}", "x"},
                      Words{"{\\rtf1 {\\field{\\*\\fldinst HYPERLINK}{\\fldrslt link}}}", "link"},
                      Words{"{\\rtf1 {\\upr{ansi}{\\*\\ud{uni}}}}", "ansi"}, Words{"{\\rtf1 a\\|b\\:c}", "abc"},
                      Words{"{\\rtf1 {\\* x}}", " x"}, Words{"{\\rtf1 a\\info b}", "ab"}));

INSTANTIATE_TEST_SUITE_P(Malformed, RtfTextTable,
                         ::testing::Values(Words{"{\\rtf1 a}}} b", "a b"}, Words{"{\\rtf1 {{{a", "a"},
                                           Words{"{\\rtf1 a\\", "a"}, Words{"{\\rtf1 a\\'", "a'"},
                                           Words{"{\\rtf1 a\\bin99 b", "a"}, Words{"{\\rtf1 a\\bin-5 b}", "ab"},
                                           Words{"no rtf at all", "no rtf at all"},
                                           Words{"{\\rtf1{\\fonttbl{\\f0 A", ""}, Words{"{\\rtf1 \\b-x}", "-x"},
                                           Words{"{\\rtf1{\\pntext 1.\\tab", "1.\t"}));

TEST(RtfReader, APlainPageHasTheUsualForm) {
  EXPECT_EQ(RunOf("{\\rtf1 x}").Form, CharacterForm{});
  EXPECT_EQ(CharacterForm{}.HalfPoints, 24);
}

TEST(RtfReader, TakesBoldItalicUnderlineAndStrike) {
  EXPECT_TRUE(FormOf("\\b").Bold);
  EXPECT_FALSE(FormOf("\\b\\b0").Bold);
  EXPECT_TRUE(FormOf("\\b1").Bold);
  EXPECT_TRUE(FormOf("\\i").Italic);
  EXPECT_FALSE(FormOf("\\i\\i0").Italic);
  EXPECT_TRUE(FormOf("\\strike").Strike);
  EXPECT_FALSE(FormOf("\\strike\\strike0").Strike);
}

TEST(RtfReader, EveryUnderlineIsOne) {
  for (const char* word : {"ul", "uld", "uldash", "uldashd", "uldashdd", "uldb", "ulhwave", "ulldash", "ulth", "ulthd",
                           "ulthdash", "ululdbwave", "ulw", "ulwave"}) {
    const std::string on = "\\" + std::string(word);
    EXPECT_TRUE(FormOf(on).Underline) << word;
    EXPECT_FALSE(FormOf(on + "\\ulnone").Underline) << word;
    EXPECT_FALSE(FormOf(on + on + "0").Underline) << word;
  }
}

TEST(RtfReader, TheColourOfAnUnderlineIsNone) { EXPECT_FALSE(FormOf("\\ulc2").Underline); }

TEST(RtfReader, TakesFontsByName) {
  const std::string table = "{\\fonttbl{\\f0\\fswiss Arial;}{\\f3\\fnil\\fcharset0 Times New Roman;}}";
  EXPECT_EQ(FormOf(table + "\\f3").FontName, "Times New Roman");
  EXPECT_EQ(FormOf(table + "\\f0").FontName, "Arial");
  EXPECT_EQ(FormOf(table + "\\f9").FontName, "");
}

TEST(RtfReader, ATableOfFontsMayHaveNoBraces) {
  EXPECT_EQ(FormOf("{\\fonttbl\\f0\\fswiss Arial;\\f1 B;}\\f1").FontName, "B");
}

TEST(RtfReader, AFontMayHaveAnotherName) {
  EXPECT_EQ(FormOf("{\\fonttbl{\\f0\\fnil{\\*\\panose 02}Arial{\\*\\falt Other};}}\\f0").FontName, "Arial");
}

TEST(RtfReader, ANameOfAFontHasNoLineBreak) {
  EXPECT_EQ(FormOf("{\\fonttbl{\\f1 A\\u10?B\\u9?C;}}\\f1").FontName, "ABC");
}

TEST(RtfReader, TakesTheDefaultFont) {
  EXPECT_EQ(FormOf("\\deff2{\\fonttbl{\\f1 A;}{\\f2 B;}}").FontName, "B");
  EXPECT_EQ(FormOf("\\deff2{\\fonttbl{\\f1 A;}{\\f2 B;}}\\f1\\plain").FontName, "B");
}

TEST(RtfReader, TakesSizes) {
  EXPECT_EQ(FormOf("\\fs36").HalfPoints, 36);
  EXPECT_EQ(FormOf("\\fs0").HalfPoints, 24);
  EXPECT_EQ(FormOf("\\fs-5").HalfPoints, 24);
  EXPECT_EQ(FormOf("\\fs999999").HalfPoints, 6552);
}

TEST(RtfReader, TakesColours) {
  const std::string table = "{\\colortbl;\\red255\\green128\\blue0;\\red0\\green0\\blue255;}";
  EXPECT_EQ(FormOf(table + "\\cf1").Color, 0x0080FF);
  EXPECT_EQ(FormOf(table + "\\cf2").Color, 0xFF0000);
  EXPECT_EQ(FormOf(table + "\\cf0").Color, std::nullopt);
  EXPECT_EQ(FormOf(table + "\\cf3").Color, std::nullopt);
  EXPECT_EQ(FormOf(table + "\\cf-1").Color, std::nullopt);
}

TEST(RtfReader, TheFirstColourMayBeOne) { EXPECT_EQ(FormOf("{\\colortbl\\red1\\green0\\blue0;}\\cf0").Color, 1); }

TEST(RtfReader, PartsOfAColourStayWithinAByte) {
  EXPECT_EQ(FormOf("{\\colortbl;\\red999\\green-5\\blue0;}\\cf1").Color, 0x0000FF);
}

TEST(RtfReader, TakesBackgrounds) {
  for (const char* word : {"highlight", "cb", "chcbpat"}) {
    EXPECT_EQ(FormOf("{\\colortbl;\\red0\\green255\\blue0;}\\" + std::string(word) + "1").Background, 0x00FF00);
  }
}

TEST(RtfReader, PlainResetsCharacters) {
  EXPECT_EQ(FormOf("{\\colortbl;\\red1\\green1\\blue1;}\\b\\i\\ul\\strike\\fs40\\cf1\\highlight1\\plain"),
            CharacterForm{});
}

TEST(RtfReader, AGroupKeepsItsFormToItself) {
  const RichText page = ReadRtf("{\\rtf1 a{\\b b}c}");
  ASSERT_EQ(page.Paragraphs[0].Runs.size(), 3U);
  EXPECT_TRUE(page.Paragraphs[0].Runs[1].Form.Bold);
  EXPECT_FALSE(page.Paragraphs[0].Runs[2].Form.Bold);
}

TEST(RtfReader, TextOfOneFormIsOneRun) { EXPECT_EQ(RunOf("{\\rtf1 a{b}\\b0 c\\'e4}").Text, "abc\xC3\xA4"); }

TEST(RtfReader, TakesAlignments) {
  EXPECT_EQ(ParagraphOf("").Align, Alignment::Left);
  EXPECT_EQ(ParagraphOf("\\qc").Align, Alignment::Centre);
  EXPECT_EQ(ParagraphOf("\\qr").Align, Alignment::Right);
  EXPECT_EQ(ParagraphOf("\\qj").Align, Alignment::Justified);
  EXPECT_EQ(ParagraphOf("\\qc\\ql").Align, Alignment::Left);
}

TEST(RtfReader, TakesIndentsSpacesAndTabs) {
  const ParagraphForm form = ParagraphOf("\\li720\\ri360\\fi-360\\sb120\\sa240\\tx1440\\tx2880");
  EXPECT_EQ(form.LeftIndent, 720);
  EXPECT_EQ(form.RightIndent, 360);
  EXPECT_EQ(form.FirstIndent, -360);
  EXPECT_EQ(form.SpaceBefore, 120);
  EXPECT_EQ(form.SpaceAfter, 240);
  EXPECT_EQ(form.Tabs, (std::vector<int>{1440, 2880}));
}

TEST(RtfReader, LengthsAndTabsAreBounded) {
  EXPECT_EQ(ParagraphOf("\\li2000000000").LeftIndent, 100000);
  std::string tabs;
  for (int i = 0; i < 100; ++i) tabs += "\\tx100";
  EXPECT_EQ(ParagraphOf(tabs).Tabs.size(), ParagraphForm::MostTabs);
}

TEST(RtfReader, AParagraphHandsItsFormOn) {
  const RichText page = ReadRtf("{\\rtf1\\qc a\\par b\\par\\pard c}");
  EXPECT_EQ(page.Paragraphs[1].Form.Align, Alignment::Centre);
  EXPECT_EQ(page.Paragraphs[2].Form.Align, Alignment::Left);
}

TEST(RtfReader, ABulletIsNoText) {
  for (const char* mark :
       {"\\pntext\\f1\\'B7\\tab", "\\listtext\\'b7\\tab", "\\*\\listtext\\u8226?\\tab", "\\pntext - "}) {
    const RichText page = ReadRtf("{\\rtf1{" + std::string(mark) + "}item}");
    EXPECT_TRUE(page.Paragraphs[0].Form.Bullet) << mark;
    EXPECT_EQ(PlainText(page), "item") << mark;
  }
}

TEST(RtfReader, ANumberInFrontIsText) {
  const RichText page = ReadRtf("{\\rtf1{\\listtext 1.\\tab}item}");
  EXPECT_FALSE(page.Paragraphs[0].Form.Bullet);
  EXPECT_EQ(PlainText(page), "1.\titem");
}

TEST(RtfReader, ALetterInFrontIsText) { EXPECT_EQ(PlainText(ReadRtf("{\\rtf1{\\pntext a\\tab}item}")), "a\titem"); }

TEST(RtfReader, AListFormMakesBullets) {
  const RichText page = ReadRtf("{\\rtf1{\\*\\pn\\pnlvlblt\\pnf1{\\pntxtb\\'B7}}one\\par two\\par\\pard three}");
  EXPECT_TRUE(page.Paragraphs[0].Form.Bullet);
  EXPECT_TRUE(page.Paragraphs[1].Form.Bullet);
  EXPECT_FALSE(page.Paragraphs[2].Form.Bullet);
  EXPECT_EQ(PlainText(page), "one\r\ntwo\r\nthree");
}

TEST(RtfReader, ANumberedListFormMakesNone) {
  EXPECT_FALSE(ReadRtf("{\\rtf1{\\*\\pn\\pnlvlbody{\\pntxta .}}one}").Paragraphs[0].Form.Bullet);
}

TEST(RtfReader, DeepNestingIsNoMatter) {
  const RichText page = ReadRtf("{\\rtf1 " + std::string(1000000, '{') + "a" + std::string(1000000, '}') + "b}");
  EXPECT_EQ(PlainText(page), "ab");
}

TEST(RtfReader, ParagraphsBeyondTheMostStayInTheLastOne) {
  std::string rtf = "{\\rtf1 ";
  for (std::size_t i = 0; i < MostParagraphs + 1; ++i) rtf += "a\\par ";
  const RichText page = ReadRtf(rtf + "}");
  EXPECT_EQ(page.Paragraphs.size(), MostParagraphs);
  EXPECT_EQ(page.Paragraphs.back().Runs[0].Text, "a\na");
}

TEST(RtfReader, RunsBeyondTheMostStayInTheLastOne) {
  std::string rtf = "{\\rtf1 ";
  for (std::size_t i = 0; i < MostRuns; ++i) rtf += "\\b a\\b0 b";
  const RichText page = ReadRtf(rtf + "}");
  EXPECT_EQ(page.Paragraphs[0].Runs.size(), MostRuns);
  EXPECT_EQ(PlainText(page).size(), 2 * MostRuns);
}

TEST(RtfReader, TheNameOfAFontHoldsNoTab) { EXPECT_EQ(FormOf("{\\fonttbl{\\f0 \tAr\tial;}}\\f0").FontName, "Arial"); }

TEST(RtfReader, TheNameOfAFontIsBounded) {
  EXPECT_LT(FormOf("{\\fonttbl{\\f0 " + std::string(100000, 'A') + ";}}\\f0").FontName.size(), 200U);
}

}  // namespace
}  // namespace zerimo
