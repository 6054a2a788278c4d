#include "classroom/sandbox.h"

#if ZERIMO_SANDBOX
#include <fcntl.h>
#include <linux/capability.h>
#include <linux/fs.h>
#include <linux/landlock.h>
#include <linux/sched.h>
#include <linux/sockios.h>
#include <seccomp.h>
#include <sys/ioctl.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdint>
#include <memory>
#endif

namespace zerimo::classroom {

#if ZERIMO_SANDBOX

namespace {

namespace fs = std::filesystem;

constexpr std::uint64_t ReadRights =
    LANDLOCK_ACCESS_FS_EXECUTE | LANDLOCK_ACCESS_FS_READ_FILE | LANDLOCK_ACCESS_FS_READ_DIR;
constexpr std::uint64_t RightsOfFiles =
    LANDLOCK_ACCESS_FS_EXECUTE | LANDLOCK_ACCESS_FS_READ_FILE | LANDLOCK_ACCESS_FS_WRITE_FILE;
/// All rights of the first version of the kernel's interface.
constexpr std::uint64_t AllRights = (LANDLOCK_ACCESS_FS_MAKE_SYM << 1) - 1;
/// What later versions add, which the library's header need not know: the right to cut a file short (3), to command a
/// device (5), and to keep away from the signals and abstract sockets of others (6).
constexpr std::uint64_t CutShort = std::uint64_t{1} << 14;
constexpr std::uint64_t CommandDevice = std::uint64_t{1} << 15;
constexpr std::uint64_t AllScopes = 3;
struct Rules {
  std::uint64_t Files;
  std::uint64_t Network;
  std::uint64_t Scopes;
};

/// In the own folder: no devices, which lead out of it, and no links, pipes and sockets.
constexpr std::uint64_t OwnRights = ReadRights | LANDLOCK_ACCESS_FS_WRITE_FILE | LANDLOCK_ACCESS_FS_REMOVE_DIR |
                                    LANDLOCK_ACCESS_FS_REMOVE_FILE | LANDLOCK_ACCESS_FS_MAKE_DIR |
                                    LANDLOCK_ACCESS_FS_MAKE_REG;

/// Where fonts, libraries and the plugins of the toolkit are read from.
constexpr std::array SystemFolders = {"/usr",       "/lib",       "/lib64",    "/etc/fonts",  "/etc/ld.so.cache",
                                      "/var/cache", "/proc/self", "/dev/null", "/dev/urandom"};

/// More calls that change files by name, younger than the library; they have the same numbers on all machines:
/// fchmodat2, setxattrat, removexattrat and file_setattr.
constexpr std::array YoungCalls = {452, 463, 466, 469};

/// The calls that create or reach another process, use a network, or change files by name without regard to the rules.
constexpr std::array RefusedCalls = {
    SCMP_SYS(execve), SCMP_SYS(execveat), SCMP_SYS(fork), SCMP_SYS(vfork), SCMP_SYS(ptrace), SCMP_SYS(process_vm_readv),
    SCMP_SYS(process_vm_writev), SCMP_SYS(kill), SCMP_SYS(tkill), SCMP_SYS(rt_sigqueueinfo),
    SCMP_SYS(rt_tgsigqueueinfo), SCMP_SYS(pidfd_send_signal), SCMP_SYS(shmget), SCMP_SYS(shmat), SCMP_SYS(semget),
    SCMP_SYS(msgget), SCMP_SYS(mq_open), SCMP_SYS(pidfd_open), SCMP_SYS(socket), SCMP_SYS(connect),
    SCMP_SYS(io_uring_setup), SCMP_SYS(unshare), SCMP_SYS(setns), SCMP_SYS(mount), SCMP_SYS(umount2), SCMP_SYS(chroot),
    SCMP_SYS(bpf), SCMP_SYS(perf_event_open), SCMP_SYS(keyctl), SCMP_SYS(add_key), SCMP_SYS(request_key),
    SCMP_SYS(userfaultfd), SCMP_SYS(open_by_handle_at), SCMP_SYS(chmod), SCMP_SYS(fchmodat), SCMP_SYS(chown),
    SCMP_SYS(lchown), SCMP_SYS(fchownat), SCMP_SYS(setxattr), SCMP_SYS(lsetxattr), SCMP_SYS(removexattr),
    SCMP_SYS(lremovexattr), SCMP_SYS(utime), SCMP_SYS(utimes), SCMP_SYS(utimensat), SCMP_SYS(futimesat),
    SCMP_SYS(truncate),
    // These need a file that is open, even if only for reading.
    SCMP_SYS(fchmod), SCMP_SYS(fchown), SCMP_SYS(fsetxattr), SCMP_SYS(fremovexattr)};

/// Whoever owns an open file is sent signals when it can be read.
constexpr std::array OwnersOfFiles = {F_SETOWN, F_SETSIG, F_SETOWN_EX};
constexpr std::array<unsigned long, 4> RefusedCommands = {FIOSETOWN, SIOCSPGRP, FS_IOC_SETFLAGS, FS_IOC_FSSETXATTR};

/// Adds what may be done below a folder, or with a file. What does not exist can't be reached either.
bool Allow(int rules, const fs::path& path, std::uint64_t rights) {
  const int place = open(path.c_str(), O_PATH | O_CLOEXEC);
  if (place < 0) return true;
  struct stat status {};
  const bool isFolder = fstat(place, &status) == 0 && S_ISDIR(status.st_mode);
  const landlock_path_beneath_attr attribute{isFolder ? rights : rights & RightsOfFiles, place};
  const long added = syscall(SYS_landlock_add_rule, rules, LANDLOCK_RULE_PATH_BENEATH, &attribute, 0);
  close(place);
  return added == 0;
}

bool ConfineFiles(const SandboxFolders& folders) {
  const long version = syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
  const std::uint64_t cutShort = version >= 3 ? CutShort : 0;
  const Rules all{AllRights | cutShort | (version >= 5 ? CommandDevice : 0), 0, version >= 6 ? AllScopes : 0};
  const auto rules = static_cast<int>(syscall(SYS_landlock_create_ruleset, &all, sizeof all, 0));
  if (rules < 0) return false;
  bool isDone = Allow(rules, folders.Own, OwnRights | cutShort);
  for (const fs::path& path : folders.Read) isDone = Allow(rules, path, ReadRights) && isDone;
  for (const char* const path : SystemFolders) isDone = Allow(rules, path, ReadRights) && isDone;
  isDone = syscall(SYS_landlock_restrict_self, rules, 0) == 0 && isDone;
  close(rules);
  return isDone;
}

bool ConfineCalls() {
  const std::unique_ptr<void, void (*)(scmp_filter_ctx)> filter(seccomp_init(SCMP_ACT_ALLOW), seccomp_release);
  if (!filter) return false;
  bool isDone = true;
  const auto refuse = [&](int call, int error, auto... conditions) {
    isDone = seccomp_rule_add(filter.get(), SCMP_ACT_ERRNO(static_cast<unsigned>(error)), call, sizeof...(conditions),
                              conditions...) == 0 &&
             isDone;
  };
  for (const int call : RefusedCalls) refuse(call, EPERM);
  for (const int call : YoungCalls) refuse(call, EPERM);
  // A thread is not a process. The newer call hides its flags; if it is refused, the older one is used.
  refuse(SCMP_SYS(clone), EPERM, scmp_arg_cmp{0, SCMP_CMP_MASKED_EQ, CLONE_THREAD, 0});
  refuse(SCMP_SYS(clone3), ENOSYS);
  refuse(SCMP_SYS(tgkill), EPERM, scmp_arg_cmp{0, SCMP_CMP_NE, static_cast<scmp_datum_t>(getpid()), 0});
  // Before version 3 of the rules, a file that is opened to be read could be cut short. 3 is no way to open a file.
  for (const scmp_datum_t way : {0U, 3U}) {
    constexpr scmp_datum_t mask = O_TRUNC | O_ACCMODE;
    refuse(SCMP_SYS(open), EACCES, scmp_arg_cmp{1, SCMP_CMP_MASKED_EQ, mask, O_TRUNC | way});
    refuse(SCMP_SYS(openat), EACCES, scmp_arg_cmp{2, SCMP_CMP_MASKED_EQ, mask, O_TRUNC | way});
  }
  // It hides its flags; nothing needs it.
  refuse(SCMP_SYS(openat2), ENOSYS);
  constexpr scmp_datum_t number = 0xFFFFFFFF;
  for (const int owner : OwnersOfFiles)
    refuse(SCMP_SYS(fcntl), EPERM, scmp_arg_cmp{1, SCMP_CMP_MASKED_EQ, number, static_cast<scmp_datum_t>(owner)});
  for (const unsigned long command : RefusedCommands)
    refuse(SCMP_SYS(ioctl), EPERM, scmp_arg_cmp{1, SCMP_CMP_MASKED_EQ, number, command & number});
  refuse(SCMP_SYS(prlimit64), EPERM, scmp_arg_cmp{0, SCMP_CMP_NE, 0, 0});
  return seccomp_load(filter.get()) == 0 && isDone;
}

/// The superuser keeps only the right to read and write files, within what the rules allow.
bool DropPrivileges() {
  __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
  std::array<__user_cap_data_struct, _LINUX_CAPABILITY_U32S_3> privileges{};
  if (syscall(SYS_capget, &header, privileges.data()) != 0) return false;
  constexpr std::uint32_t kept = CAP_TO_MASK(CAP_DAC_OVERRIDE) | CAP_TO_MASK(CAP_DAC_READ_SEARCH);
  for (__user_cap_data_struct& each : privileges) {
    const std::uint32_t left = &each == privileges.data() ? kept : 0;
    each = {each.effective & left, each.permitted & left, 0};
  }
  return syscall(SYS_capset, &header, privileges.data()) == 0;
}

}  // namespace

bool EnterSandbox(const SandboxFolders& folders) {
  if (prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0) return false;
  const bool areFilesConfined = ConfineFiles(folders);
  return DropPrivileges() && ConfineCalls() && areFilesConfined;
}

#else

bool EnterSandbox(const SandboxFolders&) { return false; }

#endif

}  // namespace zerimo::classroom
