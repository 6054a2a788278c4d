#include <gtest/gtest.h>

#include <string>

#include "interpreter/slots_fixture.h"

namespace zerimo {
namespace {

class List2Test : public SlotsFixture {
 protected:
  const Texts& Shown() const { return Controls.List2.Items(); }
};

TEST_F(List2Test, ShowsTheSlotsUpToTheFirstFreeOne) {
  Names.SetSlot(1, "A=1");
  Names.SetSlot(2, " ");
  Names.SetSlot(3, "B=2");
  Names.SetSlot(5, "C=3");
  Names.RebuildList2();
  EXPECT_EQ(Shown(), (Texts{"A=1", " ", "B=2"}));
}

TEST_F(List2Test, ShowsNothingBeforeTheFirstRebuild) {
  Names.SetSlot(1, "A=1");
  EXPECT_TRUE(Shown().empty());
}

TEST_F(List2Test, HoldsWhatTheSlotsHeldAtTheRebuild) {
  Names.SetSlot(1, "A=1");
  Names.SetSlot(2, "B=2");
  Names.RebuildList2();
  Names.SetSlot(1, "A=8");
  Names.SetSlot(1, "A=9");
  Names.SetSlot(3, "C=3");
  Names.SetSlot(2, "");
  EXPECT_EQ(Shown(), (Texts{"A=1", "B=2"}));
  Names.SetSlot(1, "A=10");
  EXPECT_EQ(Shown(), (Texts{"A=1", "B=2"}));
  Names.RebuildList2();
  EXPECT_EQ(Shown(), (Texts{"A=10"}));
}

TEST_F(List2Test, TheLaterOfTwoRebuildsCounts) {
  Names.SetSlot(1, "A=1");
  Names.RebuildList2();
  Names.SetSlot(1, "A=2");
  Names.RebuildList2();
  Names.SetSlot(1, "A=3");
  EXPECT_EQ(Shown(), (Texts{"A=2"}));
}

TEST_F(List2Test, ManyChangesBehindARebuildDoNotShow) {
  Names.SetSlot(1, "A=1");
  Names.RebuildList2();
  for (int round = 1; round <= 3; ++round) FillAllSlots("X=" + std::to_string(round));
  EXPECT_EQ(Shown(), (Texts{"A=1"}));
}

TEST_F(List2Test, EachRebuildIsANewVersionOfTheList) {
  const auto before = Controls.List2.Version();
  Names.RebuildList2();
  EXPECT_GT(Controls.List2.Version(), before);
}

TEST_F(List2Test, AFullTableIsShownWholeAndThenTheScanFails) {
  FillAllSlots("X=1");
  EXPECT_EQ(FailureOf([&] { Names.RebuildList2(); }), FailureKind::SubscriptOutOfRange);
  EXPECT_EQ(Shown(), Texts(500, "X=1"));
}

TEST_F(List2Test, FollowsAMakeBeforeTheDeletedSlotIsClosed) {
  Fill({"TO BOX", "MAKE A 5", "END"});
  Names.SetSlot(1, "A=1");
  Names.SetSlot(2, " ");
  EXPECT_EQ(FailureOf([&] { Names.VariableUpdate(2); }), FailureKind::SubscriptOutOfRange);
  EXPECT_EQ(Shown(), (Texts{"A=5", " "}));
  EXPECT_EQ(Names.Slot(2), "");
}

TEST_F(List2Test, CreateGlobalVariableLeavesTheList) {
  Fill({"MAKE A 5", "TO P", "END"});
  Names.RebuildList2();
  Names.CreateGlobalVariable();
  EXPECT_TRUE(Shown().empty());
}

}  // namespace
}  // namespace zerimo
