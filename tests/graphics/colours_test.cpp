#include "graphics/colours.h"

#include "graphics/drawing_test.h"
#include "support/quoted.h"

namespace zerimo {
namespace {

using ColoursTest = DrawingTest;

struct TableRow {
  int Code, Red, Green, Blue;
};

void PrintTo(const TableRow& one, std::ostream* out) {
  *out << one.Code << ", " << one.Red << ", " << one.Green << ", " << one.Blue;
}

class ColourOfCode : public DrawingTest, public testing::WithParamInterface<TableRow> {};

TEST_P(ColourOfCode, IsTheOneOfTheTable) {
  const TableRow row = GetParam();
  Do("SETPC " + std::to_string(row.Code));
  EXPECT_EQ(Picture1.ForeColor(), row.Red + 256 * row.Green + 65536 * row.Blue);
  EXPECT_EQ(turtle.PenColor, row.Code);
}

INSTANTIATE_TEST_SUITE_P(Table, ColourOfCode,
                         testing::Values(TableRow{0, 0, 0, 0}, TableRow{1, 0, 0, 128}, TableRow{2, 0, 128, 0},
                                         TableRow{3, 0, 128, 128}, TableRow{4, 128, 0, 0}, TableRow{5, 128, 0, 128},
                                         TableRow{6, 128, 128, 0}, TableRow{7, 192, 192, 192},
                                         TableRow{8, 128, 128, 128}, TableRow{9, 0, 0, 255}, TableRow{10, 0, 255, 0},
                                         TableRow{11, 0, 255, 255}, TableRow{12, 255, 0, 0}, TableRow{13, 255, 0, 255},
                                         TableRow{14, 255, 255, 0}, TableRow{15, 255, 255, 255}));

struct Reduction {
  const char* Input;
  int Code;
};

void PrintTo(const Reduction& one, std::ostream* out) { *out << Quoted(one.Input) << ", " << one.Code; }

class ReducedCode : public DrawingTest, public testing::WithParamInterface<Reduction> {};

TEST_P(ReducedCode, IsTheRemainderOfTheRoundedInput) {
  const std::string input = GetParam().Input;
  Do("SETBG " + input);
  EXPECT_EQ(turtle.BGColor, GetParam().Code);
}

INSTANTIATE_TEST_SUITE_P(Inputs, ReducedCode,
                         testing::Values(Reduction{"17", 1}, Reduction{"3.5", 4}, Reduction{"2.5", 2},
                                         Reduction{"-1", -1}, Reduction{"-17", -1}, Reduction{"16", 0},
                                         Reduction{"15.5", 0}, Reduction{"2147483647", 15},
                                         Reduction{"2147483648", 8388736}));

// SETPC.

TEST_F(ColoursTest, SetPCColoursPenFigureFramesAndCaption) {
  EXPECT_EQ(Do("SETPC 4"), Texts{"ForeColor=128"});
  EXPECT_EQ(turtle.PenColor, 4);
  EXPECT_EQ(controls.Shape2.BorderColor, 128);
  EXPECT_EQ(controls.Line1.BorderColor, 128);
  EXPECT_EQ(controls.Line2.BorderColor, 128);
  EXPECT_EQ(controls.Line3.BorderColor, 128);
  for (const Shape* frame : {&controls.Shape5, &controls.Shape7}) {
    EXPECT_EQ(frame->Left, controls.Label13[4].Left);
    EXPECT_EQ(frame->Top, controls.Label13[4].Top);
  }
  EXPECT_EQ(controls.Label15.Caption, "Setpc  4");
}

TEST_F(ColoursTest, SetPCWithThePenUpChangesTheForegroundAtOnce) {
  EXPECT_EQ(Do("PU", "SETPC 2", "FD 10", "PD"), Texts({"ForeColor=32768", "ForeColor=32768"}));
}

TEST_F(ColoursTest, SetPCWhileErasingBeforeTheFirstSetBGLeavesTheForeground) {
  Do("PE");
  EXPECT_EQ(Do("SETPC 2"), Nothing);
  EXPECT_EQ(turtle.PenColor, 2);
  EXPECT_EQ(controls.Shape2.BorderColor, QBColor(2));
}

TEST_F(ColoursTest, SetPCWhileErasingGoesOnErasing) {
  Do("SETBG 1", "PE");
  EXPECT_EQ(Do("SETPC 2"), Texts{"ForeColor=8388608"});
  EXPECT_EQ(turtle.PenColor, 2);
  EXPECT_EQ(controls.Shape2.BorderColor, QBColor(2));
}

TEST_F(ColoursTest, NegativeSetPCSetsTheOldColourAgainAndItsCaptionOnly) {
  Do("SETPC 4");
  EXPECT_EQ(Do("SETPC -1"), Texts{"ForeColor=128"});
  EXPECT_EQ(turtle.PenColor, 4);
  EXPECT_EQ(controls.Shape2.BorderColor, 128);
  EXPECT_EQ(controls.Shape5.Left, controls.Label13[4].Left);
  EXPECT_EQ(controls.Shape7.Top, controls.Label13[4].Top);
  EXPECT_EQ(controls.Label15.Caption, "Setpc -1");
}

TEST_F(ColoursTest, SetPC20TakesCode4AndLeavesTheFrames) {
  EXPECT_EQ(Do("SETPC 20"), Texts{"ForeColor=128"});
  EXPECT_EQ(turtle.PenColor, 4);
  EXPECT_EQ(controls.Shape2.BorderColor, 128);
  EXPECT_EQ(controls.Shape5.Left, controls.Label13[15].Left);
  EXPECT_EQ(controls.Shape7.Top, controls.Label13[15].Top);
  EXPECT_EQ(controls.Label15.Caption, "Setpc  20");
}

TEST_F(ColoursTest, SetPCBeyond32BitsKeepsTheCode) {
  EXPECT_EQ(Do("SETPC 3000000000"), Texts{"ForeColor=16777215"});
  EXPECT_EQ(turtle.PenColor, 15);
  EXPECT_EQ(controls.Shape2.BorderColor, 0xFFFFFF);
  EXPECT_EQ(controls.Label15.Caption, "Setpc  3000000000");
}

TEST_F(ColoursTest, FractionIsRoundedForTheCodeAndTheFramesButNotForTheCaption) {
  Do("SETPC 2.5");
  EXPECT_EQ(turtle.PenColor, 2);
  EXPECT_EQ(controls.Shape5.Left, controls.Label13[2].Left);
  EXPECT_EQ(controls.Shape7.Top, controls.Label13[2].Top);
  EXPECT_EQ(controls.Label15.Caption, "Setpc  2.5");
}

// SETBG.

TEST_F(ColoursTest, SetBGClearsTheSurfaceAndKeepsTheTurtle) {
  Pixels.Calls.clear();
  Do("SETBG 1");
  EXPECT_EQ(Pixels.Calls, Texts{"Clear 8388608"});
  EXPECT_EQ(turtle.TurtleX, 1000);
  EXPECT_EQ(turtle.TurtleY, 2000);
  EXPECT_EQ(turtle.TurtleDir, 0);
}

TEST_F(ColoursTest, SetBGWithThePenDownSetsThePenColour) {
  EXPECT_EQ(Do("SETBG 1"), Texts({"BackColor=8388608", "ForeColor=16777215"}));
  EXPECT_EQ(turtle.BGColor, 1);
}

TEST_F(ColoursTest, SetBGWithThePenUpLeavesTheForeground) {
  EXPECT_EQ(Do("PU", "SETBG 1"), Texts{"BackColor=8388608"});
}

TEST_F(ColoursTest, SetBGWhileErasingErasesWithTheNewBackground) {
  Do("PE");
  EXPECT_EQ(Do("SETBG 1"), Texts({"BackColor=8388608", "ForeColor=8388608"}));
}

TEST_F(ColoursTest, SetBGMovesTheFramesAndWritesTheCaption) {
  Do("SETBG 6");
  for (const Shape* frame : {&controls.Shape5, &controls.Shape7}) {
    EXPECT_EQ(frame->Left, controls.Label13[6].Left);
    EXPECT_EQ(frame->Top, controls.Label13[6].Top);
  }
  EXPECT_EQ(controls.Label15.Caption, "Setbg  6");
  EXPECT_EQ(controls.Shape2.BorderColor, 0xFFFFFF);
}

TEST_F(ColoursTest, SetBGBeyondTheSquaresReducesTheCodeAlone) {
  Do("SETBG 20");
  EXPECT_EQ(Picture1.BackColor(), 128);
  EXPECT_EQ(controls.Shape5.Left, controls.Label13[15].Left);
  EXPECT_EQ(controls.Label15.Caption, "Setbg  20");
}

TEST_F(ColoursTest, NegativeSetBGKeepsTheCodeAndTheBackgroundStays) {
  EXPECT_EQ(Do("SETBG -1"), Texts{"ForeColor=16777215"});
  EXPECT_EQ(turtle.BGColor, -1);
  EXPECT_EQ(Picture1.BackColor(), 8388736);
  EXPECT_EQ(controls.Label15.Caption, "Setbg -1");
}

TEST_F(ColoursTest, NegativeSetBGWhileErasingFailsUntilTheNextSetBG) {
  Do("PE");
  EXPECT_EQ(Do("SETBG -1", "SETPC 2"), Nothing);
  EXPECT_EQ(Do("SETBG 2"), Texts({"BackColor=32768", "ForeColor=32768"}));
}

// FillBack.

TEST_F(ColoursTest, FillBackSetsTheLatticeRowByRow) {
  turtle.BGColor = 5;
  Picture1.Width = 101;
  Picture1.SetHeight(51);
  Recorder.Operations.clear();
  colours.FillBack(4);
  EXPECT_EQ(Recorder.Operations, Texts({"PSet 1 1 128", "PSet 51 1 128", "PSet 101 1 128", "PSet 1 51 128",
                                        "PSet 51 51 128", "PSet 101 51 128"}));
  EXPECT_EQ(turtle.BGColor, 4);
  EXPECT_EQ(Picture1.BackColor(), 8388736);
}

TEST_F(ColoursTest, FillBackRoundsTheWidthAlone) {
  turtle.BGColor = 5;
  Picture1.Width = 50.5;
  Picture1.SetHeight(50.9F);
  Recorder.Operations.clear();
  colours.FillBack(4);
  EXPECT_EQ(Recorder.Operations, Texts{"PSet 1 1 128"});
  Picture1.Width = 51.5;
  turtle.BGColor = 5;
  Recorder.Operations.clear();
  colours.FillBack(4);
  EXPECT_EQ(Recorder.Operations, Texts({"PSet 1 1 128", "PSet 51 1 128"}));
}

TEST_F(ColoursTest, FillBackSkipsPointsOfAnotherColour) {
  turtle.BGColor = 6;
  Recorder.Operations.clear();
  colours.FillBack(4);
  EXPECT_EQ(Recorder.Operations, Nothing);
  EXPECT_EQ(turtle.BGColor, 4);
}

TEST_F(ColoursTest, FillBackFailsWhileTheBackgroundIsNoCode) {
  EXPECT_THROW(colours.FillBack(4), Failure);
  EXPECT_EQ(turtle.BGColor, 8388736);
}

TEST_F(ColoursTest, FillBackFailsAtACodeOutsideOfTheTable) {
  turtle.BGColor = 5;
  EXPECT_THROW(colours.FillBack(16), Failure);
  EXPECT_EQ(turtle.BGColor, 5);
}

TEST_F(ColoursTest, FillBackFailsAtAWidthBeyond16Bits) {
  turtle.BGColor = 6;
  Picture1.Width = 40000;
  EXPECT_THROW(colours.FillBack(4), Failure);
}

// TEXTCOLOR and TEXTBACKGROUND.

TEST_F(ColoursTest, TextColorColoursRowsPromptAndTextScreen) {
  EXPECT_EQ(Do("TEXTCOLOR 19"), Nothing);
  for (int row = 0; row < 5; ++row) EXPECT_EQ(controls.Text1[row].ForeColor, QBColor(3));
  EXPECT_EQ(controls.Prompt.ForeColor, QBColor(3));
  EXPECT_EQ(controls.List4.ForeColor, QBColor(3));
  EXPECT_EQ(controls.Label15.Caption, "TEXTCOLOR  19");
  EXPECT_EQ(controls.Shape5.Left, controls.Label13[15].Left);
}

TEST_F(ColoursTest, TextBackgroundColoursTheSameControlsAndKeepsTheSlipOfItsCaption) {
  EXPECT_EQ(Do("TEXTBACKGROUND 3"), Nothing);
  for (int row = 0; row < 5; ++row) EXPECT_EQ(controls.Text1[row].BackColor, QBColor(3));
  EXPECT_EQ(controls.Prompt.BackColor, QBColor(3));
  EXPECT_EQ(controls.List4.BackColor, QBColor(3));
  EXPECT_EQ(controls.Label15.Caption, "TEXTCOLOR  3");
}

TEST_F(ColoursTest, TextColoursMoveTheFrames) {
  Do("TEXTCOLOR 3");
  EXPECT_EQ(controls.Shape5.Left, controls.Label13[3].Left);
  EXPECT_EQ(controls.Shape7.Top, controls.Label13[3].Top);
  Do("TEXTBACKGROUND 8");
  EXPECT_EQ(controls.Shape5.Top, controls.Label13[8].Top);
  EXPECT_EQ(controls.Shape7.Left, controls.Label13[8].Left);
}

TEST_F(ColoursTest, NegativeTextColoursWriteTheCaptionOnly) {
  const Colour fore = controls.Text1[0].ForeColor;
  const Colour back = controls.List4.BackColor;
  Do("TEXTCOLOR -1");
  EXPECT_EQ(controls.Label15.Caption, "TEXTCOLOR -1");
  Do("TEXTBACKGROUND -2");
  EXPECT_EQ(controls.Label15.Caption, "TEXTCOLOR -2");
  EXPECT_EQ(controls.Text1[0].ForeColor, fore);
  EXPECT_EQ(controls.List4.BackColor, back);
  EXPECT_EQ(controls.Shape5.Left, controls.Label13[15].Left);
}

class MissingColour : public DrawingTest, public testing::WithParamInterface<const char*> {};

TEST_P(MissingColour, ShowsTheBoxAndEnds) {
  EXPECT_EQ(Do(GetParam()), Nothing);
  EXPECT_EQ(services.Boxes, std::vector<ShownBox>({{std::string(MissingText) + GetParam(), 2, "Zerimo"}}));
  EXPECT_EQ(controls.Label15.Caption, "Setpc 15");
}

INSTANTIATE_TEST_SUITE_P(Words, MissingColour, testing::Values("SETPC", "SETBG", "TEXTCOLOR", "TEXTBACKGROUND"));

TEST_F(ColoursTest, CleaningTouchesNoColour) {
  EXPECT_EQ(Do("SETPC 4", "CS", "CLEAN"), Texts({"ForeColor=128", "Cls", "Cls"}));
  EXPECT_EQ(turtle.PenColor, 4);
}

}  // namespace
}  // namespace zerimo
