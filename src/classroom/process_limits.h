#pragma once

#include <cstdint>

namespace zerimo::classroom {

/// Keeps the process from outliving the runner, from filling the disk with one file and from leaving a memory image
/// when it crashes. An interrupt from the terminal is left to the runner. What the platform does not have is left out.
/// `runner` is the process that has started this one, or 0 if it does not matter: if it is gone, this process ends
/// here.
void TameProcess(std::int64_t runner);

/// From now on, memory that is refused leaves the note `run_file::OutOfMemory` in the process's folder, before it ends
/// in `std::bad_alloc`.
void NoteRefusedMemory();

}  // namespace zerimo::classroom
