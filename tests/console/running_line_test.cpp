#include "console/running_line.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/fake_services.h"

namespace zerimo {
namespace {

/// Notes each line that somebody has written before it runs.
struct NotingWatch : Watch {
  void LookAtStep() override {
    line->Step();
    if (line->IsWritten()) told.push_back(line->Words());
  }
  void Tick() override {}

  RunningLine* line = nullptr;
  std::vector<std::string> told;
};

struct RunningLineTest : testing::Test {
  RunningLineTest() { watch.line = &line; }

  void Fill(const std::vector<const char*>& lines) {
    int number = 0;
    for (const char* text : lines) interpreter.store.SetLine(++number, text);
  }

  Controls controls{ScreenSize{}};
  FakeServices services;
  NotingWatch watch;
  Turtle turtle;
  Interpreter interpreter{{services, watch, controls, turtle}};
  RunningLine line{interpreter};
};

TEST_F(RunningLineTest, TellsProcedureNumberAndText) {
  Fill({"TO BOX :S", "IF 1=1", "MAKE :A 1", "ENDIF", "MAKE :A 2", "END"});
  std::string typed = "BOX 30";
  interpreter.typedLines.ComplexExecutor(typed);
  EXPECT_EQ(watch.told, (std::vector<std::string>{"Your line: BOX 30", "BOX, line 2: IF 1=1", "BOX, line 3: MAKE :A 1",
                                                  "BOX, line 4: ENDIF", "BOX, line 5: MAKE :A 2", "BOX, line 6: END"}));
}

TEST_F(RunningLineTest, KnowsNoLineBeforeAndAfterAWalk) {
  EXPECT_EQ(line.Words(), "");
  Fill({"TO BOX", "END"});
  std::string typed = "BOX";
  interpreter.typedLines.ComplexExecutor(typed);
  EXPECT_GT(line.Number(), 0);
  line.Step();
  EXPECT_EQ(line.Number(), 0);
  EXPECT_EQ(line.Words(), "");
}

}  // namespace
}  // namespace zerimo
