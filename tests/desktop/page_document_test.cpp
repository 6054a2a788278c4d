#include "desktop/page_document.h"

#include <gtest/gtest.h>

#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>
#include <ostream>

namespace zerimo {
namespace {

RichText ThroughTheToolkit(const RichText& page) {
  QTextDocument document;
  FillDocument(document, page);
  return ReadDocument(document);
}

RichText PageOf(std::vector<Paragraph> paragraphs) {
  RichText page;
  page.Paragraphs = std::move(paragraphs);
  return page;
}

struct PageCase {
  const char* Name;
  Paragraph Content;
};

void PrintTo(const PageCase& one, std::ostream* out) { *out << one.Name; }

class Pages : public testing::TestWithParam<PageCase> {};

TEST_P(Pages, ComeBackAsTheyWere) {
  const RichText page = PageOf({{{}, {{"before", {}}}}, GetParam().Content, {{}, {{"after", {}}}}});
  EXPECT_EQ(ThroughTheToolkit(page), page);
}

CharacterForm With(void (*change)(CharacterForm&)) {
  CharacterForm form;
  change(form);
  return form;
}

ParagraphForm With(void (*change)(ParagraphForm&)) {
  ParagraphForm form;
  change(form);
  return form;
}

INSTANTIATE_TEST_SUITE_P(
    All, Pages,
    testing::Values(
        PageCase{"empty", {}}, PageCase{"plain", {{}, {{"plain", {}}}}},
        PageCase{"umlauts", {{}, {{"\xC3\xA4\xE2\x82\xAC\xF0\x9F\x90\xA2", {}}}}},
        PageCase{"breaks", {{}, {{"a\nb\tc", {}}}}},
        PageCase{"size", {{}, {{"x", With([](CharacterForm& form) { form.HalfPoints = 23; })}}}},
        PageCase{"bold", {{}, {{"x", With([](CharacterForm& form) { form.Bold = true; })}}}},
        PageCase{"italic", {{}, {{"x", With([](CharacterForm& form) { form.Italic = true; })}}}},
        PageCase{"underline", {{}, {{"x", With([](CharacterForm& form) { form.Underline = true; })}}}},
        PageCase{"strike", {{}, {{"x", With([](CharacterForm& form) { form.Strike = true; })}}}},
        PageCase{"font", {{}, {{"x", With([](CharacterForm& form) { form.FontName = "Liberation Mono"; })}}}},
        PageCase{"colour", {{}, {{"x", With([](CharacterForm& form) { form.Color = 0x0A141E; })}}}},
        PageCase{"black", {{}, {{"x", With([](CharacterForm& form) { form.Color = 0; })}}}},
        PageCase{"ground", {{}, {{"x", With([](CharacterForm& form) { form.Background = 0x00FFFF; })}}}},
        PageCase{"mixed", {{}, {{"a", {}}, {"b", With([](CharacterForm& form) { form.Bold = true; })}, {"c", {}}}}},
        PageCase{"centre", {With([](ParagraphForm& form) { form.Align = Alignment::Centre; }), {{"x", {}}}}},
        PageCase{"right", {With([](ParagraphForm& form) { form.Align = Alignment::Right; }), {{"x", {}}}}},
        PageCase{"justified", {With([](ParagraphForm& form) { form.Align = Alignment::Justified; }), {{"x", {}}}}},
        PageCase{"indents",
                 {With([](ParagraphForm& form) {
                    form.LeftIndent = 721;
                    form.RightIndent = 364;
                    form.FirstIndent = -127;
                  }),
                  {{"x", {}}}}},
        PageCase{"spaces",
                 {With([](ParagraphForm& form) {
                    form.SpaceBefore = 121;
                    form.SpaceAfter = 62;
                  }),
                  {{"x", {}}}}},
        PageCase{"bullet",
                 {With([](ParagraphForm& form) {
                    form.Bullet = true;
                    form.LeftIndent = 360;
                    form.FirstIndent = -360;
                  }),
                  {{"x", {}}}}},
        PageCase{"tabs",
                 {With([](ParagraphForm& form) {
                    form.Tabs = {1440, 2881};
                  }),
                  {{"a\tb", {}}}}}),
    [](const testing::TestParamInfo<PageCase>& page) { return page.param.Name; });

TEST(PageDocument, TwoListsStayTwo) {
  ParagraphForm bullet;
  bullet.Bullet = true;
  const RichText page =
      PageOf({{bullet, {{"a", {}}}}, {bullet, {{"b", {}}}}, {{}, {{"between", {}}}}, {bullet, {{"c", {}}}}});
  EXPECT_EQ(ThroughTheToolkit(page), page);
}

TEST(PageDocument, BulletsAreNoPartOfTheText) {
  ParagraphForm bullet;
  bullet.Bullet = true;
  QTextDocument document;
  FillDocument(document, PageOf({{bullet, {{"a", {}}}}}));
  EXPECT_EQ(document.toPlainText(), "a");
  EXPECT_NE(document.begin().textList(), nullptr);
}

TEST(PageDocument, ANewPageTakesThePlaceOfTheOldOne) {
  QTextDocument document;
  FillDocument(document, PageOf({{{}, {{"old", {}}}}}));
  FillDocument(document, PageOf({{{}, {{"new", {}}}}}));
  EXPECT_EQ(document.toPlainText(), "new");
}

TEST(PageDocument, TextTypedBesideLettersOfTheSameFormJoinsTheirRun) {
  QTextDocument document;
  FillDocument(document, PageOf({{{}, {{"ac", {}}}}}));
  QTextCursor cursor(&document);
  cursor.setPosition(1);
  cursor.insertText("b");
  EXPECT_EQ(ReadDocument(document), PageOf({{{}, {{"abc", {}}}}}));
}

}  // namespace
}  // namespace zerimo
