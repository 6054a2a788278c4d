#pragma once

#include <filesystem>
#include <fstream>
#include <functional>
#include <optional>
#include <set>
#include <string>

#include "classroom/pupil.h"

namespace zerimo::classroom {

/// The runs of a part of a class: a file with one JSON object a line, and a folder with the pictures beside it. Each
/// line is on the disk before the next is written, so a kill loses only programs that had not ended.
class PartFile {
 public:
  /// Goes on with the file if `resumes`, otherwise starts it afresh. `wanted` is how many programs it is to have in the
  /// end. Fails with `Failure` (file access).
  PartFile(const std::filesystem::path& file, bool resumes, std::size_t wanted);

  bool Has(const std::filesystem::path& program) const;
  /// Adds a run with its pictures. Fails with `Failure` (file access).
  void Add(const PupilRun& run);

 private:
  std::filesystem::path file_;
  std::size_t wanted_;
  std::ofstream stream_;
  std::set<std::string> programs_;
  std::size_t count_ = 0;
};

/// Hands over the runs of a part one after the other, each with its place in the file. An incomplete line is skipped.
/// Returns how many programs the part is to have, or nothing if the file can't be read.
std::optional<std::size_t> ForEachRun(const std::filesystem::path& file,
                                      const std::function<void(PupilRun, std::streamoff)>& take);

/// One run of a part, by its place there; nothing if the file has changed.
std::optional<PupilRun> RunAt(const std::filesystem::path& file, std::streamoff place);

}  // namespace zerimo::classroom
