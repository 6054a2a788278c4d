#pragma once

namespace zerimo::classroom {

/// Whether this build can limit the memory of a process.
bool CanLimitMemory();

/// Keeps the process from outliving the runner, from filling the disk with one file and from leaving a memory image
/// when it crashes. An interrupt from the terminal is left to the runner. What the platform does not have is left out.
void TameProcess();

/// From now on the process gets at most so many megabytes more; 0 is no limit. What it does not get leaves the
/// note `run_file::OutOfMemory` in the process's folder and ends in `std::bad_alloc`.
void LimitMemory(int megabytes);

/// Takes the limit of memory away again, for what is to be written at the end.
void LiftMemoryLimit();

}  // namespace zerimo::classroom
