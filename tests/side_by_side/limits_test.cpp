#include <gtest/gtest.h>

#include "side_by_side/side.h"

namespace zerimo {
namespace {

using Lines = std::vector<std::string>;

/// Programs that cross a limit in the middle of a loop, where the derived forms stop being valid.
class LimitsTest : public testing::Test {
 protected:
  LimitsTest() {
    present_.WatchEachStep();
    literal_.WatchEachStep();
  }

  template <typename Act>
  void Both(Act&& act) {
    act(present_);
    act(literal_);
  }

  void Load(const Lines& program, int first = 1) {
    Both([&](auto& side) {
      for (int number = first; const std::string& line : program) side.interpreter.store.SetLine(number++, line);
    });
  }

  /// Runs a line on both sides, and returns the steps that it took.
  int Type(const std::string& line, int mostSteps = 3000) {
    Both([&](auto& side) { side.Type(line, mostSteps); });
    EXPECT_EQ(present_.trace.Steps(), literal_.trace.Steps()) << line;
    return present_.watch.Steps;
  }

  std::string Slot(int number) const { return present_.interpreter.variables.Slot(number); }

  Side<Present> present_;
  Side<Literal> literal_;
};

TEST_F(LimitsTest, TheCountOfPrimitivesFillsUpInALoop) {
  Load({"TO A", "END"});
  Both([](auto& side) { side.interpreter.dispatch.OverflowCount = 32760; });
  EXPECT_GT(Type("REPEAT 20 [PU FD 1]"), 100);
  EXPECT_EQ(present_.interpreter.dispatch.OverflowCount, 32767);
}

TEST_F(LimitsTest, TheNumberOfTypedLinesFillsUp) {
  Load({"TO A", "END"});
  Both([](auto& side) { side.interpreter.typedLines.TempProcNo = 32765; });
  for (int line = 0; line < 4; ++line) Type("REPEAT 2 [FD 1]");
  EXPECT_EQ(present_.interpreter.typedLines.TempProcNo, 32767);
}

TEST_F(LimitsTest, TheLastSlotIsTakenInALoop) {
  Load({"TO A", "END"});
  Both([](auto& side) {
    for (int slot = 1; slot <= 497; ++slot) side.interpreter.variables.SetSlot(slot, "V" + std::to_string(slot) + "=1");
  });
  Type("REPEAT 4 [MAKE \"X :X+1 FD :X MAKE \"Y :X*2 BK :Y]");
  EXPECT_NE(Slot(500), "");
}

TEST_F(LimitsTest, TheLastSlotIsTakenByAnInput) {
  Load({"TO P :N", "FD :N", "P :N+1", "END"});
  Both([](auto& side) {
    for (int slot = 1; slot <= 490; ++slot) side.interpreter.variables.SetSlot(slot, "V" + std::to_string(slot) + "=1");
  });
  Type("P 1");
  Type("FD 1");
}

TEST_F(LimitsTest, MoreThanTwentyInputsInALoop) {
  std::string header = "TO P";
  std::string call = "P";
  for (char name = 'A'; name <= 'V'; ++name) {
    header += std::string(" :") + name;
    call += " " + std::to_string(name - 'A' + 1);
  }
  Load({header, "FD :A+:T", "FD :U+:V", "MAKE \"V :A", "END"});
  EXPECT_GT(Type("REPEAT 5 [" + call + "]"), 30);
}

TEST_F(LimitsTest, TheWalkReachesTheLastLineInALoop) {
  Load(Lines(1985, "PU"));
  Load({"TO LAST", "MAKE N N+1", "LABEL L", "IF N<=3", "ENDIF", "FD N"}, 1986);
  Type("LAST", 200);
  Load({"LAST", "MAKE N N+1", "END", "GOTO L", "PD", "PD", "PD", "PD", "PD"}, 1992);
  Type("LAST", 200);
}

TEST_F(LimitsTest, MoreInputsThanAByteCounts) {
  std::string header = "TO P";
  for (int input = 0; input < 300; ++input) header += " :A";
  Load({header, "FD 1", "END", "TO Q", "P 1", "FD 2", "END"});
  EXPECT_GT(Type("REPEAT 3 [Q]"), 20);
  Type("REPEAT 3 [P 1]");
}

TEST_F(LimitsTest, MoreWordsThanACallHolds) {
  std::string call = "P";
  for (int word = 0; word < 55; ++word) call += " 1";
  Load({"TO P :A", "FD :A", "END", "TO Q", call, "END"});
  EXPECT_GT(Type("REPEAT 3 [Q]"), 15);
}

TEST_F(LimitsTest, ALimitOfStepsStopsAtTheSameLine) {
  Load({"TO P :N", "MAKE \"K :K+:N", "END"});
  for (int steps = 1; steps <= 60; ++steps) EXPECT_EQ(Type("REPEAT 9 [P 2 IF :K>5 FD :K ENDIF]", steps), steps);
}

/// Texts that are too long, too deep or too odd for a formula, and stay literal.
class LiteralTextTest : public LimitsTest, public testing::WithParamInterface<std::string> {};

std::string Many(int count, const std::string& text) {
  std::string texts;
  for (int n = 0; n < count; ++n) texts += text;
  return texts;
}

TEST_P(LiteralTextTest, IsEvaluatedInALoop) {
  Load({"TO P :X :", "MAKE \"N " + GetParam(), "IF " + GetParam() + "<7", "FD :X", "ENDIF", "IF 7<" + GetParam(),
        "FD 2", "ENDIF", "FD " + GetParam(), "END"});
  for (const char* const start : {"3", "0", "-2", "1E20"}) {
    Type(std::string("MAKE \"N ") + start + " REPEAT 3 [P " + start + " 4]");
  }
}

INSTANTIATE_TEST_SUITE_P(Texts, LiteralTextTest,
                         testing::Values(":N" + Many(30, "*1"), ":N" + Many(30, "+1"), ":N" + Many(9, "+:N"),
                                         Many(9, "XCOR+") + "1", ":N+" + Many(100, "1"),
                                         Many(26, "(") + ":N" + Many(26, ")"), "(:N+1", ":N+1)", ":N*", "2.5.1+:N", ".",
                                         "1234567890123456+:N", "XCOR1+:N", "XXCOR+:N", ":M+1", ":N+:M*2", ":N==3",
                                         ":N%5000000000", "5000000000%:N", ":N/.0000001", ":X:N", ":X+ :N", "\"N",
                                         "XCOR", "YCOR*2", ":N%0", "(1/3)*:N", "(:N-3)*2", "(:N/100000)*2",
                                         "(:N*99999999999999)/2"));

TEST_F(LimitsTest, PlacesAndStepsThatCannotBeToldInALoop) {
  Load({"TO P", "MAKE \"N XCOR+1", "IF YCOR<3", "FD XCOR", "ENDIF", "END"});
  for (const double odd : {0.0, 1E-200, 1E200}) {
    Both([&](auto& side) { side.turtle.Resolution = odd; });
    Type("REPEAT 5 [P]");
    Both([&](auto& side) {
      side.turtle.Resolution = 50;
      side.turtle.TurtleX = odd;
    });
    Type("REPEAT 5 [P]");
    Both([&](auto& side) { side.turtle.TurtleY = odd; });
    Type("REPEAT 5 [P]");
  }
}

TEST_F(LimitsTest, AZeroWithASignInASlot) {
  Load({"TO P", "MAKE \"N :A+1", "FD :N", "END"});
  for (const char* const slot : {":A=-0", ":A=0", ":A=-0.0", ":A=1=2", ":A"}) {
    Both([&](auto& side) { side.interpreter.variables.SetSlot(1, slot); });
    Type("REPEAT 4 [P]");
  }
}

class ValuesTest : public LimitsTest, public testing::WithParamInterface<const char*> {};

TEST_P(ValuesTest, CrossTheKindsOfNumbersInALoop) {
  Load({"TO P :N", GetParam(), "FD :N", "END"});
  for (const char* const start : {"1", "0", "-3", "0.7", "12345678901234", "XCOR", "1E-3"}) {
    Type(std::string("MAKE \":N ") + start + " REPEAT 40 [" + GetParam() + " FD :N IF :N<7 RT 1 ENDIF]");
    Type(std::string("REPEAT 12 [P ") + start + "]");
  }
}

INSTANTIATE_TEST_SUITE_P(Lines, ValuesTest,
                         testing::Values("MAKE \"N :N*10", "MAKE \"N :N-1", "MAKE \"N :N/3", "MAKE \"N (:N+1)*(2-:N)",
                                         "MAKE \"N -:N", "MAKE \"N 5-:N*2", "MAKE \"N :N%3-2", "MAKE \"N 2*(:N-3)/:N",
                                         "MAKE \"N 1-:N-:N", "MAKE \"N (0-:N)*3+XCOR", "MAKE \"N :N+.005",
                                         "MAKE \"N 3*-2+:N"));

}  // namespace
}  // namespace zerimo
