#pragma once

#include <filesystem>
#include <fstream>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "classroom/class_options.h"
#include "classroom/pupil.h"

namespace zerimo::classroom {

/// What a file holds of a class.
struct Share {
  ListPart Part;
  /// How many programs the part is to have in the end, and all parts together.
  std::size_t Wanted = 0;
  std::size_t All = 0;
};

/// How many programs a part has of a class.
inline std::size_t ProgramsOf(ListPart part, std::size_t all) {
  const auto count = static_cast<std::size_t>(part.Count);
  return all / count + (static_cast<std::size_t>(part.Index) <= all % count ? 1 : 0);
}

/// The runs of a part of a class: a file with one JSON object a line, and a folder with the pictures beside it. Each
/// line is on the disk before the next is written, so a kill loses only programs that had not ended.
class PartFile {
 public:
  /// Goes on with the file if `resumes`, otherwise starts it afresh. Of a file that goes on, the runs stay that fit the
  /// fingerprints of the pupils, and those of programs that are not among them. Fails with `Failure` (file access).
  PartFile(const std::filesystem::path& file, bool resumes, const Share& share, const std::vector<Pupil>& pupils);

  /// How many runs did not fit.
  std::size_t Dropped() const { return dropped_; }
  bool Has(const std::filesystem::path& program) const;
  /// Adds a run with its pictures. Fails with `Failure` (file access).
  void Add(const PupilRun& run);

 private:
  void KeepFitting(const std::vector<Pupil>& pupils);

  std::filesystem::path file_;
  Share share_;
  std::ofstream stream_;
  std::set<std::string> programs_;
  std::size_t dropped_ = 0;
  /// The last folder with pictures.
  unsigned lastFolder_ = 0;
};

/// Hands over the runs of a part one after the other, each with its place in the file. An incomplete line is skipped.
/// Returns what the file should hold, or nothing if it can't be read.
std::optional<Share> ForEachRun(const std::filesystem::path& file,
                                const std::function<void(PupilRun, std::streamoff)>& take);

/// One run of a part, by its place there; nothing if the file has changed.
std::optional<PupilRun> RunAt(const std::filesystem::path& file, std::streamoff place);

}  // namespace zerimo::classroom
