#pragma once

#include <QByteArray>
#include <filesystem>
#include <string>

#include "classroom/pupil.h"
#include "controls/controls.h"

namespace zerimo::classroom {

/// Tells whether a program would run as it did before.
class Fingerprint {
 public:
  /// Of what is the same for all programs. `task` is a folder or a model alone, or empty.
  Fingerprint(const RunLimits& limits, ScreenSize screen, bool followsLinks, const std::filesystem::path& task);

  /// A hash, in hexadecimal digits, of the program, its session and what is the same for all.
  std::string Of(const Pupil& pupil) const;

 private:
  QByteArray common_;
};

}  // namespace zerimo::classroom
