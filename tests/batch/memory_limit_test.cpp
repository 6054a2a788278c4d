#include <gtest/gtest.h>

#include "support/batch_program.h"

namespace zerimo {
namespace {

TEST(MemoryLimit, StopsASessionThatWantsMore) {
  const BatchProgram program(ZERIMO_BATCH);
  program.Write("BIG.ZRM", std::string(1 << 20, '\n'));
  const std::string session = "PRINT 1\nREPEAT 1000 [LOAD BIG]\nPRINT \"NOT REACHED\"\n";
  const ProgramRun run = program.Run("--memory 16 --transcript - --picture a.png", session);
  EXPECT_EQ(run.Status, 3);
  EXPECT_EQ(run.Errors, "zerimo-batch: -:2: stopped by the limit of memory\n");
  EXPECT_TRUE(run.Output.ends_with("{\"event\":\"stopped\",\"by\":\"memory\"}\n"));
  EXPECT_TRUE(program.Read("a.png").starts_with("\x89PNG"));
}

}  // namespace
}  // namespace zerimo
