#pragma once

namespace zerimo::classroom {

/// While it lives, an interrupt from the terminal or a request to end is only noted.
class Interruption {
 public:
  Interruption();
  ~Interruption();
  Interruption(const Interruption&) = delete;
  Interruption& operator=(const Interruption&) = delete;

  static bool Came();
};

}  // namespace zerimo::classroom
