#include "interpreter/line_entry.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "base/failure.h"
#include "interpreter/lowering.h"
#include "support/quoted.h"

namespace zerimo {
namespace {

struct Filtered {
  const char* Text;
  const char* Result;
};

void PrintTo(const Filtered& one, std::ostream* out) { *out << Quoted(one.Text) << ", " << Quoted(one.Result); }

class SpaceFilterOf : public testing::TestWithParam<Filtered> {};

TEST_P(SpaceFilterOf, IsTidied) {
  std::string text = GetParam().Text;
  EXPECT_EQ(SpaceFilter(text), GetParam().Result);
}

INSTANTIATE_TEST_SUITE_P(
    SpaceFilter, SpaceFilterOf,
    testing::Values(Filtered{"FD   10 + 5", "FD 10+5"}, Filtered{"REPEAT 4 [ FD 10 ]", "REPEAT 4[FD 10]"},
                    Filtered{"MAKE \"A = 3", "MAKE \"A =3"}, Filtered{"FD -5", "FD-5"}, Filtered{"", ""},
                    Filtered{"   ", ""}, Filtered{"SETXY 10 -20", "SETXY 10-20"}, Filtered{"A = 5", "A =5"},
                    Filtered{"FD (1 + 2) * 3", "FD (1+2)*3"}, Filtered{"FD ( 1 )", "FD (1)"},
                    Filtered{"IF A < > B", "IF A<>B"}, Filtered{"PRINT \"A - B\"", "PRINT \"A-B\""},
                    Filtered{"A % B / C \\ D", "A%B/C\\D"}, Filtered{"A ! B", "A!B"}, Filtered{"F . 5", "F.5"},
                    Filtered{"[ A ] B", "[A]B"}, Filtered{"} A }", "}A}"}, Filtered{"( A ) B", "(A) B"}));

TEST(SpaceFilter, TrimsItsCallersText) {
  std::string text = "  FD 10  ";
  EXPECT_EQ(SpaceFilter(text), "FD 10");
  EXPECT_EQ(text, "FD 10");
}

TEST(SpaceFilter, TreatsALineBreakAsACharacterLikeAnother) {
  std::string text = "TO A\r\n  FD 10\r\n- 5";
  EXPECT_EQ(SpaceFilter(text), "TO A\r\n FD 10\r\n-5");
}

TEST(SpaceFilter, FailsFrom32767Characters) {
  std::string longest(32766, 'A');
  EXPECT_EQ(SpaceFilter(longest).size(), 32766U);
  std::string tooLong(32767, 'A');
  EXPECT_THROW(SpaceFilter(tooLong), Failure);
}

struct Classified {
  const char* Line;
  StatementClass Class;
};

void PrintTo(const Classified& one, std::ostream* out) {
  *out << Quoted(one.Line) << ", " << static_cast<int>(one.Class);
}

class WhatIs : public testing::TestWithParam<Classified> {};

TEST_P(WhatIs, HasItsClass) { EXPECT_EQ(WhatIsThis(GetParam().Line), GetParam().Class) << GetParam().Line; }

INSTANTIATE_TEST_SUITE_P(
    WhatIsThis, WhatIs,
    testing::Values(
        Classified{"END", StmtEnd}, Classified{"END X", StmtCall}, Classified{"END ", StmtEnd},
        Classified{"ENDIF", StmtEndIf}, Classified{"ENDIF X", StmtCall}, Classified{"ENDIF ", StmtCall},
        Classified{"ELSE", StmtElse}, Classified{"ELSE X", StmtCall}, Classified{"ELSE ", StmtCall},
        Classified{"TO", StmtCall}, Classified{"TO BOX", StmtTo}, Classified{"TO ", StmtTo}, Classified{"IF", StmtCall},
        Classified{"IF A=3", StmtIf}, Classified{"GOTO", StmtCall}, Classified{"GOTO X", StmtGoto},
        Classified{"LABEL", StmtCall}, Classified{"LABEL X", StmtLabel}, Classified{"MAKE", StmtCall},
        Classified{"MAKE \"A 1", StmtMake}, Classified{"FD", StmtPrimitive}, Classified{"FD 10", StmtPrimitive},
        Classified{"fd 10", StmtCall}, Classified{"1+2", StmtArithmetic}, Classified{"A=3", StmtRelation},
        Classified{"*3", StmtCall}, Classified{"/A=B", StmtCall}, Classified{"%1", StmtCall},
        Classified{"\\A+1", StmtCall}, Classified{"-3", StmtArithmetic}, Classified{"+3", StmtArithmetic},
        Classified{"=3", StmtRelation}, Classified{"A+1=2", StmtRelation}, Classified{"X-1", StmtArithmetic},
        Classified{"A!B", StmtRelation}, Classified{"A<B", StmtRelation}, Classified{"A>B", StmtRelation},
        Classified{"1 + 2", StmtCall}, Classified{"GETX", StmtPrimitive}, Classified{"GETY", StmtPrimitive},
        Classified{"SAVE X", StmtPrimitive}, Classified{"REPEAT 4", StmtPrimitive}, Classified{"", StmtCall},
        Classified{" ", StmtCall}, Classified{" FD 10", StmtCall}, Classified{"BOX 10", StmtCall},
        Classified{"FULLSCREEN", StmtCall}, Classified{"SPLITSCREEN", StmtCall}, Classified{"TEXTSCREEN", StmtCall},
        Classified{"CLEARTEXT", StmtCall}, Classified{"SAYDEVELOPERS", StmtCall}, Classified{"AEXP 1", StmtCall},
        Classified{"REXP 1", StmtCall}, Classified{"(SUM 1 2)", StmtPrimitive}, Classified{"FD-5", StmtArithmetic},
        Classified{"(1+2)*3", StmtArithmetic}));

class LineEntryTest : public testing::Test {
 protected:
  ListBox List3{"List3"};
  Store store{List3};
};

struct WordsByInputs {
  int Inputs;
  std::vector<const char*> Words;
};

const std::vector<WordsByInputs>& InputsOfWords() {
  static const std::vector<WordsByInputs> rows = {
      {0, {"BYE",  "COMMANDLIST", "FS",    "CT",    "FENCE",       "WINDOW",       "SS",    "TS",
           "PEN",  "HOME",        "HOMEX", "HOMEY", "HOMEXY",      "DRAW",         "HIDE",  "XCOR",
           "YCOR", "GETX",        "GETY",  "GETXY", "CLEARSCREEN", "CS",           "CLEAN", "HIDETURTLE",
           "HT",   "SHOWTURTLE",  "ST",    "PENUP", "PU",          "PENDOWN",      "PD",    "PENERASE",
           "PE",   "PENREVERSE",  "PX",    "ENDIF", "EDIT",        "SAYDEVELOPER", "QUIT"}},
      {1, {"FILLSTYLE", "LOADPICTURE", "DRAWMODE",   "FILL",        "HELP",        "TEXTCOLOR",    "TEXTBACKGROUND",
           "SHOW",      "SOUND",       "RESOLUTION", "STAMPCIRCLE", "LINEWIDTH",   "LW",           "FORWARD",
           "FD",        "BACK",        "BK",         "LEFT",        "LT",          "RIGHT",        "RT",
           "SETX",      "TEXTSIZE",    "SETY",       "LABEL",       "LOAD",        "SETPC",        "SETBG",
           "GOTO",      "IF",          "WAIT",       "SAVE",        "SAVEPICTURE", "FLOODFILLRGB", "FLOODFILL"}},
      {2, {"SETXY", "MAKE", "DOT", "STAMPOVAL", "STAMPRECT", "SUM", "PRODUCT", "QUOTIENT", "REMAINDER", "SLIDESHOW"}},
      {3, {"STAMPOVALRGB", "STAMPRECTRGB", "POINT", "CIRCLE"}},
      {4, {"LINE"}},
      {5, {"ELLIPSE", "LINERGB"}},
      {6, {"ELLIPSERGB"}},
      {-1, {"REPEAT"}},
      {-2, {"PRINT"}},
      {-3, {"WRITE", "WRITERGB"}},
      {-4, {"MESSAGE"}},
      {-5, {"(SUM"}},
      {-6, {"(PRODUCT"}},
  };
  return rows;
}

TEST_F(LineEntryTest, InputsOfThePrimitivesAreFixed) {
  for (const WordsByInputs& row : InputsOfWords()) {
    for (const char* const word : row.Words) EXPECT_EQ(HowManyInput(word, store), row.Inputs) << word;
  }
}

TEST_F(LineEntryTest, OtherWordsHaveNoInput) {
  for (const char* const word : {"NOWHERE", "REFRESH", "END", "ELSE", "fd", "FULLSCREEN", ""}) {
    EXPECT_EQ(HowManyInput(word, store), 0) << word;
  }
}

TEST_F(LineEntryTest, InputsOfAProcedureAreTheBlanksOfItsHeaderLessOne) {
  store.SetLine(1, "TO STAR");
  store.SetLine(2, "END");
  store.SetLine(3, "TO BOX :S ");
  store.SetLine(4, "END");
  store.SetLine(5, "TO ARC :R :A");
  store.SetLine(6, "END");
  EXPECT_EQ(HowManyInput("STAR", store), 0);
  EXPECT_EQ(HowManyInput("BOX", store), 1);
  EXPECT_EQ(HowManyInput("ARC", store), 2);
  EXPECT_EQ(HowManyInput("AR", store), 0);
}

TEST_F(LineEntryTest, TheBlanksOfAHeaderAreCountedInAByte) {
  store.SetLine(1, "TO A" + std::string(253, ' ') + "B");
  EXPECT_EQ(HowManyInput("A", store), 253);
  store.SetLine(1, "TO A" + std::string(254, ' ') + "B");
  EXPECT_EQ(HowManyInput("A", store), 254);
  store.SetLine(1, "TO A" + std::string(255, ' ') + "B");
  EXPECT_THROW(HowManyInput("A", store), Failure);
  // Trimming leaves no blank.
  store.SetLine(1, "GOTO ");
  EXPECT_THROW(HowManyInput("", store), Failure);
}

TEST_F(LineEntryTest, AWordMayBeFoundInAnotherLineThanItsHeader) {
  store.SetLine(1, "GOTO BOX");
  store.SetLine(2, "TO BOX :S :T");
  EXPECT_EQ(HowManyInput("BOX", store), 0);
}

TEST_F(LineEntryTest, LookUpsFailInAStoreWithoutAnEmptyLine) {
  for (int number = 1; number <= 2000; ++number) store.SetLine(number, "FD 1");
  EXPECT_THROW(HowManyInput("NOWHERE", store), Failure);
}

TEST(GiveWord, GivesTheNthWordAndLeavesABlank) {
  std::string text = " FD 10 ";
  EXPECT_EQ(GiveWord(text, 1), "FD");
  EXPECT_EQ(text, "FD 10 ");
  EXPECT_EQ(GiveWord(text, 2), "10");
  EXPECT_EQ(GiveWord(text, 3), "");
  EXPECT_EQ(text, "FD 10 ");
}

TEST(GiveWord, TwoBlanksMakeAnEmptyWord) {
  std::string text = "A  B";
  EXPECT_EQ(GiveWord(text, 2), "");
  EXPECT_EQ(GiveWord(text, 3), "B");
}

TEST(GiveWord, QuotesMeanNothing) {
  std::string text = "PRINT \"A B\"";
  EXPECT_EQ(GiveWord(text, 2), "\"A");
}

std::string Words(int count) {
  std::string text;
  for (int word = 1; word <= count; ++word) text += (word > 1 ? " W" : "W") + std::to_string(word);
  return text;
}

TEST(GiveWord, FortyNineWordsAreTheMost) {
  std::string fits = Words(49);
  EXPECT_EQ(GiveWord(fits, 49), "W49");
  EXPECT_EQ(GiveWord(fits, 50), "");
  EXPECT_THROW(GiveWord(fits, 51), Failure);
  std::string tooMany = Words(50);
  EXPECT_THROW(GiveWord(tooMany, 1), Failure);
  EXPECT_TRUE(tooMany.ends_with("W50 "));
}

TEST(GiveWord, HasNoWordBeforeTheFirst) {
  std::string text = "FD 10";
  EXPECT_THROW(GiveWord(text, 0), Failure);
}

}  // namespace
}  // namespace zerimo
