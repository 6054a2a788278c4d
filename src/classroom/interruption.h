#pragma once

#include <vector>

namespace zerimo::classroom {

/// While it exists, an interrupt from the terminal or a request to end is only recorded (one that the process is told
/// to ignore stays ignored), and output that nobody reads any more does not end the process.
class Interruption {
 public:
  Interruption();
  ~Interruption();
  Interruption(const Interruption&) = delete;
  Interruption& operator=(const Interruption&) = delete;

  static bool Came();

 private:
  /// What each signal did before.
  std::vector<void (*)(int)> formerHandlers_;
};

}  // namespace zerimo::classroom
