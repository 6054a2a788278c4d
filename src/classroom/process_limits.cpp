#include "classroom/process_limits.h"

#include <csignal>
#include <cstdlib>
#include <new>

#include "classroom/order.h"

#if defined(__unix__) || defined(__APPLE__)
#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>
#endif
#ifdef __linux__
#include <sys/prctl.h>
#endif

namespace zerimo::classroom {

namespace {

#if defined(__unix__) || defined(__APPLE__)
void SetSoftLimit(decltype(RLIMIT_CORE) what, rlim_t value) {
  rlimit limit{};
  if (getrlimit(what, &limit) != 0) return;
  limit.rlim_cur = limit.rlim_max == RLIM_INFINITY || value < limit.rlim_max ? value : limit.rlim_max;
  setrlimit(what, &limit);
}

/// Bytes: far more than any picture or program.
constexpr rlim_t LargestFileWritten = rlim_t{256} << 20;
#endif

#if defined(__unix__) || defined(__APPLE__)
/// Leaves a note that memory was refused, should the process not live to tell. Takes no memory itself.
void NoteMemory() {
  const int note = ::open(run_file::OutOfMemory, O_WRONLY | O_CREAT | O_TRUNC, 0600);
  if (note >= 0) {
    [[maybe_unused]] const auto written = ::write(note, "m", 1);
    ::close(note);
  }
  throw std::bad_alloc();
}
#endif

}  // namespace

void TameProcess([[maybe_unused]] std::int64_t runner) {
#if defined(__unix__) || defined(__APPLE__)
  std::signal(SIGINT, SIG_IGN);
  SetSoftLimit(RLIMIT_CORE, 0);
  SetSoftLimit(RLIMIT_FSIZE, LargestFileWritten);
#endif
#ifdef __linux__
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  // No signal comes from a runner that ended before it was asked for.
  if (runner != 0 && getppid() != runner) std::_Exit(1);
#endif
}

void NoteRefusedMemory() {
#if defined(__unix__) || defined(__APPLE__)
  std::set_new_handler(NoteMemory);
#endif
}

}  // namespace zerimo::classroom
