#include <gtest/gtest.h>

#include <algorithm>

#include "classroom/program_source.h"

namespace zerimo::classroom {
namespace {

/// The first call of a program; | stands for a line end.
FirstCall Of(std::string text, const char* name) {
  std::ranges::replace(text, '|', '\r');
  return ProgramOutline(text).FirstCallOf(name);
}

TEST(FirstCall, IsTheProcedureOfTheFilesName) {
  EXPECT_EQ(Of("TO SIDE|FD 10|END|TO STAR|SIDE|END|TO LAST|END", "STAR").Procedure, "STAR");
  EXPECT_EQ(Of("TO STAR|END|TO LAST|END", "star").Procedure, "STAR");
}

TEST(FirstCall, IsOtherwiseTheLastThatNoOtherCalls) {
  EXPECT_EQ(Of("TO HOUSE|ROOF|WALL|END|TO ROOF|END|TO WALL|END", "ANNA").Procedure, "HOUSE");
  EXPECT_EQ(Of("TO ONE|END|TO TWO|END", "ANNA").Procedure, "TWO");
}

TEST(FirstCall, SeesCallsInsideRepeat) {
  EXPECT_EQ(Of("TO ROSE|REPEAT 4 [LEAF RT 90]|END|TO LEAF|FD 10|END", "ANNA").Procedure, "ROSE");
}

TEST(FirstCall, MayBeOfAProcedureThatIsIndented) {
  EXPECT_EQ(Of("TO SIDE|END|  TO STAR|SIDE|END", "ANNA").Procedure, "STAR");
}

TEST(FirstCall, IsNotHinderedByATextOrALineOutside) {
  EXPECT_EQ(Of("TO STAR|END|TO SIDE|PRINT \"MY STAR\"|END", "STAR").Procedure, "STAR");
  EXPECT_EQ(Of("TO SIDE|END|TO STAR|END|STAR|SIDE", "ANNA").Procedure, "STAR");
}

TEST(FirstCall, MayCallItself) { EXPECT_EQ(Of("TO SPIN|FD 1|SPIN|END", "ANNA").Procedure, "SPIN"); }

TEST(FirstCall, IsTheLastOneIfAllAreCalled) {
  EXPECT_EQ(Of("TO PING|PONG|END|TO PONG|PING|END", "ANNA").Procedure, "PONG");
}

TEST(FirstCall, NeedsNoInputs) {
  EXPECT_EQ(Of("TO GO|BOX 5|END|TO BOX :S|FD :S|END", "BOX").Procedure, "GO");
  const FirstCall none = Of("TO BOX :S|FD :S|END", "BOX");
  EXPECT_EQ(none.Procedure, "");
  EXPECT_EQ(none.Note, "Every procedure of the program needs inputs: give them in a session.");
}

TEST(FirstCall, IsReportedIfItIsAnotherBecauseOfInputs) {
  const FirstCall other = Of("TO SIDE|FD 10|END|TO STAR :N|REPEAT :N [SIDE]|END", "STAR");
  EXPECT_EQ(other.Procedure, "SIDE");
  EXPECT_EQ(other.Note, "STAR needs inputs and was not called: give them in a session.");
  EXPECT_EQ(Of("TO BOX :S|END|TO GO|END", "ANNA").Note, "");
}

TEST(FirstCall, IsNoneWithoutProcedures) {
  for (const char* text : {"", "|||", "FD 10|RT 90|", "TO|END", "to star|fd 10|end", "TOSTAR|END"}) {
    EXPECT_EQ(Of(text, "ANNA").Procedure, "") << text;
    EXPECT_EQ(Of(text, "ANNA").Note, "The program has no procedure: no line begins with TO in capital letters.")
        << text;
  }
}

TEST(FirstCall, BytesWithoutSenseDoNoHarm) {
  std::string bytes;
  for (int i = 0; i < 100'000; ++i) bytes += static_cast<char>(i * 7919 % 256);
  EXPECT_EQ(ProgramOutline(bytes).FirstCallOf("ANNA").Procedure, "");
}

TEST(FirstCall, ProgramsBeyondTheStoreCountAsFarAsTheyFit) {
  std::string text = "TO FIRST\r";
  for (int i = 0; i < 3000; ++i) text += "FD 1\r";
  EXPECT_EQ(Of(text + "TO LAST\rEND\r", "ANNA").Procedure, "FIRST");
}

}  // namespace
}  // namespace zerimo::classroom
