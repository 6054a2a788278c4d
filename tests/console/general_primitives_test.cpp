#include <gtest/gtest.h>

#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include "support/quoted.h"
#include "support/whole_system.h"

namespace zerimo {
namespace {

using Texts = std::vector<std::string>;

class GeneralPrimitivesTest : public testing::Test, protected WholeSystem {
 protected:
  void Execute(const std::string& line) { System.interpreter.dispatch.Execute(line); }
  /// The texts of the boxes that a line shows.
  Texts BoxesOf(const std::string& line) {
    services.Boxes.clear();
    Execute(line);
    return services.BoxTexts();
  }
  /// The entries that a line adds to the history.
  Texts PrintedBy(const std::string& line) {
    controls.List4.Clear();
    Execute(line);
    return controls.List4.Items();
  }
};

TEST_F(GeneralPrimitivesTest, SayDeveloperTellsTheMakers) {
  for (const char* line : {"SAYDEVELOPER", "SAYDEVELOPERS"}) {
    services.Boxes.clear();
    Execute(line);
    ASSERT_EQ(services.Boxes.size(), 1U);
    EXPECT_EQ(services.Boxes[0], (ShownBox{"Zerimo is a Product of Vantrel,Designed by...\r\r* Mr. Ostrane Velk\r* Mr. "
                                           "Ilmar Tessen\r* Mr. Dorrin Pask\r* Mr. Hadric Moll",
                                           64, "Zerimo "}));
  }
}

/// Words that are added later follow.
TEST_F(GeneralPrimitivesTest, CommandListWritesTheNamesAsTheyStandWithPenreverseTwice) {
  std::istringstream names(
      "FD TEXTSIZE BK LT RT PU PD PE PX ST HT CS CLEAN HOME HOMEX HOMEY HOMEXY BYE SETX SETY GETX GETY "
      "SETXY GETXY PEN SETPC SETBG RESOLUTION LOAD REPEAT DRAW EDIT WAIT STAMPOVAL STAMPOVALRGB "
      "FLOODFILLRGB FLOODFILL STAMPRECT STAMPRECTRGB FS SS TS CT FENCE WINDOW SUM PRODUCT QUOTIENT "
      "REMAINDER XCOR YCOR QUIT LOADPICTURE SLIDESHOW MESSAGE DRAWMODE TEXTCOLOR TEXTBACKGROUND FILL "
      "FILLSTYLE POINT SHOW HIDE REFRESH SOUND PRINT WRITE (SUM (PRODUCT WRITERGB LW LINE LINERGB ELLIPSE "
      "ELLIPSERGB DOT CIRCLE SAYDEVELOPER STAMPCIRCLE SAVE SAVEPICTURE HELP FORWARD BACK LEFT RIGHT "
      "CLEARSCREEN PENUP PENDOWN PENERASE PENREVERSE SHOWTURTLE HIDETURTLE PENREVERSE LINEWIDTH COMMANDLIST");
  std::string expected;
  for (std::string name; names >> name;) expected += name + "\r\n";
  folder.Write("Commands.ZMG", "OLD");
  Execute("COMMANDLIST");
  EXPECT_EQ(folder.Read("Commands.ZMG").substr(0, expected.size()), expected);
  EXPECT_TRUE(services.Boxes.empty());
}

TEST_F(GeneralPrimitivesTest, CommandListThatCanNotBeWrittenIsIgnored) {
  folder.MakeFolder("Commands.ZMG/inside");
  Execute("COMMANDLIST");
  EXPECT_TRUE(services.Boxes.empty());
  EXPECT_EQ(System.interpreter.dispatch.OverflowCount, 1);
}

TEST_F(GeneralPrimitivesTest, WaitSleepsWholeMilliseconds) {
  Execute("WAIT 250*2");
  Execute("WAIT 2.5");
  EXPECT_EQ(services.Sleeps, (std::vector<std::int32_t>{500, 2}));
}

TEST_F(GeneralPrimitivesTest, WaitBeyond32BitsDoesNotSleep) {
  Execute("WAIT 3000000000");
  EXPECT_TRUE(services.Sleeps.empty());
}

TEST_F(GeneralPrimitivesTest, WaitWithoutAnInputTellsItAndDoesNotSleep) {
  EXPECT_EQ(BoxesOf("WAIT"), (Texts{"Required Paramiter Missing After WAIT"}));
  EXPECT_TRUE(services.Sleeps.empty());
}

TEST_F(GeneralPrimitivesTest, WaitOfAnUnknownNameIsNoMissingInput) {
  EXPECT_EQ(BoxesOf("WAIT X"), Texts{});
  EXPECT_EQ(services.Sleeps, (std::vector<std::int32_t>{0}));
}

TEST_F(GeneralPrimitivesTest, SoundBeepsAndTellsIt) {
  EXPECT_EQ(BoxesOf("SOUND"), (Texts{"Sound"}));
  EXPECT_EQ(services.Beeps, 1);
  EXPECT_EQ(BoxesOf("SOUND 5"), Texts{});
  EXPECT_EQ(services.Beeps, 1);
}

TEST_F(GeneralPrimitivesTest, MessageShowsATextOrANumber) {
  EXPECT_EQ(BoxesOf("MESSAGE \"HELLO  YOU\""), (Texts{"HELLO  YOU"}));
  EXPECT_EQ(services.Boxes[0], (ShownBox{"HELLO  YOU", 0, ""}));
  EXPECT_EQ(BoxesOf("MESSAGE 2+3"), (Texts{" 5"}));
  EXPECT_EQ(BoxesOf("MESSAGE 2-3"), (Texts{"-1"}));
  EXPECT_EQ(BoxesOf("MESSAGE"), (Texts{" 0"}));
  EXPECT_EQ(BoxesOf("MESSAGE \"HELLO"), (Texts{" 0"}));
  EXPECT_EQ(BoxesOf("MESSAGE \"\""), (Texts{""}));
}

TEST_F(GeneralPrimitivesTest, MessageOfASingleQuoteShowsNothing) { EXPECT_EQ(BoxesOf("MESSAGE \""), Texts{}); }

TEST_F(GeneralPrimitivesTest, MessageSetsTheCurrentPoint) {
  System.turtle.TurtleX = 1200;
  System.turtle.TurtleY = 900;
  Execute("MESSAGE 1");
  EXPECT_EQ(System.Picture1.CurrentX(), 1200);
  EXPECT_EQ(System.Picture1.CurrentY(), 900);
}

TEST_F(GeneralPrimitivesTest, PrintAddsToTheHistory) {
  EXPECT_EQ(PrintedBy("PRINT \"A B\""), (Texts{"?A B"}));
  EXPECT_EQ(PrintedBy("PRINT 2+3"), (Texts{"? 5"}));
  EXPECT_EQ(PrintedBy("PRINT 2-3"), (Texts{"?-1"}));
  EXPECT_EQ(PrintedBy("PRINT"), (Texts{"? 0"}));
  EXPECT_EQ(PrintedBy("PRINT \"A B"), (Texts{"? 0"}));
  EXPECT_EQ(PrintedBy("PRINT \"\""), (Texts{"?"}));
}

TEST_F(GeneralPrimitivesTest, PrintOfASingleQuoteAddsNothing) { EXPECT_EQ(PrintedBy("PRINT \""), Texts{}); }

TEST_F(GeneralPrimitivesTest, BracketChainsAddAResult) {
  EXPECT_EQ(PrintedBy("(SUM 1 2 3)"), (Texts{"? Result:  6"}));
  EXPECT_EQ(PrintedBy("(PRODUCT 2 3 4)"), (Texts{"? Result:  24"}));
  EXPECT_EQ(PrintedBy("(SUM 1 2 3"), Texts{});
  EXPECT_EQ(PrintedBy("(SUM 2 0-5)"), (Texts{"? Result: -3"}));
  EXPECT_EQ(PrintedBy("(SUM 1  2)"), (Texts{"? Result:  3"}));
  EXPECT_EQ(PrintedBy("(PRODUCT 2 3"), Texts{});
}

struct TwoInputs {
  const char* Line;
  const char* Box;
};

void PrintTo(const TwoInputs& one, std::ostream* out) { *out << Quoted(one.Line); }

class TwoInputsOf : public GeneralPrimitivesTest, public testing::WithParamInterface<TwoInputs> {};

TEST_P(TwoInputsOf, GoToABox) { EXPECT_EQ(BoxesOf(GetParam().Line), (Texts{GetParam().Box})); }

INSTANTIATE_TEST_SUITE_P(Results, TwoInputsOf,
                         testing::Values(TwoInputs{"SUM 1 2", "3"}, TwoInputs{"SUM 1 2.5", "3"},
                                         TwoInputs{"SUM 1 3.5", "5"}, TwoInputs{"SUM .25 0", ".25"},
                                         TwoInputs{"SUM 1 40000", "1"}, TwoInputs{"SUM", "0"},
                                         TwoInputs{"PRODUCT 2.5 3", "7.5"}, TwoInputs{"QUOTIENT -7 2", "-4"},
                                         TwoInputs{"QUOTIENT 7 2", "3"}, TwoInputs{"QUOTIENT 7 0", ""},
                                         TwoInputs{"REMAINDER 7 3", "1"}, TwoInputs{"REMAINDER -7 3", "-1"},
                                         TwoInputs{"REMAINDER 7.5 3", "2"}, TwoInputs{"REMAINDER 6.5 4.5", "2"},
                                         TwoInputs{"REMAINDER 7 0", ""}, TwoInputs{"REMAINDER 3000000000 7", ""},
                                         TwoInputs{"SUM 1+1 2*3", "8"}));

TEST_F(GeneralPrimitivesTest, BareExpressionsShowTheirResult) {
  Type("1 + 2");
  Type("2-3");
  Type("3=3");
  Type("3<2");
  EXPECT_EQ(services.BoxTexts(), (Texts{"Result:  3", "Result: -1", "Result: True", "Result: False"}));
}

TEST_F(GeneralPrimitivesTest, AFailingRelationIsFalse) {
  Type("1/0=1");
  EXPECT_EQ(services.BoxTexts(), (Texts{"Result: False"}));
}

TEST_F(GeneralPrimitivesTest, AFailingExpressionIsZero) {
  Type("1/0");
  EXPECT_EQ(services.BoxTexts(), (Texts{"Result:  0"}));
}

TEST_F(GeneralPrimitivesTest, NamesWithoutAnActionDoNothing) {
  for (const char* line : {"GETX", "GETY", "SAVE X", "REFRESH"}) Type(line);
  EXPECT_TRUE(services.Boxes.empty());
}

TEST_F(GeneralPrimitivesTest, AMissingInputLetsTheProcedureGoOn) {
  Fill({"TO A", "FD", "RT 90", "END"});
  Type("A");
  EXPECT_EQ(services.BoxTexts(), (Texts{"Required Paramiter Missing After FD"}));
  EXPECT_EQ(System.turtle.TurtleY, 5760);
  EXPECT_GT(System.turtle.TurtleDir, 1.5);
}

TEST_F(GeneralPrimitivesTest, AWholeRestIsOneExpression) {
  Execute("FD 10 + 5");
  EXPECT_EQ(System.turtle.TurtleY, 5760 - 15 * 50);
  Execute("BK 1 5");
  EXPECT_EQ(System.turtle.TurtleY, 5760);
  Execute("FD 10 20");
  EXPECT_EQ(System.turtle.TurtleY, 5760 - 1020 * 50);
}

}  // namespace
}  // namespace zerimo
