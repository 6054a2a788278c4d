#include "classroom/run_process.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

#include "classroom/class_runner.h"
#include "files/temp_folder.h"

namespace zerimo::classroom {
namespace {

namespace fs = std::filesystem;

/// A script stands for the program that carries out an order.
class RunProcessTest : public testing::Test {
 protected:
  QString Script(const std::string& commands) {
    Temp.Write("program", "#!/bin/sh\n" + commands + "\n");
    fs::permissions(Temp.Path / "program", fs::perms::owner_all);
    return QString::fromStdString((Temp.Path / "program").string());
  }

  /// Runs a script with a limit in seconds and no `TimeAround`.
  PupilRun RunOf(const QString& program, double seconds = 30) {
    Order order;
    order.Who.Program = "ANNA.ZRM";
    order.Limits.Seconds = seconds;
    order.Goals = Goals;
    RunProcess process(order, Temp.Path / "run", 0);
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&process] { process.EndIfLate(); });
    timer.start(10);
    QEventLoop loop;
    process.Start(program, [&loop] { QTimer::singleShot(0, &loop, &QEventLoop::quit); });
    loop.exec();
    EXPECT_TRUE(process.HasEnded());
    return process.TakeRun();
  }

  void ExpectCrash(const PupilRun& run, const char* message) {
    EXPECT_EQ(run.Outcome.How, Result::Crashed);
    EXPECT_EQ(run.Outcome.Message, message);
  }

  int count = 1;
  char name[5] = "test";
  char* arguments[2] = {name, nullptr};
  QCoreApplication Application{count, arguments};
  std::vector<Goal> Goals;
  TempFolder Temp;
};

TEST_F(RunProcessTest, TheProcessFindsItsOrderInItsFolder) {
  RunOf(Script("cp order.json ../found; echo \"$@\" > ../arguments"));
  const std::optional<Order> order = ReadOrder(Temp.Path / "found");
  ASSERT_TRUE(order);
  EXPECT_EQ(order->Who.Program, "ANNA.ZRM");
  EXPECT_EQ(order->Limits.Seconds, 30);
  EXPECT_EQ(Temp.Read("arguments"), "--class-pupil\n");
}

TEST_F(RunProcessTest, TheOutcomeIsWhatTheProcessTells) {
  WriteOutcome(Temp.Path / "outcome", {Result::Stopped, "steps", "words", {}, {}, {}});
  const PupilRun run = RunOf(Script("cp ../outcome outcome.json; exit 1"));
  EXPECT_EQ(run.Outcome.How, Result::Stopped);
  EXPECT_EQ(run.Outcome.By, "steps");
}

TEST_F(RunProcessTest, WhatACrashLeavesUntoldIsFilledIn) {
  Goals = {Goal{.Typed = {"STAR 50"}, .Points = 3}, Goal{.Typed = {"STAR 20"}}};
  RunOutcome begun;
  begun.Findings = {{Mistake::Tab, 2, {}}};
  begun.Source = {{"TO A"}};
  WriteOutcome(Temp.Path / "outcome", begun);
  const PupilRun run = RunOf(Script("cp ../outcome outcome.json; kill -9 $$"));
  ExpectCrash(run, "the process was ended by signal 9");
  EXPECT_EQ(run.Outcome.Findings, begun.Findings);
  ASSERT_EQ(run.Outcome.Source.size(), 1U);
  ASSERT_EQ(run.Outcome.Goals.size(), 2U);
  EXPECT_EQ(run.Outcome.Goals[0].Title, "STAR 50");
  EXPECT_EQ(run.Outcome.Goals[0].Points, 3);
  EXPECT_FALSE(run.Outcome.Goals[0].Met || run.Outcome.Goals[1].Met);
}

TEST_F(RunProcessTest, ACrashInAGoalIsTold) {
  Goals = {Goal{}, Goal{}};
  RunOutcome ended;
  ended.How = Result::Ended;
  ended.Goals = {{"", GoalWay::Shapes, true, 100, 1}};
  WriteOutcome(Temp.Path / "outcome", ended);
  const PupilRun run = RunOf(Script("cp ../outcome outcome.json; kill -9 $$"));
  EXPECT_EQ(run.Outcome.How, Result::Ended);
  EXPECT_EQ(run.Outcome.Notes, QStringList{"The process ended before all goals were tried."});
  EXPECT_EQ(run.GoalsMet(), 1U);
  EXPECT_EQ(run.Outcome.Goals.size(), 2U);
}

TEST_F(RunProcessTest, AProcessThatIsLateIsKilled) {
  const PupilRun run = RunOf(Script("exec sleep 30"), 0.2);
  EXPECT_EQ(run.Outcome.How, Result::Stopped);
  EXPECT_EQ(run.Outcome.By, "seconds");
  EXPECT_GE(run.Seconds, 0.2);
}

TEST_F(RunProcessTest, AProcessThatEndsWithoutAWordIsACrash) {
  ExpectCrash(RunOf(Script("kill -9 $$")), "the process was ended by signal 9");
  ExpectCrash(RunOf(Script("exit 3")), "the process ended with status 3");
}

TEST_F(RunProcessTest, AProcessThatCanNotBeStartedIsNoRun) {
  RunProcess process({}, Temp.Path / "run");
  QEventLoop loop;
  process.Start("/no/such/program", [&loop] { QTimer::singleShot(0, &loop, &QEventLoop::quit); });
  loop.exec();
  EXPECT_TRUE(process.CouldNotStart());
}

TEST_F(RunProcessTest, WithoutRoomForItsOrderAProcessIsNotStarted) {
  Temp.Write("run", "in the way");
  RunProcess process({}, Temp.Path / "run");
  process.Start(Script("touch ../started"), [] {});
  EXPECT_TRUE(process.CouldNotStart());
  EXPECT_FALSE(Temp.Has("started"));
}

TEST_F(RunProcessTest, HalfAnOutcomeIsACrash) {
  ExpectCrash(RunOf(Script("echo '{\"result\":\"ended\"' > outcome.json")), "the process ended with status 0");
}

TEST_F(RunProcessTest, AProcessThatDiesOfMemoryIsStoppedByIt) {
  const PupilRun run = RunOf(Script("echo m > memory; kill -6 $$"));
  EXPECT_EQ(run.Outcome.How, Result::Stopped);
  EXPECT_EQ(run.Outcome.By, "memory");
}

TEST_F(RunProcessTest, WhatWasSaidBeforeACrashIsKept) {
  const PupilRun run =
      RunOf(Script("echo '{\"event\":\"list\",\"op\":\"add\",\"item\":\"?A\"}' > transcript.jsonl; kill -11 $$"));
  EXPECT_EQ(run.Told.Lines, QStringList{"?A"});
}

TEST_F(RunProcessTest, OutputOfTheProcessGoesNowhere) {
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  RunOf(Script("echo out; echo err >&2; cat"));
  EXPECT_EQ(testing::internal::GetCapturedStdout() + testing::internal::GetCapturedStderr(), "");
}

TEST_F(RunProcessTest, APictureIsTakenUnlessItIsHuge) {
  EXPECT_EQ(RunOf(Script("echo p > picture.png")).Picture, Temp.Path / "run/picture.png");
  const PupilRun run = RunOf(Script("truncate -s 9M picture.png"));
  EXPECT_EQ(run.Picture, fs::path());
  EXPECT_EQ(run.Outcome.Notes, QStringList{"The picture is too large for the report."});
}

TEST_F(RunProcessTest, WhatTheProgramWroteIsThrownAway) {
  RunOf(Script("mkdir scratch; echo x > scratch/X; echo x > transcript.jsonl"));
  EXPECT_FALSE(Temp.Has("run/scratch"));
  EXPECT_FALSE(Temp.Has("run/transcript.jsonl"));
}

TEST_F(RunProcessTest, ARunnerKeepsTheOrderAndTheNumberOfProcesses) {
  Temp.MakeFolder("runs");
  ClassRunner::Plan plan;
  plan.Jobs = 2;
  // The first one waits until the last one runs; each records how many are running.
  plan.Program = Script(
      "touch ../$$.here; ls .. | grep -c here >> ../counts\n"
      "case $PWD in */0) while [ ! -e ../3 ]; do sleep 0.01; done;; esac\n"
      "rm ../$$.here; exit ${PWD##*/}");
  plan.Folder = Temp.Path / "runs";
  std::vector<std::string> done;
  ClassRunner runner(plan, {{"A", {}}, {"B", {}}, {"C", {}}, {"D", {}}},
                     [&done](const PupilRun& run, std::size_t number) {
                       done.push_back(run.Who.Program.string() + std::to_string(number));
                     });
  const std::vector<PupilRun> runs = runner.Run();
  EXPECT_FALSE(runner.WasInterrupted());
  std::string order;
  for (const PupilRun& run : runs) order += run.Who.Program.string() + run.Outcome.Message.right(1).toStdString();
  EXPECT_EQ(order, "A0B1C2D3");
  EXPECT_EQ(done.size(), 4U);
  EXPECT_EQ(done.at(0), "B1");
  EXPECT_EQ(Temp.Read("runs/counts").find_first_of("3456789"), std::string::npos);
}

TEST_F(RunProcessTest, WhatCanNotBeStartedIsTriedAgainLater) {
  Temp.MakeFolder("runs");
  ClassRunner::Plan plan;
  plan.Jobs = 3;
  plan.Program = Script("exit ${PWD##*/}");
  plan.Folder = Temp.Path / "runs";
  Temp.Write("runs/1", "in the way of the second one, until the first one has ended");
  ClassRunner runner(plan, {{"A", {}}, {"B", {}}, {"C", {}}}, [this](const PupilRun&, std::size_t) {
    if (fs::is_regular_file(Temp.Path / "runs/1")) fs::remove(Temp.Path / "runs/1");
  });
  std::string order;
  for (const PupilRun& run : runner.Run())
    order += run.Who.Program.string() + run.Outcome.Message.right(1).toStdString();
  EXPECT_EQ(order, "A0B1C2");
}

TEST_F(RunProcessTest, WhatHasRunIsKeptWhereNoMoreCanBeStarted) {
  Temp.MakeFolder("runs");
  ClassRunner::Plan plan;
  plan.Program = Script("exit 0");
  plan.Folder = Temp.Path / "runs";
  Temp.Write("runs/1", "in the way of the second one");
  ClassRunner runner(plan, {{"A", {}}, {"B", {}}}, [](const PupilRun&, std::size_t) {});
  EXPECT_EQ(runner.Run().size(), 1U);
  EXPECT_TRUE(runner.RanShort());
}

TEST_F(RunProcessTest, WhereNothingCanBeStartedTheRunFails) {
  Temp.MakeFolder("runs");
  ClassRunner::Plan plan;
  plan.Program = "/no/such/program";
  plan.Folder = Temp.Path / "runs";
  ClassRunner runner(plan, {{"A", {}}}, [](const PupilRun&, std::size_t) { FAIL() << "nothing has run"; });
  EXPECT_THROW(runner.Run(), NoProcess);
}

}  // namespace
}  // namespace zerimo::classroom
