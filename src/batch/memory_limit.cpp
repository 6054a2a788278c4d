#include "batch/memory_limit.h"

#if ZERIMO_LIMITS_MEMORY
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>
#endif

namespace zerimo::batch {

#if ZERIMO_LIMITS_MEMORY

namespace {

/// Only the soft limit, so that it can be taken back; the hard one stays as it is.
void LimitAddressSpace(rlim_t bytes) {
  rlimit limit{};
  if (getrlimit(RLIMIT_AS, &limit) != 0) return;
  limit.rlim_cur = std::min(bytes, limit.rlim_max);
  setrlimit(RLIMIT_AS, &limit);
}

rlim_t AddressSpaceInUse() {
  rlim_t pages = 0;
  std::ifstream("/proc/self/statm") >> pages;
  return pages * static_cast<rlim_t>(sysconf(_SC_PAGESIZE));
}

}  // namespace

bool MemoryLimit::IsThere() { return true; }

MemoryLimit::MemoryLimit(int megabytes) : isSet_(megabytes > 0) {
  if (isSet_) LimitAddressSpace(AddressSpaceInUse() + (static_cast<rlim_t>(megabytes) << 20));
}

MemoryLimit::~MemoryLimit() {
  if (isSet_) LimitAddressSpace(RLIM_INFINITY);
}

#else

bool MemoryLimit::IsThere() { return false; }

MemoryLimit::MemoryLimit(int) : isSet_(false) {}

MemoryLimit::~MemoryLimit() = default;

#endif

}  // namespace zerimo::batch
