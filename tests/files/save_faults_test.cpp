#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <string>

#include "base/failure.h"
#include "files/disk_files.h"
#include "files/temp_folder.h"
#include "support/failure_of.h"

// Every system call of a save fails once, or is the last thing that the process does. The linker puts the functions
// below between the save and the C library.

namespace {

/// In place of an error: the call kills the process.
constexpr int Killed = -1;

/// System calls until the fault comes; 0 when it has come, negative if none is to come.
int callsLeft = -1;
int faultError = 0;

bool FaultComes() {
  if (callsLeft <= 0 || --callsLeft > 0) return false;
  if (faultError == Killed) ::kill(::getpid(), SIGKILL);
  errno = faultError;
  return true;
}

}  // namespace

// NOLINTBEGIN(bugprone-reserved-identifier,readability-identifier-naming)
extern "C" {
int __real_open(const char* name, int flags, ...);
int __real_stat(const char* name, struct stat* status);
int __real_access(const char* name, int mode);
int __real_fchown(int file, uid_t user, gid_t group);
int __real_fchmod(int file, mode_t mode);
ssize_t __real_write(int file, const void* bytes, size_t count);
int __real_close(int file);
int __real_rename(const char* name, const char* newName);

int __wrap_open(const char* name, int flags, ...) {
  std::va_list more;
  va_start(more, flags);
  const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(more, mode_t) : 0;
  va_end(more);
  return FaultComes() ? -1 : __real_open(name, flags, mode);
}
int __wrap_stat(const char* name, struct stat* status) { return FaultComes() ? -1 : __real_stat(name, status); }
int __wrap_access(const char* name, int mode) { return FaultComes() ? -1 : __real_access(name, mode); }
int __wrap_fchown(int file, uid_t user, gid_t group) { return FaultComes() ? -1 : __real_fchown(file, user, group); }
int __wrap_fchmod(int file, mode_t mode) { return FaultComes() ? -1 : __real_fchmod(file, mode); }
// A disk may accept fewer bytes than it is given.
ssize_t __wrap_write(int file, const void* bytes, size_t count) {
  constexpr size_t most = size_t{1} << 20;
  return FaultComes() ? -1 : __real_write(file, bytes, count < most ? count : most);
}
// No test cuts the power, so nothing needs to wait for the disk.
int __wrap_fsync(int) { return FaultComes() ? -1 : 0; }
int __wrap_close(int file) {
  const int status = __real_close(file);
  return FaultComes() ? -1 : status;
}
int __wrap_rename(const char* name, const char* newName) { return FaultComes() ? -1 : __real_rename(name, newName); }
}
// NOLINTEND(bugprone-reserved-identifier,readability-identifier-naming)

namespace zerimo {
namespace {

constexpr int MostCalls = 100;

/// What is saved, and whether there is a file in its place already.
struct Save {
  std::size_t Size;
  bool IsOverAnother;
};

class SaveFaults : public ::testing::TestWithParam<Save> {
 protected:
  void Prepare() const {
    std::filesystem::remove(File);
    if (GetParam().IsOverAnother) Temp.Write("file", Former);
  }

  bool HasFormer() const { return GetParam().IsOverAnother ? Temp.Read("file") == Former : !Temp.Has("file"); }
  bool HasNew() const { return Temp.Has("file") && Temp.Read("file") == New; }

  /// Saves with a fault at one of the calls. If the save makes fewer calls, `callsLeft` stays above 0.
  void SaveWithFaultAt(int call, int error) const {
    callsLeft = call;
    faultError = error;
    WriteBeside(File, New);
  }

  TempFolder Temp;
  const std::filesystem::path File = Temp.Path / "file";
  const std::string Former = std::string(GetParam().Size, 'f');
  const std::string New = std::string(GetParam().Size, 'n');
};

TEST_P(SaveFaults, AFailingCallFailsTheSaveAndLeavesOneWholeFile) {
  for (const int error : {EIO, ENOSPC}) {
    int call = 1;
    for (; call <= MostCalls; ++call) {
      Prepare();
      const auto failure = FailureOf([&] { SaveWithFaultAt(call, error); });
      const bool cameThrough = callsLeft > 0;
      callsLeft = -1;
      EXPECT_EQ(failure.has_value(), !cameThrough) << call;
      EXPECT_TRUE(cameThrough ? HasNew() : HasFormer() || HasNew()) << call;
      EXPECT_EQ(Temp.Count(), Temp.Has("file") ? 1 : 0) << call;
      if (cameThrough) break;
    }
    // It opens, writes, syncs and closes the file, renames it, and opens and syncs the folder.
    EXPECT_GE(call, 8);
    EXPECT_LE(call, MostCalls);
  }
}

TEST_P(SaveFaults, AProcessKilledAtACallLeavesOneWholeFile) {
  for (int call = 1; call <= MostCalls; ++call) {
    Prepare();
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      SaveWithFaultAt(call, Killed);
      _exit(0);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    const bool wasKilled = WIFSIGNALED(status);
    EXPECT_TRUE(wasKilled ? HasFormer() || HasNew() : HasNew()) << call;
    for (const auto& entry : std::filesystem::directory_iterator(Temp.Path)) {
      if (entry.path() == File) continue;
      last_write_time(entry.path(), std::filesystem::file_time_type::clock::now() - std::chrono::hours(1));
    }
    RemoveLeftovers(Temp.Path);
    EXPECT_EQ(Temp.Count(), Temp.Has("file") ? 1 : 0) << call;
    if (!wasKilled) return;
  }
  FAIL() << "a save makes more calls than are tried";
}

INSTANTIATE_TEST_SUITE_P(All, SaveFaults,
                         ::testing::Values(Save{1, false}, Save{1, true}, Save{5 << 10, false}, Save{5 << 10, true},
                                           Save{2 << 20, false}, Save{2 << 20, true}));

}  // namespace
}  // namespace zerimo
