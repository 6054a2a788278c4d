#include "base/process_memory.h"

#include <gtest/gtest.h>

#include <vector>

namespace zerimo {
namespace {

#ifdef __linux__

TEST(ProcessMemory, GrowsByWhatIsWritten) {
  constexpr std::uint64_t Bytes = std::uint64_t{64} << 20;
  const ProcessMemory before = MemoryOfProcess();
  const std::vector<char> written(Bytes, 'a');
  const ProcessMemory after = MemoryOfProcess();
  EXPECT_GE(before.Addresses, before.Occupied);
  EXPECT_GT(after.Addresses, before.Addresses + Bytes / 2) << written.size();
  EXPECT_GT(after.Occupied, before.Occupied + Bytes / 2);
}

#endif

}  // namespace
}  // namespace zerimo
