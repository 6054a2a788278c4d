#include <gtest/gtest.h>

#include <string>

#include "interpreter/arguments.h"
#include "interpreter/slots_fixture.h"

namespace zerimo {
namespace {

class ArgumentStagesTest : public SlotsFixture {
 protected:
  ArgumentStagesTest() { controlPath.SetCtrlStr(".P- 2"); }
};

TEST_F(ArgumentStagesTest, ANumberPassesTheFourStages) {
  turtle.TurtleX += 100;
  Slots({"P.:A=3", "B=4"});
  EXPECT_EQ(arguments.Number("XCOR*100+:A*10+B"), 234);
}

TEST_F(ArgumentStagesTest, BlanksAreNoHarm) { EXPECT_EQ(arguments.Number("10 + 5"), 15); }

TEST_F(ArgumentStagesTest, NamesAreReplacedInPlace) {
  Slots({"P.:A=3", "B=4"});
  std::string text = "(:A+B)";
  arguments.ReplaceNames(text);
  EXPECT_EQ(text, "(3+4)");
  EXPECT_EQ(arguments.Evaluate(text), 7);
}

}  // namespace
}  // namespace zerimo
