#include "classroom/sandbox.h"

#include <fcntl.h>
#include <grp.h>
#include <gtest/gtest.h>
#include <sys/ioctl.h>
#include <sys/ipc.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/shm.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <thread>

#include "files/disk_files.h"
#include "files/temp_folder.h"

namespace zerimo::classroom {
namespace {

/// A folder that may be written, one that may only be read, and a file outside both.
class SandboxTest : public ::testing::Test {
 protected:
  SandboxTest() {
    Temp.MakeFolder("own");
    Temp.Write("read/FILE", "theirs");
    Temp.Write("OUTSIDE", "outside");
  }

  /// Whether something holds for a process in the sandbox.
  template <typename Question>
  bool Inside(Question question) const {
    const pid_t child = fork();
    if (child == 0) {
      const bool isContained = EnterSandbox({Temp.Path / "own", {Temp.Path / "read"}});
      _exit(isContained && question() ? 0 : 1);
    }
    int status = 0;
    return waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
  }

  bool IsRefused(const char* name, int flags) const {
    return Inside([&] { return open((Temp.Path / name).c_str(), flags, 0600) < 0 && errno == EACCES; });
  }

  TempFolder Temp;
};

TEST_F(SandboxTest, TheOwnFolderIsWrittenAndTheOtherRead) {
  EXPECT_TRUE(Inside([&] {
    WriteBeside(Temp.Path / "own/NEW", "new");
    return BytesOf(Temp.Path / "own/NEW") == "new" && BytesOf(Temp.Path / "read/FILE") == "theirs";
  }));
  EXPECT_EQ(Temp.Read("own/NEW"), "new");
}

TEST_F(SandboxTest, NoOtherFileIsReachedWhateverTheCodeDoes) {
  EXPECT_TRUE(IsRefused("OUTSIDE", O_RDONLY));
  EXPECT_TRUE(IsRefused("OUTSIDE", O_WRONLY));
  EXPECT_TRUE(IsRefused("NEW", O_WRONLY | O_CREAT));
  EXPECT_TRUE(IsRefused("read/FILE", O_WRONLY));
  EXPECT_TRUE(IsRefused("read/NEW", O_WRONLY | O_CREAT));
  EXPECT_TRUE(Inside([] { return open("/etc/passwd", O_RDONLY) < 0 && errno == EACCES; }));
  const std::string outside = (Temp.Path / "OUTSIDE").string();
  EXPECT_TRUE(Inside([&] { return unlink(outside.c_str()) < 0; }));
  EXPECT_TRUE(Inside([&] { return chmod(outside.c_str(), 0777) < 0; }));
  EXPECT_TRUE(Inside([&] { return truncate(outside.c_str(), 0) < 0; }));
  constexpr long fileModeAt = 452;
  EXPECT_TRUE(Inside([&] { return syscall(fileModeAt, AT_FDCWD, outside.c_str(), 0777, 0) < 0; }));
  EXPECT_EQ(Temp.Read("OUTSIDE"), "outside");
  EXPECT_EQ(Temp.Count("read"), 1);
}

TEST_F(SandboxTest, AFileThatIsReadStaysAsItIs) {
  const std::string file = (Temp.Path / "read/FILE").string();
  EXPECT_TRUE(IsRefused("read/FILE", O_RDONLY | O_TRUNC));
  EXPECT_TRUE(IsRefused("read/FILE", O_ACCMODE | O_TRUNC));
  EXPECT_TRUE(Inside([&] { return fchmod(open(file.c_str(), O_RDONLY), 04777) < 0 && errno == EPERM; }));
  EXPECT_TRUE(Inside([&] { return fchown(open(file.c_str(), O_RDONLY), 0, 0) < 0 && errno == EPERM; }));
  EXPECT_TRUE(
      Inside([&] { return fsetxattr(open(file.c_str(), O_RDONLY), "user.a", "b", 1, 0) < 0 && errno == EPERM; }));
  EXPECT_EQ(Temp.Read("read/FILE"), "theirs");
}

TEST_F(SandboxTest, AFileOfItsOwnCanBeCutShort) {
  Temp.Write("own/FILE", "long");
  EXPECT_TRUE(Inside([&] {
    WriteBeside(Temp.Path / "own/FILE", "new");
    return ftruncate(open((Temp.Path / "own/FILE").c_str(), O_WRONLY), 1) == 0;
  }));
  EXPECT_EQ(Temp.Read("own/FILE"), "n");
}

TEST_F(SandboxTest, NoOpenFileSendsSignalsToOthers) {
  const auto refuses = [](int command, int value) {
    std::array<int, 2> ends{};
    return pipe(ends.data()) == 0 && fcntl(ends[0], command, value) < 0 && errno == EPERM;
  };
  EXPECT_TRUE(Inside([&] { return refuses(F_SETOWN, getppid()); }));
  EXPECT_TRUE(Inside([&] { return refuses(F_SETSIG, SIGKILL); }));
  EXPECT_TRUE(Inside([] {
    std::array<int, 2> ends{};
    int other = getppid();
    return pipe(ends.data()) == 0 && ioctl(ends[0], FIOSETOWN, &other) < 0 && errno == EPERM;
  }));
}

TEST_F(SandboxTest, ALinkLeadsNowhereOutside) {
  std::filesystem::create_symlink(Temp.Path / "OUTSIDE", Temp.Path / "own/LINK");
  EXPECT_TRUE(IsRefused("own/LINK", O_RDONLY));
}

TEST_F(SandboxTest, NoNetworkAndNoOtherProcess) {
  EXPECT_TRUE(Inside([] { return socket(AF_INET, SOCK_STREAM, 0) < 0 && errno == EPERM; }));
  EXPECT_TRUE(Inside([] { return socket(AF_UNIX, SOCK_STREAM, 0) < 0 && errno == EPERM; }));
  EXPECT_TRUE(Inside([] { return fork() < 0; }));
  EXPECT_TRUE(Inside([] { return execl("/bin/true", "true", nullptr) < 0; }));
  EXPECT_TRUE(Inside([] { return kill(getppid(), 0) < 0 && errno == EPERM; }));
  EXPECT_TRUE(Inside([] { return sigqueue(getppid(), 0, {}) < 0 && errno == EPERM; }));
  EXPECT_TRUE(Inside([] { return shmget(IPC_PRIVATE, 1, 0600) < 0 && errno == EPERM; }));
}

TEST_F(SandboxTest, NoDeviceIsMadeEvenByTheSuperuser) {
  const std::string device = (Temp.Path / "own/DEVICE").string();
  EXPECT_TRUE(Inside([&] { return mknod(device.c_str(), S_IFCHR | 0600, makedev(1, 3)) < 0; }));
  EXPECT_TRUE(Inside([&] { return mkfifo(device.c_str(), 0600) < 0; }));
  EXPECT_EQ(Temp.Count("own"), 0);
}

TEST_F(SandboxTest, TheSuperuserKeepsOnlyTheRightToFiles) {
  EXPECT_TRUE(Inside([] { return prctl(PR_CAPBSET_DROP, 0) < 0; }));
  EXPECT_TRUE(Inside([] { return setgroups(0, nullptr) < 0; }));
}

TEST_F(SandboxTest, AThreadAndALimitOfItsOwnArePossible) {
  EXPECT_TRUE(Inside([] {
    std::thread([] {}).join();
    const rlimit limit{0, 0};
    return setrlimit(RLIMIT_CORE, &limit) == 0;
  }));
}

}  // namespace
}  // namespace zerimo::classroom
