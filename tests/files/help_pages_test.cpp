#include "files/help_pages.h"

#include "files/files_fixture.h"
#include "files/rich_text.h"

namespace zerimo {
namespace {

class HelpPagesTest : public FilesTest {
 protected:
  void Page(const std::string& name, const std::string& bytes) { Temp.Write("work/ZMHELP/" + name, bytes); }

  RichTextView& View() { return controls.RichTextBox1; }
  bool IsOpen() { return View().Visible() && controls.File1.Visible(); }

  ShownBox NotAvailable(const std::string& word) const { return {"Help is not available for " + word, 0, ""}; }
};

TEST_F(HelpPagesTest, HelpOpensThePageOfAWord) {
  Page("FD", "Forward");
  dispatch.Execute("HELP FD");
  EXPECT_TRUE(IsOpen());
  EXPECT_EQ(View().FileName, "ZMHELP\\FD");
  EXPECT_EQ(View().Text, "Forward");
}

TEST_F(HelpPagesTest, HelpAloneOpensTheGeneralPage) {
  Page("HELP", "Welcome");
  dispatch.Execute("HELP");
  EXPECT_TRUE(IsOpen());
  EXPECT_EQ(View().FileName, "ZMHELP\\HELP");
}

TEST_F(HelpPagesTest, TheWordIsTurnedToCapitals) {
  Page("FD", "Forward");
  dispatch.Execute("HELP fd");
  EXPECT_EQ(View().FileName, "ZMHELP\\FD");
}

TEST_F(HelpPagesTest, AMissingPageIsReportedAsTheUserWroteIt) {
  Page("FD", "Forward");
  dispatch.Execute("HELP xyz");
  EXPECT_EQ(services.Boxes, (std::vector{NotAvailable("xyz")}));
  EXPECT_FALSE(View().Visible());
  EXPECT_FALSE(controls.File1.Visible());
}

TEST_F(HelpPagesTest, AMissingFolderIsReported) {
  dispatch.Execute("HELP XYZ");
  EXPECT_EQ(services.Boxes, (std::vector{NotAvailable("XYZ")}));
}

TEST_F(HelpPagesTest, AMissingGeneralPageIsReportedWithoutAWord) {
  dispatch.Execute("HELP");
  EXPECT_EQ(services.Boxes, (std::vector{NotAvailable("")}));
}

TEST_F(HelpPagesTest, TwoPagesInARowLeaveTheSecondOpen) {
  Page("FD", "Forward");
  Page("BK", "Back");
  dispatch.Execute("HELP FD");
  dispatch.Execute("HELP BK");
  EXPECT_TRUE(IsOpen());
  EXPECT_EQ(View().Text, "Back");
  EXPECT_EQ(View().Version, 2U);
}

TEST_F(HelpPagesTest, AMissingPageLeavesTheOpenOne) {
  Page("FD", "Forward");
  dispatch.Execute("HELP FD");
  dispatch.Execute("HELP XYZ");
  EXPECT_TRUE(IsOpen());
  EXPECT_EQ(View().Text, "Forward");
}

TEST_F(HelpPagesTest, AFailureInTheRestOfTheCallIsReportedToo) {
  Page("FD", "Forward");
  dispatch.OverflowCount = 32767;
  dispatch.Execute("HELP FD");
  EXPECT_TRUE(IsOpen());
  EXPECT_EQ(services.Boxes, (std::vector{NotAvailable("FD")}));
}

TEST_F(HelpPagesTest, TheHandlerEndsWithItsCall) {
  Page("FD", "Forward");
  dispatch.Execute("HELP FD");
  dispatch.OverflowCount = 32767;
  dispatch.Execute("SAVE");
  EXPECT_TRUE(services.Boxes.empty());
}

TEST_F(HelpPagesTest, HelpListsThePages) {
  for (const char* name : {"RT", "FD", "HELP", "(SUM"}) Page(name, "");
  dispatch.Execute("HELP");
  EXPECT_EQ(controls.File1.Path, "ZMHELP\\");
  EXPECT_EQ(controls.File1.Items, (Texts{"(SUM", "FD", "HELP", "RT"}));
}

TEST_F(HelpPagesTest, PagesStandInTheCurrentFolder) {
  Temp.Write("app/ZMHELP/FD", "Forward");
  dispatch.Execute("HELP FD");
  EXPECT_EQ(services.Boxes, (std::vector{NotAvailable("FD")}));
}

TEST_F(HelpPagesTest, APressOnTheListLoadsThePage) {
  Page("FD", "Forward");
  controls.File1.FileName = "FD";
  helpPages.File1MouseDown();
  EXPECT_EQ(View().FileName, "ZMHELP\\FD");
  EXPECT_EQ(View().Text, "Forward");
}

TEST_F(HelpPagesTest, APressOnTheListFailsWithoutAPage) {
  controls.File1.FileName = "FD";
  EXPECT_EQ(FailureOf([&] { helpPages.File1MouseDown(); }), FailureKind::FileNotFound);
}

TEST_F(HelpPagesTest, ARichPageShowsItsWords) {
  Page("FD", "{\\rtf1\\ansi {\\fonttbl{\\f0 Arial;}}\\b Forward\\b0\\par draws a line\\par}");
  dispatch.Execute("HELP FD");
  EXPECT_EQ(View().Text, "Forward\r\ndraws a line");
}

TEST_F(HelpPagesTest, ARichPageIsKeptAsItStands) {
  const std::string bytes = "{\\rtf1 {\\*\\unknown x}Forward}";
  Page("FD", bytes);
  dispatch.Execute("HELP FD");
  EXPECT_EQ(View().Document, bytes);
}

TEST_F(HelpPagesTest, APlainPageIsTurnedIntoRichText) {
  Page("FD", "One {two}\r\n\r\nthree \\ four\n");
  dispatch.Execute("HELP FD");
  EXPECT_EQ(View().Text, "One {two}\r\n\r\nthree \\ four\r\n");
  EXPECT_TRUE(IsRtf(View().Document));
  EXPECT_EQ(PlainText(ReadRtf(View().Document)), View().Text);
}

TEST_F(HelpPagesTest, APlainPageMayBeSingleByteOrUtf8) {
  for (const char* bytes : {"Gr\xFC\xDF"
                            "e",
                            "Gr\xC3\xBC\xC3\x9F"
                            "e"}) {
    Page("FD", bytes);
    dispatch.Execute("HELP FD");
    EXPECT_EQ(View().Text,
              "Gr\xFC\xDF"
              "e");
  }
}

TEST_F(HelpPagesTest, ACharacterThatTheSystemLacksIsAQuestionMarkInTheText) {
  Page("FD", "{\\rtf1 a\\emdash b\\'80}");
  dispatch.Execute("HELP FD");
  EXPECT_EQ(View().Text, "a?b?");
}

TEST_F(HelpPagesTest, EscClosesTheView) {
  Page("FD", "Forward");
  dispatch.Execute("HELP FD");
  helpPages.CloseView();
  EXPECT_FALSE(View().Visible());
  EXPECT_FALSE(controls.File1.Visible());
}

TEST_F(HelpPagesTest, F11AsksForAName) {
  services.InputAnswers = {"MINE"};
  helpPages.SavePage();
  ASSERT_EQ(services.Inputs.size(), 1U);
  EXPECT_EQ(services.Inputs[0].Prompt, "Enter the file name");
  EXPECT_EQ(services.Inputs[0].Title, "Save for Help");
  EXPECT_EQ(services.Inputs[0].Default, "");
}

TEST_F(HelpPagesTest, F11SavesThePageUnderTheAnswerAsItStands) {
  View().Document = "{\\rtf1 page}";
  services.InputAnswers = {"MINE"};
  helpPages.SavePage();
  EXPECT_EQ(Temp.Read("work/MINE"), "{\\rtf1 page}\r\n");
}

TEST_F(HelpPagesTest, F11WithAnEmptyAnswerFails) {
  EXPECT_EQ(FailureOf([&] { helpPages.SavePage(); }), FailureKind::FileAccess);
}

TEST_F(HelpPagesTest, ASavedPageReadsBackTheSame) {
  Page("FD", "{\\rtf1\\ansi\\b Forward\\b0\\par draws}");
  dispatch.Execute("HELP FD");
  const RichText before = ReadRtf(View().Document);
  services.InputAnswers = {"ZMHELP\\MINE"};
  helpPages.SavePage();
  dispatch.Execute("HELP MINE");
  EXPECT_EQ(ReadRtf(View().Document), before);
}

}  // namespace
}  // namespace zerimo
