#include "desktop/frame_watch.h"

#include <algorithm>

#include "base/process_memory.h"
#include "base/wide_registers.h"

#ifdef __linux__
#include <unistd.h>
#endif

namespace zerimo {

namespace {

constexpr std::uint64_t MostToSpare = std::uint64_t{2} << 30;

constexpr std::chrono::milliseconds Frame{16};
/// For thirty pictures a second.
constexpr std::chrono::milliseconds LongestFrame{33};

}  // namespace

#ifdef __linux__

std::uint64_t MemoryToSpare() {
  const long pages = sysconf(_SC_PHYS_PAGES);
  if (pages <= 0) return MostToSpare;
  return std::min(MostToSpare,
                  static_cast<std::uint64_t>(pages) * static_cast<std::uint64_t>(sysconf(_SC_PAGESIZE)) / 2);
}

#else

std::uint64_t MemoryToSpare() { return MostToSpare; }

#endif

void FrameWatch::Begin() {
  FreeWideRegisters();
  nextFrame_ = Clock::now() + Frame;
}

void FrameWatch::LookAtStep() {
  if (OnStep) {
    // The call may replace it.
    const auto step = OnStep;
    step();
  }
  LookNowAndThen();
}

void FrameWatch::Look() {
  const Clock::time_point now = Clock::now();
  looks_.Looked(now);
  if (stage_.IsRunning() && now >= nextFrame_) ShowFrame();
}

void FrameWatch::ShowFrame() {
  if (MemoryOfProcess().Occupied > MostMemory) throw OutOfMemory();
  const Clock::time_point start = Clock::now();
  stage_.ShowState();
  FreeWideRegisters();
  const Clock::duration took = Clock::now() - start;
  // Where the share would leave too few pictures, the run gets as much time as they do.
  nextFrame_ = start + std::clamp<Clock::duration>(ShareOfShowing * took, Frame,
                                                   std::max<Clock::duration>(LongestFrame, 2 * took));
}

}  // namespace zerimo
