#pragma once

#include <filesystem>

#include "graphics/surface.h"

namespace zerimo::batch {

/// The pixels of a session, and its pictures as files.
class SessionPictures {
 public:
  virtual ~SessionPictures() = default;

  virtual Canvas& Pixels() = 0;

  /// Keeps the operations of the surface from now on, for a picture made of shapes.
  virtual void KeepOperations(Surface& surface) = 0;

  /// Writes the surface as large as it is now; the format follows from the file's ending. Fails (file access, invalid
  /// argument for an ending that can't be written).
  virtual void Write(const Surface& surface, const std::filesystem::path& file) const = 0;
};

}  // namespace zerimo::batch
