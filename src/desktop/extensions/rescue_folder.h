#pragma once

#include <QDateTime>
#include <QLockFile>
#include <QTimer>
#include <chrono>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace zerimo {

/// A text that an earlier window has left.
struct RescuedText {
  std::filesystem::path File;
  std::string Text;
  QDateTime When;
  /// Keeps other windows from it.
  std::shared_ptr<QLockFile> Lock;
};

/// A folder with one file for each window whose text is not saved. A file stays locked while its window lives, and no
/// window ever overwrites another one's file. Where several machines share the folder, a lock of another machine holds
/// as long as it is renewed.
class RescueFolder {
 public:
  /// After this time without a renewal, a window on another machine is gone.
  static constexpr std::chrono::milliseconds LongestSilence = std::chrono::minutes(5);

  explicit RescueFolder(std::filesystem::path folder) : folder_(std::move(folder)) {}

  /// Writes this window's text beside its former one and renames it. Returns whether that succeeded; if not, the former
  /// one stays.
  bool Write(const std::string& text);
  /// Removes this window's text.
  void Remove();
  /// Tells windows on other machines that this one lives. Happens by itself every minute after the first text.
  void RenewLock() const;

  /// The texts of windows that are gone, oldest first.
  std::vector<RescuedText> Left() const;
  static void Drop(RescuedText& rescued);

 private:
  void Claim();
  void RemoveLocksWithoutTexts() const;

  std::filesystem::path folder_;
  /// This window's file; empty before the first write.
  std::filesystem::path own_;
  std::unique_ptr<QLockFile> lock_;
  QTimer renewal_;
};

}  // namespace zerimo
