#include "desktop/memory_in_use.h"

#include <algorithm>

#ifdef __linux__
#include <unistd.h>
#endif

namespace zerimo {

namespace {

constexpr std::uint64_t MostToSpare = std::uint64_t{2} << 30;

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

}  // namespace zerimo
