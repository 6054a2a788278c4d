#include "files/program_files.h"

#include "files/files_fixture.h"

namespace zerimo {
namespace {

class ProgramFilesTest : public FilesTest {
 protected:
  /// A program with a number of statements.
  static std::string Statements(int count) {
    std::string text;
    for (int i = 0; i < count; ++i) text += "FD 1\r\n";
    return text;
  }

  ShownBox UnableToLoad(const std::string& path) const { return {"Unable to Load File " + path, 2, "Zerimo"}; }
};

TEST_F(ProgramFilesTest, ALoadFillsTheStore) {
  Temp.Write("app/BOX.ZRM", "TO BOX\r\n\r\nFD 10\r\n\r\n\r\nEND\r\n");
  dispatch.Execute("LOAD BOX");
  EXPECT_EQ(Program(), (Texts{"TO BOX", "FD 10", "END"}));
}

TEST_F(ProgramFilesTest, TheCountIsOnePastTheLastLine) {
  Temp.Write("app/BOX.ZRM", "TO BOX\r\nEND\r\n");
  dispatch.Execute("LOAD BOX");
  EXPECT_EQ(store.FileDataCount, 3);
}

TEST_F(ProgramFilesTest, TheCountIsTheLastLineWithoutALineEnd) {
  Temp.Write("app/BOX.ZRM", "TO BOX\r\nEND");
  dispatch.Execute("LOAD BOX");
  EXPECT_EQ(store.FileDataCount, 2);
}

TEST_F(ProgramFilesTest, ALoadGivesTheEditorTheVeryBytes) {
  std::string all;
  for (int code = 0; code < 256; ++code) all += static_cast<char>(code);
  Temp.Write("app/ALL.ZRM", all);
  dispatch.Execute("LOAD ALL");
  EXPECT_EQ(controls.Text2.Text, all);
  EXPECT_EQ(programFiles.LoadedText, all);
}

TEST_F(ProgramFilesTest, OfEveryByteValueOnlyThePrintableOnesReachTheStore) {
  std::string all;
  for (int code = 255; code >= 0; --code) {
    if (code != 13) all += static_cast<char>(code);
  }
  std::string kept;
  for (int code = 126; code > 32; --code) kept += static_cast<char>(code);
  Temp.Write("app/ALL.ZRM", all);
  dispatch.Execute("LOAD ALL");
  EXPECT_EQ(Program(), (Texts{kept}));
}

TEST_F(ProgramFilesTest, ATypedNameFindsASmallOne) {
  Temp.Write("app/box.zrm", "FD 10");
  dispatch.Execute("LOAD BOX");
  EXPECT_EQ(Program(), (Texts{"FD 10"}));
}

TEST_F(ProgramFilesTest, NamesWithDotsBlanksAndUmlauts) {
  Temp.Write(
      "app/1. \xC3\x9C"
      "bung.zrm",
      "FD 10");
  dispatch.Execute(
      "LOAD 1. \xDC"
      "BUNG");
  EXPECT_EQ(Program(), (Texts{"FD 10"}));
}

TEST_F(ProgramFilesTest, SmallLettersStay) {
  Temp.Write("app/BOX.ZRM", "to box\r\nfd 10\r\nend");
  dispatch.Execute("LOAD BOX");
  EXPECT_EQ(Program(), (Texts{"to box", "fd 10", "end"}));
}

TEST_F(ProgramFilesTest, ALoadAddsAfterWhatIsThere) {
  Temp.Write("app/A.ZRM", "FD 1\r\n");
  dispatch.Execute("LOAD A");
  dispatch.Execute("LOAD A");
  EXPECT_EQ(Program(), (Texts{"FD 1", "FD 1"}));
  EXPECT_EQ(controls.Text2.Text, "FD 1\r\nFD 1\r\n");
}

TEST_F(ProgramFilesTest, NoLineEndIsPutBetweenTwoLoads) {
  Temp.Write("app/A.ZRM", "FD 1");
  controls.Text2.Text = "BK 1";
  dispatch.Execute("LOAD A");
  EXPECT_EQ(controls.Text2.Text, "BK 1FD 1");
}

TEST_F(ProgramFilesTest, ANameWithAFolderDoesNotUseAppFolder) {
  Temp.Write("work/X/A.ZRM", "FD 1");
  dispatch.Execute("LOAD X\\A");
  EXPECT_EQ(Program(), (Texts{"FD 1"}));
}

TEST_F(ProgramFilesTest, ADriveLetterDoesNotUseAppFolder) {
  Temp.Write("x/a.zrm", "FD 1");
  dispatch.Execute("LOAD C:" + Temp.Path.string() + "\\X\\A");
  EXPECT_EQ(Program(), (Texts{"FD 1"}));
}

TEST_F(ProgramFilesTest, CurrentFileNameIsTheTrimmedArgument) {
  dispatch.Execute("LOAD  my box");
  EXPECT_EQ(programFiles.CurrentFileName, "my box");
}

TEST_F(ProgramFilesTest, CurrentFileNameKeepsItsFolder) {
  dispatch.Execute("LOAD C:\\X\\A");
  EXPECT_EQ(programFiles.CurrentFileName, "C:\\X\\A");
}

TEST_F(ProgramFilesTest, ABlankInFrontOfTheNameIsPartOfIt) {
  Temp.Write("app/BOX.ZRM", "FD 1");
  dispatch.Execute("LOAD  BOX");
  EXPECT_EQ(services.Boxes, (std::vector{UnableToLoad(InApp(" BOX.ZRM"))}));
}

TEST_F(ProgramFilesTest, AMissingInputIsReported) {
  for (const char* line : {"LOAD", "LOAD  "}) {
    services.Boxes.clear();
    dispatch.Execute(line);
    EXPECT_EQ(services.Boxes, (std::vector{ShownBox{"Required Paramiter Missing After LOAD", 2, "Zerimo"}}));
  }
}

TEST_F(ProgramFilesTest, AMissingInputDoesNothingElse) {
  programFiles.CurrentFileName = "FORMER";
  Fill({"REPEAT 2 [FD 1]"});
  dispatch.Execute("LOAD");
  EXPECT_EQ(programFiles.CurrentFileName, "FORMER");
  EXPECT_EQ(Program(), (Texts{"REPEAT 2 [FD 1]"}));
}

TEST_F(ProgramFilesTest, AMissingFileIsReported) {
  dispatch.Execute("LOAD NONE");
  EXPECT_EQ(services.Boxes, (std::vector{UnableToLoad(InApp("NONE.ZRM"))}));
}

TEST_F(ProgramFilesTest, AFolderOfThatNameIsReported) {
  Temp.MakeFolder("app/BOX.ZRM");
  dispatch.Execute("LOAD BOX");
  EXPECT_EQ(services.Boxes, (std::vector{UnableToLoad(InApp("BOX.ZRM"))}));
}

TEST_F(ProgramFilesTest, AMissingFileLeavesAllAsItWas) {
  Fill({"FD 1"});
  controls.Text2.Text = "TEXT";
  programFiles.LoadedText = "FORMER";
  dispatch.Execute("LOAD NONE");
  EXPECT_EQ(Program(), (Texts{"FD 1"}));
  EXPECT_EQ(controls.Text2.Text, "TEXT");
  EXPECT_EQ(programFiles.LoadedText, "FORMER");
}

TEST_F(ProgramFilesTest, EveryAnswerToTheBoxDoesTheSame) {
  for (const Answer answer : {Answer::Abort, Answer::Retry, Answer::Ignore}) {
    services.Boxes.clear();
    services.BoxAnswers = {answer};
    EXPECT_NO_THROW(dispatch.Execute("LOAD NONE"));
    EXPECT_EQ(services.Boxes.size(), 1U);
  }
}

TEST_F(ProgramFilesTest, GlobalsAreReadAlsoWhenTheFileIsMissing) {
  Fill({"MAKE \"A 5", "TO BOX", "END"});
  dispatch.Execute("LOAD NONE");
  EXPECT_EQ(variables.Slot(1), "\"A=5");
}

TEST_F(ProgramFilesTest, RepeatsAreLoweredAlsoWhenTheFileIsMissing) {
  Fill({"REPEAT 2 [FD 1]"});
  dispatch.Execute("LOAD NONE");
  EXPECT_EQ(Program(), (Texts{"MAKE # 1", "LABEL $", "FD 1", "MAKE # #+1", "IF #<=2", "GOTO $", "ENDIF"}));
}

TEST_F(ProgramFilesTest, GlobalsOfTheFileAreMade) {
  Temp.Write("app/A.ZRM", "MAKE \"A 5\r\nTO BOX\r\nEND");
  dispatch.Execute("LOAD A");
  EXPECT_EQ(variables.Slot(1), "\"A=5");
}

TEST_F(ProgramFilesTest, RepeatsOfTheFileAreLowered) {
  Temp.Write("app/A.ZRM", "REPEAT 2 [FD 1]");
  dispatch.Execute("LOAD A");
  EXPECT_EQ(Program(), (Texts{"MAKE # 1", "LABEL $", "FD 1", "MAKE # #+1", "IF #<=2", "GOTO $", "ENDIF"}));
}

TEST_F(ProgramFilesTest, ALoopWithBlanksAsItsWriterMeant) {
  Temp.Write("app/A.ZRM", "REPEAT 4 [ FD 10 RT 90 ]");
  dispatch.Execute("LOAD A");
  EXPECT_EQ(Program(), (Texts{"MAKE # 1", "LABEL $", "FD 10", "RT 90", "MAKE # #+1", "IF #<=4", "GOTO $", "ENDIF"}));
}

TEST_F(ProgramFilesTest, ALoadListsTheStore) {
  Temp.Write("app/A.ZRM", " TO BOX \r\nEND\r\n");
  controls.List1.Add("FORMER");
  dispatch.Execute("LOAD A");
  EXPECT_EQ(Listed(controls.List1), (Texts{" 1  TO BOX", " 2  END"}));
  EXPECT_EQ(Listed(controls.List3), (Texts{"TO BOX"}));
}

TEST_F(ProgramFilesTest, LinesAreTrimmedInTheStore) {
  Temp.Write("app/A.ZRM", "  FD 10  \r\n");
  dispatch.Execute("LOAD A");
  EXPECT_EQ(store.Line(1), "FD 10");
}

TEST_F(ProgramFilesTest, ALineOfBlanksEndsTheProgram) {
  Temp.Write("app/A.ZRM", "FD 1\r\n   \r\nTO BOX\r\nEND\r\n");
  dispatch.Execute("LOAD A");
  EXPECT_EQ(Program(), (Texts{"FD 1"}));
  EXPECT_EQ(store.Line(3), "TO BOX");
}

TEST_F(ProgramFilesTest, ALineOfBlanksIsListedAndTheListingGoesOn) {
  Temp.Write("app/A.ZRM", "FD 1\r\n   \r\nFD 3\r\n");
  dispatch.Execute("LOAD A");
  EXPECT_EQ(Listed(controls.List1), (Texts{" 1  FD 1", " 2  ", " 3  FD 3"}));
}

TEST_F(ProgramFilesTest, WhatFollowsALineOfBlanksCanNotBeReached) {
  Temp.Write("app/A.ZRM", "TO A\r\nEND\r\n   \r\nTO B\r\nEND\r\n");
  dispatch.Execute("LOAD A");
  EXPECT_EQ(store.WhereProcedure("A"), 1);
  EXPECT_EQ(store.WhereProcedure("B"), 0);
  EXPECT_EQ(Listed(controls.List3), (Texts{"TO A"}));
  EXPECT_EQ(store.ProcedureListInStringForm(), "[A]   ");
}

TEST_F(ProgramFilesTest, A1999LineProgramLoads) {
  Temp.Write("app/A.ZRM", Statements(1999));
  dispatch.Execute("LOAD A");
  EXPECT_TRUE(services.Boxes.empty());
  EXPECT_EQ(Listed(controls.List1).size(), 1999U);
}

TEST_F(ProgramFilesTest, TheSearchForAnEmptyLineFailsInAFullStore) {
  Temp.Write("app/A.ZRM", Statements(2000));
  dispatch.Execute("LOAD A");
  EXPECT_EQ(services.Boxes, (std::vector{UnableToLoad(InApp("A.ZRM"))}));
  EXPECT_EQ(store.Line(2000), "FD 1");
}

TEST_F(ProgramFilesTest, Line2001IsReported) {
  Temp.Write("app/A.ZRM", Statements(2001));
  controls.List1.Add("FORMER");
  controls.List3.Add("FORMER");
  dispatch.Execute("LOAD A");
  EXPECT_EQ(services.Boxes, (std::vector{UnableToLoad(InApp("A.ZRM"))}));
  EXPECT_EQ(store.Line(2000), "FD 1");
  EXPECT_EQ(controls.Text2.Text, Statements(2001));
  EXPECT_EQ(Listed(controls.List1), (Texts{"FORMER"}));
  EXPECT_EQ(Listed(controls.List3), (Texts{"FORMER"}));
}

TEST_F(ProgramFilesTest, MakeArrayLeavesWithItsFailure) {
  EXPECT_EQ(FailureOf([&] { programFiles.MakeArray("NONE.ZRM"); }), FailureKind::FileNotFound);
}

TEST_F(ProgramFilesTest, MakeArrayLeavesTheEditorAlone) {
  Temp.Write("work/A.ZRM", "FD 1");
  programFiles.MakeArray("A.ZRM");
  EXPECT_EQ(Program(), (Texts{"FD 1"}));
  EXPECT_EQ(controls.Text2.Text, "");
}

TEST_F(ProgramFilesTest, FileLoadTrimsThePath) {
  Temp.Write("work/A.ZRM", "FD 1");
  programFiles.FileLoad("  A");
  EXPECT_EQ(Program(), (Texts{"FD 1"}));
}

TEST_F(ProgramFilesTest, ShowOpenLoadsAProgram) {
  Temp.Write("work/sub/Box.zrm", "FD 1");
  services.OpenAnswers = {" sub\\Box.zrm "};
  programFiles.ShowOpen();
  EXPECT_EQ(Program(), (Texts{"FD 1"}));
  EXPECT_EQ(Listed(controls.List4), (Texts{"? LOAD sub\\Box"}));
  EXPECT_EQ(programFiles.CurrentFileName, "sub\\Box");
}

TEST_F(ProgramFilesTest, ShowOpenWithoutANameDoesNothing) {
  services.OpenAnswers = {"  "};
  programFiles.ShowOpen();
  EXPECT_TRUE(services.Boxes.empty());
  EXPECT_TRUE(Listed(controls.List4).empty());
}

TEST_F(ProgramFilesTest, ShowOpenAsksTheOpenDialog) {
  programFiles.ShowOpen();
  EXPECT_EQ(services.Dialogs, (Texts{"open"}));
}

TEST_F(ProgramFilesTest, ShowOpenRefusesOtherFiles) {
  for (const char* name : {"C:\\A.TXT", "C:\\A.ICO", "C:\\A.CUR", "A", "ZRM"}) {
    services.Boxes.clear();
    services.OpenAnswers = {name};
    programFiles.ShowOpen();
    EXPECT_EQ(services.Boxes, (std::vector{ShownBox{"Invalid File Format", 16, "Zerimo"}})) << name;
  }
}

TEST_F(ProgramFilesTest, ShowOpenShowsAPicture) {
  Temp.Write("work/sub/Sea.jpg", "picture");
  services.OpenAnswers = {"sub\\Sea.jpg"};
  programFiles.ShowOpen();
  EXPECT_EQ(Loaded.Paths, (Texts{"sub\\Sea.jpg"}));
  EXPECT_EQ(Listed(controls.List4), (Texts{"? LOADPICTURE SUB\\SEA"}));
}

TEST_F(ProgramFilesTest, ShowOpenEchoesAPictureThatFails) {
  for (const char* name : {"X\\A.BMP", "X\\A.gif"}) {
    controls.List4.Clear();
    services.OpenAnswers = {name};
    programFiles.ShowOpen();
    EXPECT_EQ(Listed(controls.List4), (Texts{"? LOADPICTURE X\\A"})) << name;
  }
  EXPECT_TRUE(services.Boxes.empty());
}

TEST_F(ProgramFilesTest, ShowOpenOnTheBareEndingTellsAMissingInput) {
  services.OpenAnswers = {".ZRM"};
  programFiles.ShowOpen();
  EXPECT_EQ(services.BoxTexts(), (Texts{"Required Paramiter Missing After LOAD"}));
  EXPECT_EQ(Listed(controls.List4), (Texts{"? LOAD "}));
}

}  // namespace
}  // namespace zerimo
