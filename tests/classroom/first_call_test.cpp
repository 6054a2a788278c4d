#include "classroom/first_call.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace zerimo::classroom {
namespace {

/// The first call of a program written with | for a line end.
FirstCall Of(std::string text, const char* name) {
  std::ranges::replace(text, '|', '\r');
  return FirstCallOf(text, name);
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

TEST(FirstCall, MayCallItself) { EXPECT_EQ(Of("TO SPIN|FD 1|SPIN|END", "ANNA").Procedure, "SPIN"); }

TEST(FirstCall, IsTheLastOneIfAllAreCalled) {
  EXPECT_EQ(Of("TO PING|PONG|END|TO PONG|PING|END", "ANNA").Procedure, "PONG");
}

TEST(FirstCall, NeedsNoInputs) {
  EXPECT_EQ(Of("TO GO|BOX 5|END|TO BOX :S|FD :S|END", "BOX").Procedure, "GO");
  const FirstCall none = Of("TO BOX :S|FD :S|END", "BOX");
  EXPECT_EQ(none.Procedure, "");
  EXPECT_EQ(none.WhyNone, "Every procedure of the program needs inputs: give them in a session.");
}

TEST(FirstCall, IsNoneWithoutProcedures) {
  for (const char* text : {"", "|||", "FD 10|RT 90|", "TO|END"}) {
    EXPECT_EQ(Of(text, "ANNA").Procedure, "") << text;
    EXPECT_EQ(Of(text, "ANNA").WhyNone, "The program has no procedure: no line begins with TO.") << text;
  }
}

TEST(FirstCall, BytesWithoutSenseDoNoHarm) {
  std::string bytes;
  for (int i = 0; i < 100'000; ++i) bytes += static_cast<char>(i * 7919 % 256);
  EXPECT_EQ(FirstCallOf(bytes, "ANNA").Procedure, "");
}

TEST(FirstCall, ProgramsBeyondTheStoreCountAsFarAsTheyFit) {
  std::string text = "TO FIRST\r";
  for (int i = 0; i < 3000; ++i) text += "FD 1\r";
  EXPECT_EQ(FirstCallOf(text + "TO LAST\rEND\r", "ANNA").Procedure, "FIRST");
}

}  // namespace
}  // namespace zerimo::classroom
