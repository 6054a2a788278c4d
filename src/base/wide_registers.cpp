#include "base/wide_registers.h"

#if defined(__GNUC__) && defined(__x86_64__)
#include <immintrin.h>
#endif

namespace zerimo {

#if defined(__GNUC__) && defined(__x86_64__)

namespace {

__attribute__((target("avx"))) void ZeroUpperHalves() noexcept { _mm256_zeroupper(); }

}  // namespace

void FreeWideRegisters() noexcept {
  // No caller keeps anything there across a call.
  if (__builtin_cpu_supports("avx")) ZeroUpperHalves();
}

#else

void FreeWideRegisters() noexcept {}

#endif

}  // namespace zerimo
