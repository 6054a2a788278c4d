#pragma once

#include <QDateTime>
#include <QLockFile>
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
/// window ever overwrites another one's file.
class RescueFolder {
 public:
  explicit RescueFolder(std::filesystem::path folder) : folder_(std::move(folder)) {}

  /// Writes this window's text beside its former one and renames it. Returns whether that succeeded; if not, the former
  /// one stays.
  bool Write(const std::string& text);
  /// Removes this window's text.
  void Remove();

  /// The texts of windows that are gone, oldest first.
  std::vector<RescuedText> Left() const;
  static void Drop(RescuedText& rescued);

 private:
  void Claim();

  std::filesystem::path folder_;
  /// This window's file; empty before the first write.
  std::filesystem::path own_;
  std::unique_ptr<QLockFile> lock_;
};

}  // namespace zerimo
