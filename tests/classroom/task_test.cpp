#include "classroom/task.h"

#include <gtest/gtest.h>

#include "batch/errors.h"
#include "files/temp_folder.h"

namespace zerimo::classroom {
namespace {

TEST(Task, GoalsAreTheItemsOfTheirSection) {
  const std::vector<Goal> goals = GoalsIn(
      "# Stars\n\nText.\n\n## Goals\n\n- `STAR 50`: 2 points\n- `A` and `B`: pixels 90 %, colour\n* the call: texts\n"
      "- `C`: shapes, order, direction, splitting, tolerance 2\n\n## More\n\n- no goal\n");
  ASSERT_EQ(goals.size(), 4U);
  EXPECT_EQ(goals[0].Typed, QStringList{"STAR 50"});
  EXPECT_EQ(goals[0].Points, 2);
  EXPECT_EQ(goals[1].Typed, (QStringList{"A", "B"}));
  EXPECT_EQ(goals[1].Way, GoalWay::Pixels);
  EXPECT_EQ(goals[1].Enough, 90);
  EXPECT_TRUE(goals[1].Shapes.Colour);
  EXPECT_EQ(goals[2].Way, GoalWay::Texts);
  EXPECT_TRUE(goals[3].Shapes.Order && goals[3].Shapes.Direction && goals[3].Shapes.Splitting);
  EXPECT_EQ(goals[3].Shapes.Tolerance, 100);
}

TEST(Task, AGoalIsCalledWhatTheTeacherCallsIt) {
  const std::vector<Goal> goals = GoalsIn(
      "## Goals\n- A large star, `STAR 50`: 2 points\n- Two of them: `STAR 5` and `STAR 6`: texts\n- `STAR 7`\n"
      "- the call: texts\n- Round `A`\n- `B` and `C`: pixels\n");
  QStringList titles;
  for (const Goal& goal : goals) titles.append(goal.Title());
  EXPECT_EQ(titles, (QStringList{"A large star (STAR 50)", "Two of them (STAR 5, STAR 6)", "STAR 7", "the call",
                                 "Round (A)", "B, C"}));
  EXPECT_EQ(goals[1].Way, GoalWay::Texts);
}

TEST(Task, WordsThatAreNotUnderstoodAreReported) {
  for (const char* words : {"shapse", "pixels 120 %", "pixels 0 %"})
    EXPECT_THROW(GoalsIn(QString("## Goals\n- `A`: ") + words + u'\n'), batch::UsageError) << words;
}

TEST(Task, TheHeadingOfTheGoalsMayBeGerman) {
  const std::vector<Goal> goals = GoalsIn("# Treppen\n\n## Ziele\n\n- `TREPPE 50`\n\n## Mehr\n- keins\n");
  ASSERT_EQ(goals.size(), 1U);
  EXPECT_EQ(goals[0].Typed, QStringList{"TREPPE 50"});
}

TEST(Task, AFolderHasWordsAModelAndGoals) {
  const TempFolder disk;
  disk.Write("task/TASK.md", "# Stars\n\nDraw one.\n");
  EXPECT_THROW(ReadTask(disk.Path / "task"), batch::UsageError);
  disk.Write("task/GOAL.ZRM", "TO GOAL\r\nEND\r\n");
  const Task task = ReadTask(disk.Path / "task");
  EXPECT_EQ(task.Title, "Stars");
  EXPECT_EQ(task.Words, "Draw one.");
  EXPECT_TRUE(task.HasModelProgram());
  ASSERT_EQ(task.Goals.size(), 1U);
  EXPECT_EQ(task.Goals[0].Title(), "Stars");
}

TEST(Task, OfAPictureOnlyPixelsAreCompared) {
  const TempFolder disk;
  disk.Write("goal.png", "");
  const Task task = ReadTask(disk.Path / "goal.png");
  EXPECT_FALSE(task.HasModelProgram());
  ASSERT_EQ(task.Goals.size(), 1U);
  EXPECT_EQ(task.Goals[0].Way, GoalWay::Pixels);
  EXPECT_THROW(ReadTask(disk.Path / "nothing.png"), batch::UsageError);
}

}  // namespace
}  // namespace zerimo::classroom
