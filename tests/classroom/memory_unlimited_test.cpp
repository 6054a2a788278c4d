#include "class_fixture.h"

namespace zerimo {
namespace {

class MemoryLimitTest : public ClassTest {};

TEST_F(MemoryLimitTest, IsReportedToBeNoneWhereThereIsNone) {
  Write("A.ZRM", "TO A|END|");
  EXPECT_EQ(Run("--memory 16").Status, 0);
  EXPECT_EQ(ResultOf("A.ZRM"), "ended");
  EXPECT_TRUE(Summary.value("limits").toObject().value("megabytes").isNull());
}

}  // namespace
}  // namespace zerimo
