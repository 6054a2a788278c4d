#include "files/saving.h"

#include "files/files_fixture.h"

namespace zerimo {
namespace {

class SavingTest : public FilesTest {
 protected:
  void Write(const std::string& text) { controls.Text2.Text = text; }
};

TEST_F(SavingTest, ShowSaveAsHandsTheDialogItsText) {
  saving.ShowSaveAs();
  EXPECT_EQ(services.Dialogs, (Texts{"save Zerimo File(.ZRM)"}));
}

TEST_F(SavingTest, ShowSaveAsAppendsTheEnding) {
  Write("FD 10");
  services.SaveAnswers = {"A"};
  saving.ShowSaveAs();
  EXPECT_EQ(Temp.Read("work/A.ZRM"), "FD 10\r\n");
}

TEST_F(SavingTest, ShowSaveAsKeepsAnotherEnding) {
  Write("FD 10");
  services.SaveAnswers = {"A.TXT"};
  saving.ShowSaveAs();
  EXPECT_EQ(Temp.Read("work/A.TXT"), "FD 10\r\n");
}

TEST_F(SavingTest, AFullStopInAFolderCountsAsAnEnding) {
  Temp.MakeFolder("work/V1.0");
  Write("FD 10");
  services.SaveAnswers = {"C:V1.0\\A"};
  saving.ShowSaveAs();
  EXPECT_EQ(Temp.Read("work/V1.0/A"), "FD 10\r\n");
}

TEST_F(SavingTest, ShowSaveAsWithoutANameStops) {
  Write("FD 10");
  services.SaveAnswers = {"   "};
  saving.ShowSaveAs();
  EXPECT_EQ(Temp.Count("work"), 0);
}

TEST_F(SavingTest, ShowSaveAsDoesNotTrimTheName) {
  Write("FD 10");
  services.SaveAnswers = {" A "};
  saving.ShowSaveAs();
  EXPECT_TRUE(Temp.Has("work/ A .ZRM"));
}

TEST_F(SavingTest, ShowSaveAsSkipsAFailure) {
  Temp.MakeFolder("work/A.ZRM");
  for (const char* name : {"A", "missing\\A"}) {
    services.SaveAnswers = {name};
    EXPECT_NO_THROW(saving.ShowSaveAs()) << name;
  }
  EXPECT_TRUE(services.Boxes.empty());
  EXPECT_EQ(Temp.Count("work"), 1);
}

TEST_F(SavingTest, SaveAsWritesTheFilteredText) {
  Write("  fd   10 + 5\r\n\r\n\r\nbk [ 10 ]  ");
  saving.SaveAs("A.ZRM");
  EXPECT_EQ(Temp.Read("work/A.ZRM"), "fd 10+5\r\n\r\n\r\nbk[10]\r\n");
}

TEST_F(SavingTest, SaveAsLeavesTheEditorAlone) {
  Write("  fd   10  ");
  saving.SaveAs("A.ZRM");
  EXPECT_EQ(controls.Text2.Text, "  fd   10  ");
}

TEST_F(SavingTest, SaveAsReplacesAFileWithoutAQuestion) {
  Temp.Write("work/a.zrm", "a much longer former text");
  Write("FD 10");
  saving.SaveAs("A.ZRM");
  EXPECT_EQ(Temp.Read("work/a.zrm"), "FD 10\r\n");
  EXPECT_TRUE(services.Boxes.empty());
}

TEST_F(SavingTest, SaveAsFailsWhereItCanNotWrite) {
  Temp.MakeFolder("work/A.ZRM");
  EXPECT_EQ(FailureOf([&] { saving.SaveAs("A.ZRM"); }), FailureKind::FileAccess);
  EXPECT_EQ(FailureOf([&] { saving.SaveAs("\\dev\\full"); }), FailureKind::FileAccess);
}

TEST_F(SavingTest, ATextThatIsTooLongLeavesTheFormerFile) {
  Temp.Write("work/A.ZRM", "FORMER");
  Write(std::string(32767, 'A'));
  EXPECT_EQ(FailureOf([&] { saving.SaveAs("A.ZRM"); }), FailureKind::Overflow);
  EXPECT_EQ(Temp.Read("work/A.ZRM"), "FORMER");
}

TEST_F(SavingTest, ATextOf32766CharactersIsSaved) {
  Write(std::string(32766, 'A'));
  saving.SaveAs("A.ZRM");
  EXPECT_EQ(Temp.Read("work/A.ZRM").size(), 32768U);
}

TEST_F(SavingTest, F10AsksWithTheCurrentFileName) {
  programFiles.CurrentFileName = "PROG";
  saving.SaveFromEditor();
  ASSERT_EQ(services.Inputs.size(), 1U);
  EXPECT_EQ(services.Inputs[0].Prompt, "Enter the file name");
  EXPECT_EQ(services.Inputs[0].Title, "Save As");
  EXPECT_EQ(services.Inputs[0].Default, "PROG");
}

TEST_F(SavingTest, F10SavesInTheCurrentFolder) {
  Temp.Write("app/PROG.ZRM", "fd 10");
  dispatch.Execute("LOAD PROG");
  services.InputAnswers = {"PROG"};
  saving.SaveFromEditor();
  EXPECT_EQ(Temp.Read("work/PROG.ZRM"), "fd 10\r\n");
  EXPECT_EQ(Temp.Read("app/PROG.ZRM"), "fd 10");
}

TEST_F(SavingTest, AfterTheOpenDialogF10OffersTheWholePath) {
  Temp.Write("x/Box.zrm", "fd 10");
  services.OpenAnswers = {"..\\x\\Box.zrm"};
  programFiles.ShowOpen();
  saving.SaveFromEditor();
  ASSERT_EQ(services.Inputs.size(), 1U);
  EXPECT_EQ(services.Inputs[0].Default, "..\\x\\Box");
}

TEST_F(SavingTest, F10AlwaysAppendsTheEnding) {
  services.InputAnswers = {"A.ZRM"};
  saving.SaveFromEditor();
  EXPECT_TRUE(Temp.Has("work/A.ZRM.ZRM"));
}

TEST_F(SavingTest, F10WithAnEmptyAnswerWritesTheBareEnding) {
  Write("FD 10");
  saving.SaveFromEditor();
  EXPECT_EQ(Temp.Read("work/.ZRM"), "FD 10\r\n");
}

TEST_F(SavingTest, F10FailsWhereItCanNotWrite) {
  services.InputAnswers = {"missing\\A"};
  EXPECT_EQ(FailureOf([&] { saving.SaveFromEditor(); }), FailureKind::FileAccess);
}

TEST_F(SavingTest, WhatWasSavedIsLoadedAgain) {
  Write("to box\r\n\r\n fd 10\r\nend");
  saving.SaveAs("A.ZRM");
  controls.Text2.Text.clear();
  programFiles.FileLoad("A");
  EXPECT_EQ(controls.Text2.Text, "to box\r\n\r\n fd 10\r\nend\r\n");
  EXPECT_EQ(Program(), (Texts{"to box", "fd 10", "end"}));
}

TEST_F(SavingTest, TheWordSaveDoesNothing) {
  Write("FD 10");
  dispatch.Execute("SAVE X");
  EXPECT_TRUE(services.Boxes.empty());
  EXPECT_EQ(Temp.Count("work"), 0);
}

TEST_F(SavingTest, ShowProcedureShowsTheProcedures) {
  Fill({"TO SQUARE", "END", "TO STAR :N", "END", "TO #TEMP$1", "END"});
  saving.ShowProcedure();
  EXPECT_EQ(services.Boxes, (std::vector{ShownBox{"[SQUARE]   [STAR :N]   ", 0, ""}}));
}

TEST_F(SavingTest, ShowProcedureInAFullStoreShowsNothing) {
  for (int number = 1; number <= 2000; ++number) store.SetLine(number, "FD 1");
  EXPECT_NO_THROW(saving.ShowProcedure());
  EXPECT_TRUE(services.Boxes.empty());
}

TEST_F(SavingTest, TheEditorsTextIsRescuedAsItStands) {
  Write("  fd   10\r\n");
  EXPECT_TRUE(saving.RescueEditorText());
  EXPECT_EQ(Temp.Read("app/Rescued.ZRM"), "  fd   10\r\n");
}

TEST_F(SavingTest, ATextBeyondTheFilterIsRescued) {
  Write(std::string(40000, 'A'));
  EXPECT_TRUE(saving.RescueEditorText());
  EXPECT_EQ(Temp.Read("app/Rescued.ZRM").size(), 40000U);
}

TEST_F(SavingTest, AnEmptyEditorNeedsNoRescue) {
  EXPECT_FALSE(saving.RescueEditorText());
  EXPECT_EQ(Temp.Count("app"), 0);
}

TEST_F(SavingTest, ARescueThatFailsIsReported) {
  Write("FD 10");
  Temp.MakeFolder("app/Rescued.ZRM");
  EXPECT_FALSE(saving.RescueEditorText());
}

TEST_F(SavingTest, ARescueThatFailsInTheFirstFolderGoesToTheNext) {
  Write("FD 10");
  Temp.MakeFolder("app/Rescued.ZRM");
  Temp.Write("no-folder", "");
  const std::filesystem::path state = Temp.Path / "state/zerimo";
  EXPECT_EQ(saving.RescueEditorText({Temp.Path / "no-folder", state, Temp.Path / "other"}), state / "Rescued.ZRM");
  EXPECT_EQ(Temp.Read("state/zerimo/Rescued.ZRM"), "FD 10");
  EXPECT_EQ(std::filesystem::status(state).permissions(), std::filesystem::perms::owner_all);
  EXPECT_FALSE(Temp.Has("other"));
}

TEST_F(SavingTest, ARescueAmongTheTemporaryFilesHasAFolderOfItsOwn) {
  const auto places = FoldersForRescue("/state", "/tmp");
  ASSERT_EQ(places.size(), 2U);
  EXPECT_EQ(places[0], "/state");
  EXPECT_EQ(places[1].parent_path(), "/tmp");
  EXPECT_NE(places[1], FoldersForRescue("/state", "/tmp")[1]);
  EXPECT_TRUE(FoldersForRescue({}, {}).empty());
}

}  // namespace
}  // namespace zerimo
