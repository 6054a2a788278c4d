#include "files/program_files.h"

#include "files/files_fixture.h"

namespace zerimo {
namespace {

class ProgramFilesTest : public FilesTest {
 protected:
  /// A program with so many statements.
  static std::string Statements(int count) {
    std::string text;
    for (int i = 0; i < count; ++i) text += "FD 1\r\n";
    return text;
  }

  ShownBox UnableToLoad(const std::string& path) const { return {"Unable to Load File " + path, 2, "Zerimo"}; }
};

TEST_F(ProgramFilesTest, ALoadFillsTheStore) {
  Disk.Write("app/BOX.ZRM", "TO BOX\r\n\r\nFD 10\r\n\r\n\r\nEND\r\n");
  Primitives.Execute("LOAD BOX");
  EXPECT_EQ(Program(), (Texts{"TO BOX", "FD 10", "END"}));
}

TEST_F(ProgramFilesTest, TheCountStandsOneBehindTheLastLine) {
  Disk.Write("app/BOX.ZRM", "TO BOX\r\nEND\r\n");
  Primitives.Execute("LOAD BOX");
  EXPECT_EQ(Store.FileDataCount, 3);
}

TEST_F(ProgramFilesTest, TheCountStandsOnTheLastLineWithoutALineEnd) {
  Disk.Write("app/BOX.ZRM", "TO BOX\r\nEND");
  Primitives.Execute("LOAD BOX");
  EXPECT_EQ(Store.FileDataCount, 2);
}

TEST_F(ProgramFilesTest, ALoadGivesTheEditorTheVeryBytes) {
  std::string all;
  for (int code = 0; code < 256; ++code) all += static_cast<char>(code);
  Disk.Write("app/ALL.ZRM", all);
  Primitives.Execute("LOAD ALL");
  EXPECT_EQ(Controls.Text2.Text, all);
  EXPECT_EQ(Files.LoadedText, all);
}

TEST_F(ProgramFilesTest, OfEveryByteValueOnlyThePrintableOnesReachTheStore) {
  std::string all;
  for (int code = 255; code >= 0; --code) {
    if (code != 13) all += static_cast<char>(code);
  }
  std::string kept;
  for (int code = 126; code > 32; --code) kept += static_cast<char>(code);
  Disk.Write("app/ALL.ZRM", all);
  Primitives.Execute("LOAD ALL");
  EXPECT_EQ(Program(), (Texts{kept}));
}

TEST_F(ProgramFilesTest, ATypedNameFindsASmallOne) {
  Disk.Write("app/box.zrm", "FD 10");
  Primitives.Execute("LOAD BOX");
  EXPECT_EQ(Program(), (Texts{"FD 10"}));
}

TEST_F(ProgramFilesTest, NamesWithDotsBlanksAndUmlauts) {
  Disk.Write(
      "app/1. \xC3\x9C"
      "bung.zrm",
      "FD 10");
  Primitives.Execute(
      "LOAD 1. \xDC"
      "BUNG");
  EXPECT_EQ(Program(), (Texts{"FD 10"}));
}

TEST_F(ProgramFilesTest, SmallLettersStay) {
  Disk.Write("app/BOX.ZRM", "to box\r\nfd 10\r\nend");
  Primitives.Execute("LOAD BOX");
  EXPECT_EQ(Program(), (Texts{"to box", "fd 10", "end"}));
}

TEST_F(ProgramFilesTest, ALoadAddsBehindWhatIsThere) {
  Disk.Write("app/A.ZRM", "FD 1\r\n");
  Primitives.Execute("LOAD A");
  Primitives.Execute("LOAD A");
  EXPECT_EQ(Program(), (Texts{"FD 1", "FD 1"}));
  EXPECT_EQ(Controls.Text2.Text, "FD 1\r\nFD 1\r\n");
}

TEST_F(ProgramFilesTest, NoLineEndIsPutBetweenTwoLoads) {
  Disk.Write("app/A.ZRM", "FD 1");
  Controls.Text2.Text = "BK 1";
  Primitives.Execute("LOAD A");
  EXPECT_EQ(Controls.Text2.Text, "BK 1FD 1");
}

TEST_F(ProgramFilesTest, ANameWithAFolderDoesNotUseAppFolder) {
  Disk.Write("work/X/A.ZRM", "FD 1");
  Primitives.Execute("LOAD X\\A");
  EXPECT_EQ(Program(), (Texts{"FD 1"}));
}

TEST_F(ProgramFilesTest, ADriveLetterDoesNotUseAppFolder) {
  Disk.Write("x/a.zrm", "FD 1");
  Primitives.Execute("LOAD C:" + Disk.Path.string() + "\\X\\A");
  EXPECT_EQ(Program(), (Texts{"FD 1"}));
}

TEST_F(ProgramFilesTest, CurrentFileNameIsTheTrimmedArgument) {
  Primitives.Execute("LOAD  my box");
  EXPECT_EQ(Files.CurrentFileName, "my box");
}

TEST_F(ProgramFilesTest, CurrentFileNameKeepsItsFolder) {
  Primitives.Execute("LOAD C:\\X\\A");
  EXPECT_EQ(Files.CurrentFileName, "C:\\X\\A");
}

TEST_F(ProgramFilesTest, ABlankInFrontOfTheNameIsPartOfIt) {
  Disk.Write("app/BOX.ZRM", "FD 1");
  Primitives.Execute("LOAD  BOX");
  EXPECT_EQ(Desktop.Boxes, (std::vector{UnableToLoad(InApp(" BOX.ZRM"))}));
}

TEST_F(ProgramFilesTest, AMissingInputIsTold) {
  for (const char* line : {"LOAD", "LOAD  "}) {
    Desktop.Boxes.clear();
    Primitives.Execute(line);
    EXPECT_EQ(Desktop.Boxes, (std::vector{ShownBox{"Required Paramiter Missing After LOAD", 2, "Zerimo"}}));
  }
}

TEST_F(ProgramFilesTest, AMissingInputDoesNothingElse) {
  Files.CurrentFileName = "FORMER";
  Fill({"REPEAT 2 [FD 1]"});
  Primitives.Execute("LOAD");
  EXPECT_EQ(Files.CurrentFileName, "FORMER");
  EXPECT_EQ(Program(), (Texts{"REPEAT 2 [FD 1]"}));
}

TEST_F(ProgramFilesTest, AMissingFileIsTold) {
  Primitives.Execute("LOAD NONE");
  EXPECT_EQ(Desktop.Boxes, (std::vector{UnableToLoad(InApp("NONE.ZRM"))}));
}

TEST_F(ProgramFilesTest, AFolderOfThatNameIsTold) {
  Disk.MakeFolder("app/BOX.ZRM");
  Primitives.Execute("LOAD BOX");
  EXPECT_EQ(Desktop.Boxes, (std::vector{UnableToLoad(InApp("BOX.ZRM"))}));
}

TEST_F(ProgramFilesTest, AMissingFileLeavesAllAsItWas) {
  Fill({"FD 1"});
  Controls.Text2.Text = "TEXT";
  Files.LoadedText = "FORMER";
  Primitives.Execute("LOAD NONE");
  EXPECT_EQ(Program(), (Texts{"FD 1"}));
  EXPECT_EQ(Controls.Text2.Text, "TEXT");
  EXPECT_EQ(Files.LoadedText, "FORMER");
}

TEST_F(ProgramFilesTest, EveryAnswerToTheBoxDoesTheSame) {
  for (const Answer answer : {Answer::Abort, Answer::Retry, Answer::Ignore}) {
    Desktop.Boxes.clear();
    Desktop.BoxAnswers = {answer};
    EXPECT_NO_THROW(Primitives.Execute("LOAD NONE"));
    EXPECT_EQ(Desktop.Boxes.size(), 1U);
  }
}

TEST_F(ProgramFilesTest, GlobalsAreReadAlsoWhenTheFileIsMissing) {
  Fill({"MAKE \"A 5", "TO BOX", "END"});
  Primitives.Execute("LOAD NONE");
  EXPECT_EQ(Names.Slot(1), "\"A=5");
}

TEST_F(ProgramFilesTest, RepeatsAreLoweredAlsoWhenTheFileIsMissing) {
  Fill({"REPEAT 2 [FD 1]"});
  Primitives.Execute("LOAD NONE");
  EXPECT_EQ(Program(), (Texts{"MAKE # 1", "LABEL $", "FD 1", "MAKE # #+1", "IF #<=2", "GOTO $", "ENDIF"}));
}

TEST_F(ProgramFilesTest, GlobalsOfTheFileAreMade) {
  Disk.Write("app/A.ZRM", "MAKE \"A 5\r\nTO BOX\r\nEND");
  Primitives.Execute("LOAD A");
  EXPECT_EQ(Names.Slot(1), "\"A=5");
}

TEST_F(ProgramFilesTest, RepeatsOfTheFileAreLowered) {
  Disk.Write("app/A.ZRM", "REPEAT 2 [FD 1]");
  Primitives.Execute("LOAD A");
  EXPECT_EQ(Program(), (Texts{"MAKE # 1", "LABEL $", "FD 1", "MAKE # #+1", "IF #<=2", "GOTO $", "ENDIF"}));
}

TEST_F(ProgramFilesTest, ALoopWithBlanksAsItsWriterMeant) {
  Disk.Write("app/A.ZRM", "REPEAT 4 [ FD 10 RT 90 ]");
  Primitives.Execute("LOAD A");
  EXPECT_EQ(Program(), (Texts{"MAKE # 1", "LABEL $", "FD 10", "RT 90", "MAKE # #+1", "IF #<=4", "GOTO $", "ENDIF"}));
}

TEST_F(ProgramFilesTest, ALoadListsTheStore) {
  Disk.Write("app/A.ZRM", " TO BOX \r\nEND\r\n");
  Controls.List1.Add("FORMER");
  Primitives.Execute("LOAD A");
  EXPECT_EQ(Listed(Controls.List1), (Texts{" 1  TO BOX", " 2  END"}));
  EXPECT_EQ(Listed(Controls.List3), (Texts{"TO BOX"}));
}

TEST_F(ProgramFilesTest, LinesAreTrimmedInTheStore) {
  Disk.Write("app/A.ZRM", "  FD 10  \r\n");
  Primitives.Execute("LOAD A");
  EXPECT_EQ(Store.Line(1), "FD 10");
}

TEST_F(ProgramFilesTest, ALineOfBlanksEndsTheProgram) {
  Disk.Write("app/A.ZRM", "FD 1\r\n   \r\nTO BOX\r\nEND\r\n");
  Primitives.Execute("LOAD A");
  EXPECT_EQ(Program(), (Texts{"FD 1"}));
  EXPECT_EQ(Store.Line(3), "TO BOX");
}

TEST_F(ProgramFilesTest, ALineOfBlanksIsListedAndTheListingGoesOn) {
  Disk.Write("app/A.ZRM", "FD 1\r\n   \r\nFD 3\r\n");
  Primitives.Execute("LOAD A");
  EXPECT_EQ(Listed(Controls.List1), (Texts{" 1  FD 1", " 2  ", " 3  FD 3"}));
}

TEST_F(ProgramFilesTest, WhatStandsBehindALineOfBlanksCanNotBeReached) {
  Disk.Write("app/A.ZRM", "TO A\r\nEND\r\n   \r\nTO B\r\nEND\r\n");
  Primitives.Execute("LOAD A");
  EXPECT_EQ(Store.WhereProcedure("A"), 1);
  EXPECT_EQ(Store.WhereProcedure("B"), 0);
  EXPECT_EQ(Listed(Controls.List3), (Texts{"TO A"}));
  EXPECT_EQ(Store.ProcedureListInStringForm(), "[A]   ");
}

TEST_F(ProgramFilesTest, A1999LineProgramLoads) {
  Disk.Write("app/A.ZRM", Statements(1999));
  Primitives.Execute("LOAD A");
  EXPECT_TRUE(Desktop.Boxes.empty());
  EXPECT_EQ(Listed(Controls.List1).size(), 1999U);
}

TEST_F(ProgramFilesTest, TheSearchForAnEmptyLineFailsInAFullStore) {
  Disk.Write("app/A.ZRM", Statements(2000));
  Primitives.Execute("LOAD A");
  EXPECT_EQ(Desktop.Boxes, (std::vector{UnableToLoad(InApp("A.ZRM"))}));
  EXPECT_EQ(Store.Line(2000), "FD 1");
}

TEST_F(ProgramFilesTest, Line2001IsTold) {
  Disk.Write("app/A.ZRM", Statements(2001));
  Controls.List1.Add("FORMER");
  Controls.List3.Add("FORMER");
  Primitives.Execute("LOAD A");
  EXPECT_EQ(Desktop.Boxes, (std::vector{UnableToLoad(InApp("A.ZRM"))}));
  EXPECT_EQ(Store.Line(2000), "FD 1");
  EXPECT_EQ(Controls.Text2.Text, Statements(2001));
  EXPECT_EQ(Listed(Controls.List1), (Texts{"FORMER"}));
  EXPECT_EQ(Listed(Controls.List3), (Texts{"FORMER"}));
}

TEST_F(ProgramFilesTest, MakeArrayLeavesWithItsFailure) {
  EXPECT_EQ(FailureOf([&] { Files.MakeArray("NONE.ZRM"); }), FailureKind::FileNotFound);
}

TEST_F(ProgramFilesTest, MakeArrayLeavesTheEditorAlone) {
  Disk.Write("work/A.ZRM", "FD 1");
  Files.MakeArray("A.ZRM");
  EXPECT_EQ(Program(), (Texts{"FD 1"}));
  EXPECT_EQ(Controls.Text2.Text, "");
}

TEST_F(ProgramFilesTest, FileLoadTrimsThePath) {
  Disk.Write("work/A.ZRM", "FD 1");
  Files.FileLoad("  A");
  EXPECT_EQ(Program(), (Texts{"FD 1"}));
}

TEST_F(ProgramFilesTest, ShowOpenLoadsAProgram) {
  Disk.Write("work/sub/Box.zrm", "FD 1");
  Desktop.OpenAnswers = {" sub\\Box.zrm "};
  Files.ShowOpen();
  EXPECT_EQ(Program(), (Texts{"FD 1"}));
  EXPECT_EQ(Listed(Controls.List4), (Texts{"? LOAD sub\\Box"}));
  EXPECT_EQ(Files.CurrentFileName, "sub\\Box");
}

TEST_F(ProgramFilesTest, ShowOpenWithoutANameDoesNothing) {
  Desktop.OpenAnswers = {"  "};
  Files.ShowOpen();
  EXPECT_TRUE(Desktop.Boxes.empty());
  EXPECT_TRUE(Listed(Controls.List4).empty());
}

TEST_F(ProgramFilesTest, ShowOpenAsksTheOpenDialog) {
  Files.ShowOpen();
  EXPECT_EQ(Desktop.Dialogs, (Texts{"open"}));
}

TEST_F(ProgramFilesTest, ShowOpenRefusesOtherFiles) {
  for (const char* name : {"C:\\A.TXT", "C:\\A.ICO", "C:\\A.CUR", "A", "ZRM"}) {
    Desktop.Boxes.clear();
    Desktop.OpenAnswers = {name};
    Files.ShowOpen();
    EXPECT_EQ(Desktop.Boxes, (std::vector{ShownBox{"Invalid File Format", 16, "Zerimo"}})) << name;
  }
}

TEST_F(ProgramFilesTest, ShowOpenShowsAPicture) {
  Disk.Write("work/sub/Sea.jpg", "picture");
  Desktop.OpenAnswers = {"sub\\Sea.jpg"};
  Files.ShowOpen();
  EXPECT_EQ(Loaded.Paths, (Texts{"sub\\Sea.jpg"}));
  EXPECT_EQ(Listed(Controls.List4), (Texts{"? LOADPICTURE SUB\\SEA"}));
}

TEST_F(ProgramFilesTest, ShowOpenEchoesAPictureThatFails) {
  for (const char* name : {"X\\A.BMP", "X\\A.gif"}) {
    Controls.List4.Clear();
    Desktop.OpenAnswers = {name};
    Files.ShowOpen();
    EXPECT_EQ(Listed(Controls.List4), (Texts{"? LOADPICTURE X\\A"})) << name;
  }
  EXPECT_TRUE(Desktop.Boxes.empty());
}

TEST_F(ProgramFilesTest, ShowOpenOnTheBareEndingTellsAMissingInput) {
  Desktop.OpenAnswers = {".ZRM"};
  Files.ShowOpen();
  EXPECT_EQ(Desktop.BoxTexts(), (Texts{"Required Paramiter Missing After LOAD"}));
  EXPECT_EQ(Listed(Controls.List4), (Texts{"? LOAD "}));
}

}  // namespace
}  // namespace zerimo
