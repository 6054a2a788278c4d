#pragma once

#include "batch/journal.h"
#include "graphics/surface.h"

namespace zerimo::batch {

/// Writes each operation of the surface that it listens to into the journal.
class SurfaceTrace final : public SurfaceRecorder {
 public:
  explicit SurfaceTrace(Journal& journal) : journal_(journal) {}

  void Record(const Surface& surface, const SurfaceOperation& operation) override;

 private:
  Journal& journal_;
};

}  // namespace zerimo::batch
