#pragma once

#include <filesystem>
#include <vector>

namespace zerimo::classroom {

/// What a process may still reach on the disk.
struct SandboxFolders {
  /// Read and written.
  std::filesystem::path Own;
  /// Folders and files that are only read, besides those of the operating system with fonts and libraries.
  std::vector<std::filesystem::path> Read;
};

/// From now on this process can't start another one, use a network or reach any other file, whatever its code does;
/// open files stay open. The operating system enforces this, and nothing can undo it. Returns false if the operating
/// system can't do all of it; what it can do is in force all the same.
bool EnterSandbox(const SandboxFolders& folders);

}  // namespace zerimo::classroom
