#pragma once

namespace zerimo::batch {

/// While it lives, the process can take at most that many megabytes more; a request beyond them fails with
/// `std::bad_alloc`. There is one at a time.
class MemoryLimit {
 public:
  /// Whether this build can limit the memory of a process.
  static bool IsThere() noexcept;

  /// 0 is no limit.
  explicit MemoryLimit(int megabytes);
  /// Lifts the limit, so that what is written at the end can be.
  ~MemoryLimit();
  MemoryLimit(const MemoryLimit&) = delete;
  MemoryLimit& operator=(const MemoryLimit&) = delete;

 private:
  bool isSet_;
};

}  // namespace zerimo::batch
