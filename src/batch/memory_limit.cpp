#include "batch/memory_limit.h"

#if ZERIMO_LIMITS_MEMORY
#include <sys/resource.h>

#include <algorithm>

#include "base/process_memory.h"
#endif

namespace zerimo::batch {

namespace {

#if ZERIMO_LIMITS_MEMORY

/// Only the soft limit, so that it can be taken back; the hard one stays as it is.
void LimitAddressSpace(rlim_t bytes) {
  rlimit limit{};
  if (getrlimit(RLIMIT_AS, &limit) != 0) return;
  limit.rlim_cur = std::min(bytes, limit.rlim_max);
  setrlimit(RLIMIT_AS, &limit);
}

void AllowMore(int megabytes) {
  LimitAddressSpace(MemoryOfProcess().Addresses + (static_cast<rlim_t>(megabytes) << 20));
}
void AllowAll() { LimitAddressSpace(RLIM_INFINITY); }

#else

void AllowMore(int) {}
void AllowAll() {}

#endif

}  // namespace

bool MemoryLimit::IsThere() noexcept { return ZERIMO_LIMITS_MEMORY != 0; }

MemoryLimit::MemoryLimit(int megabytes) : isSet_(megabytes > 0) {
  if (isSet_) AllowMore(megabytes);
}

MemoryLimit::~MemoryLimit() {
  if (isSet_) AllowAll();
}

}  // namespace zerimo::batch
