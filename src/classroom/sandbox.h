#pragma once

#include <filesystem>
#include <vector>

namespace zerimo::classroom {

/// What a process may still reach on the disk.
struct SandboxFolders {
  /// Read and written.
  std::filesystem::path Own;
  /// Folders and files that are read alone, beside those of the operating system that fonts and libraries lie in.
  std::vector<std::filesystem::path> Read;
};

/// From now on this process can't start another one, can't use a network and reaches no other file, whatever its code
/// does; files that are open stay open. The operating system keeps it so, and nothing takes it back. False where the
/// operating system can't, or not all of it; what it can do holds all the same.
bool EnterSandbox(const SandboxFolders& folders);

}  // namespace zerimo::classroom
