#include "classroom/process_limits.h"

#include <csignal>
#include <new>

#include "classroom/order.h"

#if defined(__unix__) || defined(__APPLE__)
#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>
#endif
#ifdef __linux__
#include <sys/prctl.h>

#include <fstream>
#endif

namespace zerimo::classroom {

namespace {

#if defined(__unix__) || defined(__APPLE__)
/// Only the soft limit, so that it can be taken back; the hard one stays as it is.
void SetSoftLimit(decltype(RLIMIT_CORE) what, rlim_t value) {
  rlimit limit{};
  if (getrlimit(what, &limit) != 0) return;
  limit.rlim_cur = limit.rlim_max == RLIM_INFINITY || value < limit.rlim_max ? value : limit.rlim_max;
  setrlimit(what, &limit);
}

/// Bytes: far more than any picture or program.
constexpr rlim_t LargestFileWritten = rlim_t{256} << 20;
#endif

#if ZERIMO_LIMITS_MEMORY
/// Leaves a note that memory was refused, should the process not live to tell. It asks for none itself.
void NoteMemory() {
  const int note = ::open(run_file::OutOfMemory, O_WRONLY | O_CREAT | O_TRUNC, 0600);
  if (note >= 0) {
    [[maybe_unused]] const auto written = ::write(note, "m", 1);
    ::close(note);
  }
  throw std::bad_alloc();
}

rlim_t AddressSpaceInUse() {
  rlim_t pages = 0;
  std::ifstream("/proc/self/statm") >> pages;
  return pages * static_cast<rlim_t>(sysconf(_SC_PAGESIZE));
}
#endif

}  // namespace

bool CanLimitMemory() { return ZERIMO_LIMITS_MEMORY != 0; }

void TameProcess() {
#if defined(__unix__) || defined(__APPLE__)
  std::signal(SIGINT, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
  SetSoftLimit(RLIMIT_CORE, 0);
  SetSoftLimit(RLIMIT_FSIZE, LargestFileWritten);
#endif
#ifdef __linux__
  prctl(PR_SET_PDEATHSIG, SIGKILL);
#endif
}

void LimitMemory([[maybe_unused]] int megabytes) {
#if ZERIMO_LIMITS_MEMORY
  if (megabytes <= 0) return;
  std::set_new_handler(NoteMemory);
  SetSoftLimit(RLIMIT_AS, AddressSpaceInUse() + (static_cast<rlim_t>(megabytes) << 20));
#endif
}

void LiftMemoryLimit() {
#if ZERIMO_LIMITS_MEMORY
  SetSoftLimit(RLIMIT_AS, RLIM_INFINITY);
#endif
}

}  // namespace zerimo::classroom
