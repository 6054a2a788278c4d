#include <fcntl.h>

#include <chrono>
#include <csignal>
#include <cstring>
#include <functional>
#include <optional>
#include <thread>

#include "class_fixture.h"

namespace zerimo {
namespace {

namespace fs = std::filesystem;

/// The child processes of a process.
std::vector<pid_t> ChildrenOf(pid_t parent) {
  std::vector<pid_t> children;
  for (const fs::directory_entry& entry : fs::directory_iterator("/proc")) {
    const std::string name = entry.path().filename();
    if (name.find_first_not_of("0123456789") != std::string::npos) continue;
    const std::string stat = BytesOf(entry.path() / "stat");
    // After the name in brackets come the state and the parent.
    const std::size_t end = stat.rfind(')');
    if (end == std::string::npos || stat.size() < end + 5) continue;
    if (std::atoi(stat.c_str() + end + 4) == parent) children.push_back(std::atoi(name.c_str()));
  }
  return children;
}

template <typename Condition>
bool WaitUntil(Condition&& condition) {
  for (int i = 0; i < 1500; ++i) {
    if (condition()) return true;
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  return false;
}

class ClassSignalsTest : public ClassTest {
 protected:
  using Handler = void (*)(int);

  /// Starts the runner; `hangUp` is what it does at first when its terminal is closed.
  void Start(const char* seconds, Handler hangUp = SIG_DFL) {
    runner = fork();
    ASSERT_GE(runner, 0);
    if (runner > 0) return;
    for (const auto& [name, value] : Program.Environment) setenv(name.c_str(), value.c_str(), 1);
    std::signal(SIGHUP, hangUp);
    const int errors = open((Program.Folder() / "errors").c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    dup2(errors, STDERR_FILENO);
    const bool there = chdir(Program.Folder().c_str()) == 0;
    if (there)
      execl(ZERIMO_BATCH, ZERIMO_BATCH, "--class", "class", "--out", "report.html", "--steps", "0", "--seconds",
            seconds, nullptr);
    _exit(99);
  }

  /// The exit status of the runner.
  int Wait() {
    int status = 0;
    waitpid(runner, &status, 0);
    ReadReport();
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

  /// Whether a run has begun, that is, has reported what is known before.
  bool HasBegun() const {
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(TemporaryFolder())) {
      if (entry.path().filename() == "outcome.json") return true;
    }
    return false;
  }

  pid_t runner = -1;
};

TEST_F(ClassSignalsTest, AProcessThatIsKilledIsACrash) {
  Write("A.ZRM", Endless);
  Start("30");
  ASSERT_TRUE(WaitUntil([this] { return HasBegun(); }));
  const std::vector<pid_t> children = ChildrenOf(runner);
  ASSERT_EQ(children.size(), 1U);
  kill(children[0], SIGKILL);
  EXPECT_EQ(Wait(), 0);
  EXPECT_EQ(ResultOf("A.ZRM"), "crashed");
  EXPECT_EQ(Pupil("A.ZRM").value("message").toString(), "the process was ended by signal 9");
  // What was known before it ran is there.
  EXPECT_EQ(Pupil("A.ZRM").value("source").toArray().size(), 5);
  EXPECT_NE(Page.find("crashed: the process was ended by signal 9"), std::string::npos);
}

TEST_F(ClassSignalsTest, AnInterruptEndsTheProcessesAndLeavesNothing) {
  Program.Write("report.html", "former");
  Write("A.ZRM", Endless);
  Start("30");
  ASSERT_TRUE(WaitUntil([this] { return HasBegun(); }));
  const std::vector<pid_t> children = ChildrenOf(runner);
  ASSERT_EQ(children.size(), 1U);
  kill(runner, SIGINT);
  EXPECT_EQ(Wait(), 3);
  EXPECT_EQ(kill(children[0], 0), -1);
  EXPECT_EQ(Page, "former");
  EXPECT_FALSE(fs::exists(Program.Folder() / "report.json"));
  EXPECT_TRUE(fs::is_empty(TemporaryFolder()));
  EXPECT_EQ(Program.Read("errors"), "zerimo-batch: interrupted, no report is written\n");
}

TEST_F(ClassSignalsTest, AnInterruptLeavesAPartialReport) {
  Write("A.ZRM", "TO A|END|");
  Write("B.ZRM", Endless);
  Start("30");
  ASSERT_TRUE(WaitUntil([this] { return Program.Read("errors").starts_with("1/2 "); }));
  kill(runner, SIGINT);
  EXPECT_EQ(Wait(), 3);
  EXPECT_EQ(ResultOf("A.ZRM"), "ended");
  EXPECT_NE(Page.find("This report is partial: the run was interrupted after 1 of 2 programs."), std::string::npos);
}

TEST_F(ClassSignalsTest, AProgressThatNobodyReadsStopsNothing) {
  Write("A.ZRM", "TO A|END|");
  Write("B.ZRM", "TO B|END|");
  Program.Run("--class class --out report.html --jobs 1 2>&1 >/dev/null | true");
  ReadReport();
  EXPECT_EQ(ResultOf("B.ZRM"), "ended");
  EXPECT_TRUE(fs::is_empty(TemporaryFolder()));
}

TEST_F(ClassSignalsTest, ARunUnderNohupGoesOnWhenTheTerminalIsClosed) {
  Write("A.ZRM", Endless);
  Start("3", SIG_IGN);
  ASSERT_TRUE(WaitUntil([this] { return HasBegun(); }));
  kill(runner, SIGHUP);
  EXPECT_EQ(Wait(), 0);
  EXPECT_EQ(ResultOf("A.ZRM"), "stopped seconds");
}

TEST_F(ClassSignalsTest, ProcessesEndWithTheRunner) {
  Write("A.ZRM", Endless);
  Start("30");
  ASSERT_TRUE(WaitUntil([this] { return HasBegun(); }));
  const std::vector<pid_t> children = ChildrenOf(runner);
  ASSERT_EQ(children.size(), 1U);
  kill(runner, SIGKILL);
  Wait();
  // An orphan may stay a zombie if nobody collects it.
  EXPECT_TRUE(WaitUntil([&] {
    const std::string stat = BytesOf("/proc/" + std::to_string(children[0]) + "/stat");
    return stat.empty() || stat.find(") Z ") != std::string::npos;
  }));
}

TEST_F(ClassSignalsTest, WhatAKilledRunnerLeavesIsRemovedByTheNext) {
  Write("A.ZRM", Endless);
  Start("30");
  ASSERT_TRUE(WaitUntil([this] { return HasBegun(); }));
  kill(runner, SIGKILL);
  Wait();
  EXPECT_FALSE(fs::is_empty(TemporaryFolder()));
  fs::create_directory(TemporaryFolder() / "zerimo-class-other");
  // As a runner leaves it that is killed while it makes its lock.
  const fs::path early = TemporaryFolder() / "zerimo-class-early" / "runner.lock";
  fs::create_directory(early.parent_path());
  std::ofstream(early).close();
  fs::last_write_time(early, fs::file_time_type::clock::now() - std::chrono::hours(1));
  fs::create_directory(TemporaryFolder() / "zerimo-class-old");
  fs::last_write_time(TemporaryFolder() / "zerimo-class-old", fs::file_time_type::clock::now() - std::chrono::hours(1));
  Write("A.ZRM", "TO A|END|");
  EXPECT_EQ(Run().Status, 0);
  EXPECT_FALSE(fs::exists(TemporaryFolder() / "zerimo-class-old"));
  // A young one may be that of a runner that starts.
  EXPECT_TRUE(fs::remove(TemporaryFolder() / "zerimo-class-other"));
  EXPECT_TRUE(fs::is_empty(TemporaryFolder()));
}

}  // namespace
}  // namespace zerimo
