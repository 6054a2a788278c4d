#include "class_fixture.h"

namespace zerimo {
namespace {

class MemoryLimitTest : public ClassTest {};

TEST_F(MemoryLimitTest, StopsAProgramThatWantsMore) {
  Write("BIG.ZRM", std::string(1 << 20, '\n'));
  Write("GREEDY.ZRM", "TO GREEDY|LABEL L|LOAD BIG|GOTO L|END|");
  Write("MODEST.ZRM", "TO MODEST|PRINT 1|END|");
  EXPECT_EQ(Run("--memory 16").Status, 0);
  EXPECT_EQ(ResultOf("GREEDY.ZRM"), "stopped memory");
  EXPECT_EQ(Pupil("GREEDY.ZRM").value("place").toObject().value("statement").toString(), "LOAD BIG");
  EXPECT_TRUE(Pupil("GREEDY.ZRM").value("picture").toBool());
  EXPECT_EQ(ResultOf("MODEST.ZRM"), "ended");
  EXPECT_EQ(Summary.value("limits").toObject().value("megabytes").toInt(), 16);
}

}  // namespace
}  // namespace zerimo
