#include "files/saving.h"

#include "files/files_fixture.h"

namespace zerimo {
namespace {

class SavingTest : public FilesTest {
 protected:
  void Write(const std::string& text) { Controls.Text2.Text = text; }
};

TEST_F(SavingTest, ShowSaveAsHandsTheDialogItsText) {
  Save.ShowSaveAs();
  EXPECT_EQ(Desktop.Dialogs, (Texts{"save Zerimo File(.ZRM)"}));
}

TEST_F(SavingTest, ShowSaveAsAppendsTheEnding) {
  Write("FD 10");
  Desktop.SaveAnswers = {"A"};
  Save.ShowSaveAs();
  EXPECT_EQ(Disk.Read("work/A.ZRM"), "FD 10\r\n");
}

TEST_F(SavingTest, ShowSaveAsKeepsAnotherEnding) {
  Write("FD 10");
  Desktop.SaveAnswers = {"A.TXT"};
  Save.ShowSaveAs();
  EXPECT_EQ(Disk.Read("work/A.TXT"), "FD 10\r\n");
}

TEST_F(SavingTest, AFullStopInAFolderCountsAsAnEnding) {
  Disk.MakeFolder("work/V1.0");
  Write("FD 10");
  Desktop.SaveAnswers = {"C:V1.0\\A"};
  Save.ShowSaveAs();
  EXPECT_EQ(Disk.Read("work/V1.0/A"), "FD 10\r\n");
}

TEST_F(SavingTest, ShowSaveAsWithoutANameStops) {
  Write("FD 10");
  Desktop.SaveAnswers = {"   "};
  Save.ShowSaveAs();
  EXPECT_EQ(Disk.Count("work"), 0);
}

TEST_F(SavingTest, ShowSaveAsDoesNotTrimTheName) {
  Write("FD 10");
  Desktop.SaveAnswers = {" A "};
  Save.ShowSaveAs();
  EXPECT_TRUE(Disk.Has("work/ A .ZRM"));
}

TEST_F(SavingTest, ShowSaveAsPassesOverAFailure) {
  Disk.MakeFolder("work/A.ZRM");
  for (const char* name : {"A", "missing\\A"}) {
    Desktop.SaveAnswers = {name};
    EXPECT_NO_THROW(Save.ShowSaveAs()) << name;
  }
  EXPECT_TRUE(Desktop.Boxes.empty());
  EXPECT_EQ(Disk.Count("work"), 1);
}

TEST_F(SavingTest, SaveAsWritesTheFilteredText) {
  Write("  fd   10 + 5\r\n\r\n\r\nbk [ 10 ]  ");
  Save.SaveAs("A.ZRM");
  EXPECT_EQ(Disk.Read("work/A.ZRM"), "fd 10+5\r\n\r\n\r\nbk[10]\r\n");
}

TEST_F(SavingTest, SaveAsLeavesTheEditorAlone) {
  Write("  fd   10  ");
  Save.SaveAs("A.ZRM");
  EXPECT_EQ(Controls.Text2.Text, "  fd   10  ");
}

TEST_F(SavingTest, SaveAsReplacesAFileWithoutAQuestion) {
  Disk.Write("work/a.zrm", "a much longer former text");
  Write("FD 10");
  Save.SaveAs("A.ZRM");
  EXPECT_EQ(Disk.Read("work/a.zrm"), "FD 10\r\n");
  EXPECT_TRUE(Desktop.Boxes.empty());
}

TEST_F(SavingTest, SaveAsFailsWhereItCanNotWrite) {
  Disk.MakeFolder("work/A.ZRM");
  EXPECT_EQ(FailureOf([&] { Save.SaveAs("A.ZRM"); }), FailureKind::FileAccess);
  EXPECT_EQ(FailureOf([&] { Save.SaveAs("\\dev\\full"); }), FailureKind::FileAccess);
}

TEST_F(SavingTest, ATextThatIsTooLongLeavesTheFormerFile) {
  Disk.Write("work/A.ZRM", "FORMER");
  Write(std::string(32767, 'A'));
  EXPECT_EQ(FailureOf([&] { Save.SaveAs("A.ZRM"); }), FailureKind::Overflow);
  EXPECT_EQ(Disk.Read("work/A.ZRM"), "FORMER");
}

TEST_F(SavingTest, ATextOf32766CharactersIsSaved) {
  Write(std::string(32766, 'A'));
  Save.SaveAs("A.ZRM");
  EXPECT_EQ(Disk.Read("work/A.ZRM").size(), 32768U);
}

TEST_F(SavingTest, F10AsksWithTheCurrentFileName) {
  Files.CurrentFileName = "PROG";
  Save.SaveFromEditor();
  ASSERT_EQ(Desktop.Inputs.size(), 1U);
  EXPECT_EQ(Desktop.Inputs[0].Prompt, "Enter the file name");
  EXPECT_EQ(Desktop.Inputs[0].Title, "Save As");
  EXPECT_EQ(Desktop.Inputs[0].Default, "PROG");
}

TEST_F(SavingTest, F10SavesInTheCurrentFolder) {
  Disk.Write("app/PROG.ZRM", "fd 10");
  Primitives.Execute("LOAD PROG");
  Desktop.InputAnswers = {"PROG"};
  Save.SaveFromEditor();
  EXPECT_EQ(Disk.Read("work/PROG.ZRM"), "fd 10\r\n");
  EXPECT_EQ(Disk.Read("app/PROG.ZRM"), "fd 10");
}

TEST_F(SavingTest, BehindTheOpenDialogF10OffersTheWholePath) {
  Disk.Write("x/Box.zrm", "fd 10");
  Desktop.OpenAnswers = {"..\\x\\Box.zrm"};
  Files.ShowOpen();
  Save.SaveFromEditor();
  ASSERT_EQ(Desktop.Inputs.size(), 1U);
  EXPECT_EQ(Desktop.Inputs[0].Default, "..\\x\\Box");
}

TEST_F(SavingTest, F10AlwaysAppendsTheEnding) {
  Desktop.InputAnswers = {"A.ZRM"};
  Save.SaveFromEditor();
  EXPECT_TRUE(Disk.Has("work/A.ZRM.ZRM"));
}

TEST_F(SavingTest, F10WithAnEmptyAnswerWritesTheBareEnding) {
  Write("FD 10");
  Save.SaveFromEditor();
  EXPECT_EQ(Disk.Read("work/.ZRM"), "FD 10\r\n");
}

TEST_F(SavingTest, F10FailsWhereItCanNotWrite) {
  Desktop.InputAnswers = {"missing\\A"};
  EXPECT_EQ(FailureOf([&] { Save.SaveFromEditor(); }), FailureKind::FileAccess);
}

TEST_F(SavingTest, WhatWasSavedIsLoadedAgain) {
  Write("to box\r\n\r\n fd 10\r\nend");
  Save.SaveAs("A.ZRM");
  Controls.Text2.Text.clear();
  Files.FileLoad("A");
  EXPECT_EQ(Controls.Text2.Text, "to box\r\n\r\n fd 10\r\nend\r\n");
  EXPECT_EQ(Program(), (Texts{"to box", "fd 10", "end"}));
}

TEST_F(SavingTest, TheWordSaveDoesNothing) {
  Write("FD 10");
  Primitives.Execute("SAVE X");
  EXPECT_TRUE(Desktop.Boxes.empty());
  EXPECT_EQ(Disk.Count("work"), 0);
}

TEST_F(SavingTest, ShowProcedureShowsTheProcedures) {
  Fill({"TO SQUARE", "END", "TO STAR :N", "END", "TO #TEMP$1", "END"});
  Save.ShowProcedure();
  EXPECT_EQ(Desktop.Boxes, (std::vector{ShownBox{"[SQUARE]   [STAR :N]   ", 0, ""}}));
}

TEST_F(SavingTest, ShowProcedureInAFullStoreShowsNothing) {
  for (int number = 1; number <= 2000; ++number) Store.SetLine(number, "FD 1");
  EXPECT_NO_THROW(Save.ShowProcedure());
  EXPECT_TRUE(Desktop.Boxes.empty());
}

TEST_F(SavingTest, TheEditorsTextIsRescuedAsItStands) {
  Write("  fd   10\r\n");
  EXPECT_TRUE(Save.RescueEditorText(Place));
  EXPECT_EQ(Disk.Read("app/Rescued.ZRM"), "  fd   10\r\n");
}

TEST_F(SavingTest, ATextBeyondTheFilterIsRescued) {
  Write(std::string(40000, 'A'));
  EXPECT_TRUE(Save.RescueEditorText(Place));
  EXPECT_EQ(Disk.Read("app/Rescued.ZRM").size(), 40000U);
}

TEST_F(SavingTest, AnEmptyEditorNeedsNoRescue) {
  EXPECT_FALSE(Save.RescueEditorText(Place));
  EXPECT_EQ(Disk.Count("app"), 0);
}

TEST_F(SavingTest, ARescueThatFailsIsTold) {
  Write("FD 10");
  Disk.MakeFolder("app/Rescued.ZRM");
  EXPECT_FALSE(Save.RescueEditorText(Place));
}

}  // namespace
}  // namespace zerimo
