#include "graphics/surface_text.h"

#include "graphics/drawing_test.h"
#include "support/quoted.h"

namespace zerimo {
namespace {

using SurfaceTextTest = DrawingTest;

TEST_F(SurfaceTextTest, TextSizeTakesFractions) {
  EXPECT_EQ(Do("TEXTSIZE 14.5"), Texts{"Font.Size=14.5"});
  EXPECT_EQ(Do("TEXTSIZE 10 + 5"), Texts{"Font.Size=15"});
}

TEST_F(SurfaceTextTest, TextSizeThatTheFontRefusesStays) {
  EXPECT_EQ(Do("TEXTSIZE 0", "TEXTSIZE -1", "TEXTSIZE 3000"), Nothing);
  EXPECT_EQ(Picture1.FontSize(), 12);
}

TEST_F(SurfaceTextTest, TextSizeWithoutInputShowsTheBox) {
  EXPECT_EQ(Do("TEXTSIZE"), Nothing);
  EXPECT_EQ(services.Boxes, std::vector<ShownBox>({{std::string(MissingText) + "TEXTSIZE", 2, "Zerimo"}}));
}

struct Written {
  const char* Line;
  const char* Text;
};

void PrintTo(const Written& one, std::ostream* out) { *out << Quoted(one.Line) << ", " << Quoted(one.Text); }

class WriteInput : public DrawingTest, public testing::WithParamInterface<Written> {};

TEST_P(WriteInput, IsPrintedAtTheTurtle) {
  EXPECT_EQ(Do(GetParam().Line), Texts({"CurrentX=1000", "CurrentY=2000", std::string("Print ") + GetParam().Text}));
  EXPECT_TRUE(services.Boxes.empty());
}

INSTANTIATE_TEST_SUITE_P(typedLines, WriteInput,
                         testing::Values(Written{"WRITE \"A B\"", "A B"}, Written{"WRITE \"\"", ""},
                                         Written{"WRITE \"XCOR\"", "XCOR"}, Written{"WRITE \"A\"B\"", "A\"B"},
                                         Written{"WRITE 2+3", " 5"}, Written{"WRITE 2-3", "-1"},
                                         Written{"WRITE .5", " .5"}, Written{"WRITE", " 0"}, Written{"WRITE \"A", " 0"},
                                         Written{"WRITE A\"", " 0"}));

TEST_F(SurfaceTextTest, SingleQuoteHasNothingBetweenItsEndsAndPrintsNothing) {
  EXPECT_EQ(Do("WRITE \""), Texts({"CurrentX=1000", "CurrentY=2000"}));
}

TEST_F(SurfaceTextTest, WriteObeysNoPenState) {
  Do("PU", "WRITE \"A\"");
  EXPECT_EQ(Pixels.Calls, Texts{"Print A 67 133 12 16777215"});
  Pixels.Calls.clear();
  Do("PE", "WRITE \"A\"");
  EXPECT_EQ(Pixels.Calls, Texts{"Print A 67 133 12 8388736"});
}

TEST_F(SurfaceTextTest, WriteLeavesTheTurtle) {
  turtle.TurtleDir = 1;
  Do("WRITE \"A B\"");
  EXPECT_EQ(turtle.TurtleX, 1000);
  EXPECT_EQ(turtle.TurtleY, 2000);
  EXPECT_EQ(turtle.TurtleDir, 1);
}

TEST_F(SurfaceTextTest, WriteBeyondSinglesPrintsAtTheOldPoint) {
  turtle.TurtleX = 1E300;
  EXPECT_EQ(Do("WRITE \"A\""), Texts({"CurrentY=2000", "Print A"}));
}

TEST_F(SurfaceTextTest, WriteRGBTakesTheSurfacesOwnHeight) {
  EXPECT_EQ(Do("WRITERGB \"Hello, there,255 2 3 14\""),
            Texts({"CurrentX=1000", "CurrentY=2000", "CurrentX=5100", "CurrentY=3850", "Font.Size=14", "ForeColor=255",
                   "Print Hello, there", "ForeColor=16777215"}));
}

TEST_F(SurfaceTextTest, WriteRGBKeepsItsSizeAndThePensColour) {
  Do("WRITERGB \"A,255 0 0 14.5\"");
  EXPECT_EQ(Picture1.FontSize(), 14.5);
  EXPECT_EQ(Picture1.ForeColor(), 0xFFFFFF);
}

TEST_F(SurfaceTextTest, WriteRGBTakesFractionsAndExpressionsInItsWords) {
  EXPECT_EQ(Do("WRITERGB \"A,250+5 .5 -.5 7*2\""),
            Texts({"CurrentX=1000", "CurrentY=2000", "CurrentX=5025", "CurrentY=4025", "Font.Size=14", "ForeColor=255",
                   "Print A", "ForeColor=16777215"}));
}

TEST_F(SurfaceTextTest, WriteRGBWithThePenUpPrints) {
  Do("PU", "WRITERGB \"A,255 0 0 14\"");
  EXPECT_EQ(Pixels.Calls, Texts{"Print A 333 267 14 255"});
}

TEST_F(SurfaceTextTest, WriteRGBDropsItsEndsWhateverTheyAre) {
  EXPECT_EQ(Do("WRITERGB XHello,255 0 0 14X")[6], "Print Hello");
}

TEST_F(SurfaceTextTest, WriteRGBWithoutACommaPrintsAnEmptyLine) {
  EXPECT_EQ(Do("WRITERGB \"HELLO\""), Texts({"CurrentX=1000", "CurrentY=2000", "CurrentX=5000", "CurrentY=4000",
                                             "ForeColor=0", "Print ", "ForeColor=16777215"}));
}

TEST_F(SurfaceTextTest, WriteRGBWithoutACommaTakesItsWordsFromTheWholeText) {
  EXPECT_EQ(Do("WRITERGB \"255 2 3 14\""), Texts({"CurrentX=1000", "CurrentY=2000", "CurrentX=5100", "CurrentY=3850",
                                                  "Font.Size=14", "ForeColor=255", "Print ", "ForeColor=16777215"}));
}

TEST_F(SurfaceTextTest, WriteRGBAloneOrOfOneCharacterPrintsAnEmptyLine) {
  const Texts empty = {"CurrentX=1000", "CurrentY=2000", "CurrentX=5000",     "CurrentY=4000",
                       "ForeColor=0",   "Print ",        "ForeColor=16777215"};
  EXPECT_EQ(Do("WRITERGB"), empty);
  EXPECT_EQ(Do("WRITERGB A"), empty);
}

TEST_F(SurfaceTextTest, WriteRGBSizeThatTheFontRefusesStays) {
  Do("WRITERGB \"A,255 0 0 0\"");
  EXPECT_EQ(Picture1.FontSize(), 12);
  EXPECT_EQ(Pixels.Calls, Texts{"Print A 333 267 12 255"});
}

TEST_F(SurfaceTextTest, WriteRGBColourBeyond32BitsPrintsInThePensColour) {
  Do("WRITERGB \"A,3000000000 0 0 9\"");
  EXPECT_EQ(Pixels.Calls, Texts{"Print A 333 267 9 16777215"});
}

}  // namespace
}  // namespace zerimo
