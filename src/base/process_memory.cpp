#include "base/process_memory.h"

#ifdef __linux__
#include <unistd.h>

#include <fstream>
#endif

namespace zerimo {

#ifdef __linux__

ProcessMemory MemoryOfProcess() {
  const auto page = static_cast<std::uint64_t>(sysconf(_SC_PAGESIZE));
  ProcessMemory pages;
  std::ifstream("/proc/self/statm") >> pages.Addresses >> pages.Occupied;
  return {pages.Addresses * page, pages.Occupied * page};
}

#else

ProcessMemory MemoryOfProcess() { return {}; }

#endif

}  // namespace zerimo
