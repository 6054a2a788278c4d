#include <gtest/gtest.h>

#include <string>

#include "interpreter/slots_fixture.h"

namespace zerimo {
namespace {

class List2Test : public SlotsFixture {
 protected:
  const Texts& Shown() const { return controls.List2.Items(); }
};

TEST_F(List2Test, ShowsTheSlotsUpToTheFirstFreeOne) {
  variables.SetSlot(1, "A=1");
  variables.SetSlot(2, " ");
  variables.SetSlot(3, "B=2");
  variables.SetSlot(5, "C=3");
  variables.RebuildList2();
  EXPECT_EQ(Shown(), (Texts{"A=1", " ", "B=2"}));
}

TEST_F(List2Test, ShowsNothingBeforeTheFirstRebuild) {
  variables.SetSlot(1, "A=1");
  EXPECT_TRUE(Shown().empty());
}

TEST_F(List2Test, HoldsWhatTheSlotsHeldAtTheRebuild) {
  variables.SetSlot(1, "A=1");
  variables.SetSlot(2, "B=2");
  variables.RebuildList2();
  variables.SetSlot(1, "A=8");
  variables.SetSlot(1, "A=9");
  variables.SetSlot(3, "C=3");
  variables.SetSlot(2, "");
  EXPECT_EQ(Shown(), (Texts{"A=1", "B=2"}));
  variables.SetSlot(1, "A=10");
  EXPECT_EQ(Shown(), (Texts{"A=1", "B=2"}));
  variables.RebuildList2();
  EXPECT_EQ(Shown(), (Texts{"A=10"}));
}

TEST_F(List2Test, TheLaterOfTwoRebuildsCounts) {
  variables.SetSlot(1, "A=1");
  variables.RebuildList2();
  variables.SetSlot(1, "A=2");
  variables.RebuildList2();
  variables.SetSlot(1, "A=3");
  EXPECT_EQ(Shown(), (Texts{"A=2"}));
}

TEST_F(List2Test, ManyChangesAfterARebuildDoNotShow) {
  variables.SetSlot(1, "A=1");
  variables.RebuildList2();
  for (int round = 1; round <= 3; ++round) FillAllSlots("X=" + std::to_string(round));
  EXPECT_EQ(Shown(), (Texts{"A=1"}));
}

TEST_F(List2Test, EachRebuildIsANewVersionOfTheList) {
  const auto before = controls.List2.Version();
  variables.RebuildList2();
  EXPECT_GT(controls.List2.Version(), before);
}

TEST_F(List2Test, AFullTableIsShownWholeAndThenTheScanFails) {
  FillAllSlots("X=1");
  EXPECT_EQ(FailureOf([&] { variables.RebuildList2(); }), FailureKind::SubscriptOutOfRange);
  EXPECT_EQ(Shown(), Texts(500, "X=1"));
}

TEST_F(List2Test, FollowsAMakeBeforeTheDeletedSlotIsClosed) {
  Fill({"TO BOX", "MAKE A 5", "END"});
  variables.SetSlot(1, "A=1");
  variables.SetSlot(2, " ");
  EXPECT_EQ(FailureOf([&] { variables.VariableUpdate(2); }), FailureKind::SubscriptOutOfRange);
  EXPECT_EQ(Shown(), (Texts{"A=5", " "}));
  EXPECT_EQ(variables.Slot(2), "");
}

TEST_F(List2Test, CreateGlobalVariableLeavesTheList) {
  Fill({"MAKE A 5", "TO P", "END"});
  variables.RebuildList2();
  variables.CreateGlobalVariable();
  EXPECT_TRUE(Shown().empty());
}

}  // namespace
}  // namespace zerimo
