#include "interpreter/dispatch.h"

#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "base/failure.h"
#include "support/fake_services.h"
#include "support/quoted.h"

namespace zerimo {
namespace {

using Texts = std::vector<std::string>;

class DispatchTest : public testing::Test {
 protected:
  DispatchTest() {
    for (const ActionFacts& facts : Actions()) {
      dispatch.Bind(facts.Does, [this, &facts](PrimitiveCall& call) {
        if (!dispatch.TellMissingInput(call, facts.Does)) Done.push_back(std::string(facts.Name));
      });
    }
  }

  FakeServices services;
  Dispatch dispatch{services};
  Texts Done;
};

TEST_F(DispatchTest, TrimsItsCallersText) {
  std::string line = "  FD 10  ";
  dispatch.Executor(line);
  EXPECT_EQ(line, "FD 10");
  EXPECT_EQ(Done, Texts{"FD"});
}

TEST_F(DispatchTest, SplitsAtTheFirstBlank) {
  Texts seen;
  dispatch.Bind("FD", [&](PrimitiveCall& call) {
    EXPECT_FALSE(call.InputIsMissing());
    seen = {std::string(call.Word), call.Rest()};
  });
  std::string line = "FD 10 + 5";
  dispatch.Executor(line);
  EXPECT_EQ(seen, (Texts{"FD", "10 + 5"}));
}

class WholeLineName : public DispatchTest, public testing::WithParamInterface<const char*> {};

TEST_P(WholeLineName, IsMatchedAloneOnly) {
  dispatch.Execute(GetParam());
  EXPECT_EQ(Done.size(), 1U);
  dispatch.Execute(std::string(GetParam()) + " 1");
  EXPECT_EQ(Done.size(), 1U);
}

INSTANTIATE_TEST_SUITE_P(variables, WholeLineName,
                         testing::Values("SAYDEVELOPER", "SAYDEVELOPERS", "COMMANDLIST", "FENCE", "XCOR", "YCOR",
                                         "WINDOW", "DRAW", "GETXY", "PEN", "FS", "FULLSCREEN", "SS", "SPLITSCREEN",
                                         "EDIT", "TS", "TEXTSCREEN", "CT", "CLEARTEXT", "BYE", "QUIT", "CLEAN", "HT",
                                         "HIDETURTLE", "ST", "SHOWTURTLE", "SOUND"));

class WordName : public DispatchTest, public testing::WithParamInterface<const char*> {};

TEST_P(WordName, IsMatchedWithAnInputAfterIt) {
  dispatch.Execute(std::string(GetParam()) + " 1 2 3 4 5 6");
  EXPECT_EQ(Done.size(), 1U);
  EXPECT_TRUE(services.Boxes.empty());
}

INSTANTIATE_TEST_SUITE_P(variables, WordName,
                         testing::Values("STAMPCIRCLE", "DRAWMODE", "LW", "TEXTSIZE", "WAIT", "FD", "FORWARD", "BK",
                                         "BACK", "RESOLUTION", "RT", "RIGHT", "LT", "LEFT", "PX", "PENREVERSE", "PU",
                                         "PENUP", "PD", "PENDOWN", "PE", "PENERASE", "STAMPOVAL", "STAMPRECT", "SETPC",
                                         "SETBG", "TEXTCOLOR", "TEXTBACKGROUND", "CS", "CLEARSCREEN", "HOME", "HOMEX",
                                         "HOMEY", "HOMEXY", "LOAD", "SAVEPICTURE", "LOADPICTURE", "HELP", "SLIDESHOW",
                                         "SHOW", "HIDE", "SETX", "SETY", "SETXY", "REFRESH", "MESSAGE", "WRITE", "(SUM",
                                         "(PRODUCT", "PRINT", "FILL", "FILLSTYLE", "POINT", "DOT", "CIRCLE", "LINE",
                                         "ELLIPSE", "WRITERGB", "LINERGB", "ELLIPSERGB", "STAMPOVALRGB", "STAMPRECTRGB",
                                         "FLOODFILLRGB", "FLOODFILL", "AEXP", "REXP", "SUM", "PRODUCT", "QUOTIENT",
                                         "REMAINDER"));

TEST_F(DispatchTest, UnknownWordsAndNamesWithoutActionDoNothing) {
  for (const char* line : {"GETX", "GETY", "SAVE X", "fd 10", "BOX", "REPEAT 4", ""}) dispatch.Execute(line);
  EXPECT_EQ(Done, Texts{});
  EXPECT_TRUE(services.Boxes.empty());
}

TEST_F(DispatchTest, LongNameOfLineWidthNeverGetsAnInput) {
  dispatch.Execute("LINEWIDTH 3");
  EXPECT_EQ(Done, Texts{});
  dispatch.Execute("LINEWIDTH");
  ASSERT_EQ(services.Boxes.size(), 1U);
  EXPECT_EQ(services.Boxes[0], (ShownBox{"Required Paramiter Missing After LINEWIDTH", 2, "Zerimo"}));
  dispatch.Execute("LW 3");
  EXPECT_EQ(Done, Texts{"LW"});
}

struct MissingBox {
  const char* Line;
  int Style;
  const char* Title;
};

void PrintTo(const MissingBox& one, std::ostream* out) {
  *out << Quoted(one.Line) << ", " << one.Style << ", " << Quoted(one.Title);
}

class MissingInputOf : public DispatchTest, public testing::WithParamInterface<MissingBox> {};

TEST_P(MissingInputOf, IsReportedInItsBox) {
  dispatch.Execute(GetParam().Line);
  ASSERT_EQ(services.Boxes.size(), 1U);
  EXPECT_EQ(services.Boxes[0], (ShownBox{std::string("Required Paramiter Missing After ") + GetParam().Line,
                                         GetParam().Style, GetParam().Title}));
  EXPECT_EQ(Done, Texts{});
}

INSTANTIATE_TEST_SUITE_P(Boxes, MissingInputOf,
                         testing::Values(MissingBox{"STAMPCIRCLE", 2, "Zerimo"}, MissingBox{"DRAWMODE", 2, "Zerimo"},
                                         MissingBox{"LW", 2, "Zerimo"}, MissingBox{"TEXTSIZE", 2, "Zerimo"},
                                         MissingBox{"WAIT", 2, "Zerimo"}, MissingBox{"FD", 2, "Zerimo"},
                                         MissingBox{"FORWARD", 2, "Zerimo"}, MissingBox{"BK", 64, "Zerimo Message"},
                                         MissingBox{"BACK", 64, "Zerimo Message"}, MissingBox{"RESOLUTION", 0, ""},
                                         MissingBox{"RT", 0, ""}, MissingBox{"RIGHT", 0, ""},
                                         MissingBox{"LT", 2, "Zerimo"}, MissingBox{"LEFT", 2, "Zerimo"},
                                         MissingBox{"SETPC", 2, "Zerimo"}, MissingBox{"SETBG", 2, "Zerimo"},
                                         MissingBox{"TEXTCOLOR", 2, "Zerimo"},
                                         MissingBox{"TEXTBACKGROUND", 2, "Zerimo"}, MissingBox{"LOAD", 2, "Zerimo"},
                                         MissingBox{"SAVEPICTURE", 2, "Zerimo"}, MissingBox{"LOADPICTURE", 2, "Zerimo"},
                                         MissingBox{"SETX", 2, "Zerimo"}, MissingBox{"SETY", 2, "Zerimo"}));

TEST_F(DispatchTest, OtherPrimitivesHaveNoTestForAMissingInput) {
  for (const char* line : {"SETXY", "FILL", "FILLSTYLE", "CIRCLE", "HELP", "SUM", "WRITE", "FLOODFILL", "SHOW"}) {
    dispatch.Execute(line);
  }
  EXPECT_TRUE(services.Boxes.empty());
  EXPECT_EQ(Done.size(), 9U);
}

TEST_F(DispatchTest, TailRunsInItsOrderAfterEveryPrimitive) {
  Texts tail;
  dispatch.TurtlePos = [&] { tail.push_back("TurtlePos"); };
  dispatch.TitleText = [&] { tail.push_back("TitleText"); };
  dispatch.RefreshSurface = [&] { tail.push_back("Refresh"); };
  dispatch.Execute("REFRESH");
  EXPECT_EQ(tail, (Texts{"TurtlePos", "Refresh"}));
  tail.clear();
  dispatch.DetailsOn = true;
  dispatch.Execute("NOTHING");
  EXPECT_EQ(tail, (Texts{"TurtlePos", "TitleText", "Refresh"}));
}

TEST_F(DispatchTest, AFailureInTheTailIsSkipped) {
  dispatch.DetailsOn = true;
  dispatch.TitleText = [] { throw Failure(FailureKind::Overflow); };
  bool refreshed = false;
  dispatch.RefreshSurface = [&] { refreshed = true; };
  dispatch.Execute("REFRESH");
  EXPECT_TRUE(refreshed);
  EXPECT_EQ(dispatch.OverflowCount, 1);
}

TEST_F(DispatchTest, AnActionMayTakeOverAFailureInTheTail) {
  int taken = 0;
  const std::function<void()> take = [&] { ++taken; };
  dispatch.Bind("HELP", [&](PrimitiveCall& call) { call.OnFailure = &take; });
  dispatch.Execute("HELP");
  EXPECT_EQ(taken, 0);
  dispatch.OverflowCount = 32767;
  dispatch.Execute("HELP");
  EXPECT_EQ(taken, 1);
}

TEST_F(DispatchTest, AFailureThatAnActionTakesOverEndsTheTail) {
  const auto fail = [] { throw Failure(FailureKind::Overflow); };
  int taken = 0;
  const std::function<void()> take = [&] { ++taken; };
  dispatch.Bind("HELP", [&](PrimitiveCall& call) { call.OnFailure = &take; });
  dispatch.DetailsOn = true;
  dispatch.RefreshSurface = fail;
  dispatch.Execute("HELP");
  EXPECT_EQ(taken, 1) << "by the refreshing of the surface";
  dispatch.TitleText = fail;
  dispatch.Execute("HELP");
  EXPECT_EQ(taken, 2) << "by the status line alone";
  dispatch.TurtlePos = fail;
  dispatch.Execute("HELP");
  EXPECT_EQ(taken, 3) << "by the figure alone";
  EXPECT_EQ(dispatch.OverflowCount, 0);
}

TEST_F(DispatchTest, TailWithoutAWindowOnlyCounts) {
  dispatch.DetailsOn = true;
  dispatch.Execute("REFRESH");
  EXPECT_EQ(dispatch.OverflowCount, 1);
}

TEST_F(DispatchTest, CountStopsAt32767WithoutABox) {
  for (int call = 0; call < 40000; ++call) dispatch.Execute("REFRESH");
  EXPECT_EQ(dispatch.OverflowCount, 32767);
  EXPECT_TRUE(services.Boxes.empty());
  EXPECT_EQ(Done.size(), 40000U);
}

TEST_F(DispatchTest, TheEndOfTheSystemLeavesAtOnce) {
  dispatch.Bind("QUIT", [](PrimitiveCall&) { throw Ended{"QUIT"}; });
  EXPECT_THROW(dispatch.Execute("QUIT"), Ended);
  EXPECT_EQ(dispatch.OverflowCount, 0);
}

}  // namespace
}  // namespace zerimo
