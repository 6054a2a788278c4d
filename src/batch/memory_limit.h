#pragma once

namespace zerimo::batch {

/// While it lives, the process gets at most so many megabytes more. What it does not get ends in `std::bad_alloc`.
/// There is one at a time.
class MemoryLimit {
 public:
  /// Whether this build can limit the memory of a process.
  static bool IsThere();

  /// 0 is no limit.
  explicit MemoryLimit(int megabytes);
  /// For what is to be written at the end, there is no limit any more.
  ~MemoryLimit();
  MemoryLimit(const MemoryLimit&) = delete;
  MemoryLimit& operator=(const MemoryLimit&) = delete;

 private:
  bool isSet_;
};

}  // namespace zerimo::batch
