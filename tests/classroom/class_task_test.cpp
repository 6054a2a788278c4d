#include "class_fixture.h"

namespace zerimo {
namespace {

namespace fs = std::filesystem;

class ClassTaskTest : public ClassTest {
 protected:
  ClassTaskTest() { fs::create_directory(Program.Folder() / "task"); }

  /// A task with goals, a line for each, and the model that is compared with.
  void WriteTask(const std::string& goals, const std::string& model) const {
    Program.Write("task/GOAL.ZRM", model);
    Program.Write("task/TASK.md", "# Stairs\n\nDraw stairs.\n\n" + goals);
  }

  QJsonObject GoalOf(const char* file, qsizetype index = 0) const {
    return Pupil(file).value("goals").toArray().at(index).toObject();
  }

  static constexpr const char* Stairs = "TO STAIRS :S\r\nCS\r\nFD :S\r\nRT 90\r\nFD :S\r\nEND\r\n";
};

TEST_F(ClassTaskTest, ComparesWithATask) {
  Program.Write("task/GOAL.ZRM", "TO GOAL :S\r\nCS\r\nREPEAT 4 [FD :S RT 90]\r\nPRINT 5\r\nEND\r\n");
  Program.Write("task/TASK.md",
                "# Squares\n\nDraw a square.\n\n## Goals\n- `PROGRAM 50`: 3 points\n"
                "- `PROGRAM 20`: texts\n- `PROGRAM 30`: pixels 90 %\n");
  Write("ANNA.ZRM", "TO BOX :N|CS|REPEAT 4 [RT 90 FD :N]|PRINT 5|END|");
  Write("BEN.ZRM", "TO BEN :N|CS|RT 90|REPEAT 3 [FD :N LT 120]|END|");
  EXPECT_EQ(Run("--task task").Status, 0);
  const QJsonArray anna = Pupil("ANNA.ZRM").value("goals").toArray();
  ASSERT_EQ(anna.size(), 3);
  EXPECT_EQ(anna.at(0).toObject().value("points").toDouble(), 3);
  EXPECT_FALSE(anna.at(0).toObject().value("met").toBool());
  EXPECT_TRUE(anna.at(0).toObject().contains("placed"));
  EXPECT_TRUE(anna.at(1).toObject().value("met").toBool());
  for (const QJsonValue& goal : Pupil("BEN.ZRM").value("goals").toArray())
    EXPECT_FALSE(goal.toObject().value("met").toBool());
  EXPECT_NE(Page.find("It is the goal, but"), std::string::npos);
}

TEST_F(ClassTaskTest, AGoalThatIsMetHasAllPerCent) {
  Program.Write("goal.ZRM", "TO GOAL\r\nCS\r\nREPEAT 5 [FD 100 RT 144]\r\nEND\r\n");
  Write("ANNA.ZRM", "TO ANNA|CS|RT 144|REPEAT 5 [BK 100 LT 144]|END|");
  Write("BEN.ZRM", "TO BEN|CS|LT 36|REPEAT 5 [BK 50 BK 50 RT 144]|END|");
  Write("CARLA.ZRM", "TO CARLA|CS|REPEAT 5 [FD 100 RT 144]|END|");
  Run("--task goal.ZRM");
  for (const char* file : {"ANNA.ZRM", "BEN.ZRM", "CARLA.ZRM"}) {
    const QJsonObject goal = Pupil(file).value("goals").toArray().at(0).toObject();
    EXPECT_EQ(goal.value("met").toBool(), goal.value("percent").toDouble() == 100) << file;
  }
  EXPECT_TRUE(Pupil("CARLA.ZRM").value("goals").toArray().at(0).toObject().value("met").toBool());
}

TEST_F(ClassTaskTest, AFigureThatDoesNotCloseIsNotTheGoalTurned) {
  WriteTask("## Goals\n- `PROGRAM 40`: pixels 90 %\n", "TO STAR :S\r\nCS\r\nREPEAT 5 [FD :S RT 144]\r\nEND\r\n");
  Write("ANNA.ZRM", "TO ANNA :S|CS|REPEAT 5 [FD :S RT 140]|END|");
  Write("BEN.ZRM", "TO BEN :S|CS|RT 90|REPEAT 5 [FD :S RT 144]|END|");
  Run("--task task");
  EXPECT_FALSE(GoalOf("ANNA.ZRM").value("placed").isObject());
  EXPECT_TRUE(GoalOf("BEN.ZRM").value("placed").isObject());
}

TEST_F(ClassTaskTest, AGoalMayTypeSmallLetters) {
  WriteTask("## Goals\n- `program 3 + 4`: texts\n- `repeat 2 [program 5]`: texts\n",
            "TO DOUBLE :N\r\nPRINT 2*(:N)\r\nEND\r\n");
  Write("ANNA.ZRM", "TO TWICE :N|PRINT 2*(:N)|END|");
  Write("BEN.ZRM", "TO BEN :N|FD :N|END|");
  Run("--task task");
  for (const qsizetype goal : {0, 1}) {
    EXPECT_TRUE(GoalOf("ANNA.ZRM", goal).value("met").toBool());
    EXPECT_FALSE(GoalOf("BEN.ZRM", goal).value("met").toBool());
  }
}

TEST_F(ClassTaskTest, KeepsTheTextsThatWereCompared) {
  Program.Write("task/GOAL.ZRM", "TO COUNT\r\nREPEAT 50 [PRINT 1]\r\nEND\r\n");
  Program.Write("task/TASK.md", "# Count\n\n## Ziele\n- `PROGRAM`: texts\n");
  Write("ANNA.ZRM", "TO ANNA|REPEAT 49 [PRINT 1]|PRINT 2|END|");
  Write("BEN.ZRM", "TO BEN|PRINT \"no\"|END|");
  Run("--task task --pupils pages --lang de --jsonl r.jsonl");
  EXPECT_EQ(GoalOf("ANNA.ZRM").value("percent").toDouble(), 98);
  EXPECT_EQ(GoalOf("ANNA.ZRM").value("wanted").toArray().size(), 40);
  EXPECT_EQ(GoalOf("ANNA.ZRM").value("textsCut").toBool(), true);
  EXPECT_EQ(GoalOf("BEN.ZRM").value("printed").toArray(), QJsonArray::fromStringList({"no"}));
  const std::string page = Program.Read("pages/BEN.html");
  EXPECT_NE(page.find("\xE2\x86\x90 weicht ab"), std::string::npos);
  EXPECT_NE(page.find("\xE2\x86\x90 fehlt"), std::string::npos);
  EXPECT_NE(page.find("Hier sind nur die ersten 40 Zeilen gezeigt."), std::string::npos);
}

TEST_F(ClassTaskTest, BlanksAndCapitalsOfTextsMakeNoDifference) {
  WriteTask("## Goals\n- `PROGRAM`: texts\n", "TO MAIN\r\nPRINT 5\r\nPRINT \"GO\"\r\nEND\r\n");
  Write("ANNA.ZRM", "TO ANNA|PRINT \"5\"|PRINT \"Go\"|END|");
  Run("--task task");
  EXPECT_TRUE(GoalOf("ANNA.ZRM").value("met").toBool());
}

TEST_F(ClassTaskTest, OfTheWaysToPlaceAPictureTheSimplestIsTold) {
  // These stairs are their own mirror image, but for the ends of the lines.
  Write("STAIRS.ZRM", "TO STAIRS|CS|HT|REPEAT 5 [FD 10 RT 90 FD 10 LT 90]|END|");
  Run("--jsonl r.jsonl");
  Program.Write("goal.png", Program.Read("r.jsonl.pictures/1/picture.png"));
  Write("STAIRS.ZRM", "TO STAIRS|CS|REPEAT 5 [FD 20 RT 90 FD 20 LT 90]|END|");
  Run("--task goal.png");
  const QJsonObject placed = GoalOf("STAIRS.ZRM").value("placed").toObject();
  EXPECT_NEAR(placed.value("scale").toDouble(), 2, 0.05);
  EXPECT_EQ(placed.value("degrees").toDouble(), 0);
  EXPECT_FALSE(placed.value("mirrored").toBool());
}

TEST_F(ClassTaskTest, AGoalThatEveryoneWouldMeetIsBadUsage) {
  Write("ANNA.ZRM", "TO ANNA|END|");
  const auto expect = [this](const std::string& goals, const std::string& message) {
    WriteTask(goals, Stairs);
    ExpectBadUsage("--class class --task task --out r.html", "--task task: " + message);
  };
  expect("## Goals\n- `STAIRS 9`\n- Large, `STIARS 10`\n", "goal 2, Large (STIARS 10): its program draws nothing");
  expect("## Goals\n- `STAIRS`\n", "goal 1, STAIRS: its program draws nothing");
  expect("## Goals\n- `@bogus`\n", "goal 1, @bogus: its program draws nothing");
  expect("## Goals\n- `STAIRS 9`: texts\n", "goal 1, STAIRS 9: its program prints nothing");
  expect("## Goals\n- `STIARS 9`: pixels\n", "goal 1, STIARS 9: its program draws nothing");
  expect("", "goal 1, Stairs: its program draws nothing; say under \"## Goals\" what is typed");
  EXPECT_EQ(Program.Read("r.html"), "");
}

TEST_F(ClassTaskTest, AModelMayEndInNoOtherWayThanByItself) {
  Write("ANNA.ZRM", "TO ANNA|END|");
  WriteTask("## Goals\n- `PAIR`\n- `SPIN`\n",
            "TO PAIR\r\nCS\r\nFD 9\r\nEND\r\nTO SPIN\r\nCS\r\nFD 9\r\n"
            "LABEL L\r\nRT 1\r\nGOTO L\r\nEND\r\n");
  ExpectBadUsage("--class class --task task --steps 500 --out r.html",
                 "--task task: goal 2, SPIN: its program stopped: more than 500 steps in one line");
}

TEST_F(ClassTaskTest, AnEmptyPictureIsNoGoal) {
  Write("ANNA.ZRM", "TO ANNA|END|");
  Program.Write("task/GOAL.png", "no picture");
  ExpectBadUsage("--class class --task task --out r.html", "--task task: the picture shows nothing, or is none");
}

}  // namespace
}  // namespace zerimo
