#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "graphics/surface.h"

namespace zerimo {

/// What was visible in a session, as one number for each step.
class Trace {
 public:
  void Note(std::string_view text);
  void Note(double number);
  void Note(const SurfaceOperation& operation);
  /// Ends the number of this step and begins the next.
  void EndStep();

  const std::vector<std::uint64_t>& Steps() const { return steps_; }
  void Clear() { steps_.clear(); }

 private:
  void Mix(std::uint64_t value);

  std::uint64_t now_ = 0;
  std::vector<std::uint64_t> steps_;
};

}  // namespace zerimo
